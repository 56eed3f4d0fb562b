#pragma once

#include <cstdint>
#include <iomanip>
#include <iostream>
#include <sstream>

/// Says a figure that is the same on every machine, as "figure: replay 0123456789abcdef".
/// tests/everywhere/test puts these lines into its table.
inline void TellFigure(const char *Name, std::uint64_t Figure) {
    std::ostringstream line;
    line << "figure: " << Name << ' ' << std::hex << std::setw(16) << std::setfill('0') << Figure << '\n';
    std::cout << line.str();
}
