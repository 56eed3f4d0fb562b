#pragma once

#include "tests/e2e/OpenedGame.hpp"

#include <chrono>
#include <string>
#include <vector>

// What a long game is measured by, at one moment of play.
struct SoakRow {
    double Seconds = 0.0;    // since the beginning
    int Memory = 0;          // KiB: the most until the next row
    int Handles = 0;         // open files, sockets and the like
    int LogLines = 0;        // since the beginning
    double UsualFrame = 0.0; // milliseconds: half of the frames of a second stood longer on the screen
    double WorstFrame = 0.0; // of the same second
    int OwnMemory = 0;       // KiB of the program that watches
};

// Measures the running program from outside, and tells each row on standard output as it comes.
class SoakLog {
public:
    // A row is due at once, and Distance after each.
    SoakLog(OpenedGame &Watched, std::chrono::seconds Distance);

    // Looks at the memory and, if a row is due and a run is being played, takes the row, which lasts a
    // second.
    void Look();

    // Those so far.
    std::vector<SoakRow> Rows;

private:
    OpenedGame &Game;
    std::chrono::seconds RowDistance;
    std::chrono::steady_clock::time_point Start;
    std::chrono::steady_clock::time_point Due;
};

// The rows as an SVG picture.
std::string PlotOf(const std::vector<SoakRow> &Rows);
