#include "bench/Page.hpp"

#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <sstream>
#include <thread>

namespace {

/// The processor as the system names it.
std::string ProcessorName() {
    std::ifstream facts("/proc/cpuinfo");
    for (std::string line; std::getline(facts, line);) {
        if (line.starts_with("model name") && line.find(": ") != std::string::npos) {
            return line.substr(line.find(": ") + 2);
        }
    }
    return "an unknown processor";
}

std::string Today() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 64> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d", std::gmtime(&now));
    return text.data();
}

} // namespace

double LoadOfMachine() {
    double load = 0.0;
    return getloadavg(&load, 1) == 1 ? load : 0.0;
}

std::string PageOf(const std::string &TableText, double Load, int Starts, int PlaySeconds) {
    std::ostringstream page;
    page.precision(2);
    page << "# Figures\n\nWritten by `make bench` on " << Today() << ": " << ProcessorName() << ", "
         << std::thread::hardware_concurrency() << " cores. Load of other programs before: " << std::fixed
         << Load << R"(.

- A frame is drawn by SDL's own renderer, or by OpenGL where that is said: Mesa's, without a
  graphics card. Bare are the calls that the game is told to make, played back, all of them blended.
- The other figures are of the real program in a virtual display of 1280x720. A share of a core is
  its processor time with the frame cap; play is the traffic of stage 30.
- A start is the time from the launch to the first picture on the screen, the median and quartiles
  of )" << Starts
         << R"(. Bare is a program on the same libraries that opens the same window, renderer and mixer and
  shows a sprite, a fill and a line of text. In a new home there are no files and no caches yet.
- Memory is what is held after )"
         << PlaySeconds << R"( seconds of play; the last column but one leaves out the files of music.
- Saving is compared with one call that writes the same bytes.

)" << TableText;
    return page.str();
}
