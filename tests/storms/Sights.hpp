#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct GameState;
struct Program;

/// How often each screen, page and capture was met, and what else a storm is to reach.
class Sights {
public:
    Sights();

    /// Looks at a frame: the record before it, the program after it, and whether it brought the window in
    /// line with the options.
    void Note(const GameState &Before, const Program &After, bool AppliesDisplay);

    /// What was never met.
    std::vector<std::string> Missing() const;

    /// Each, on a line of its own, with the number of frames in which it was met.
    std::string Table() const;

private:
    std::vector<std::int64_t> Frames; ///< in which each was met
};
