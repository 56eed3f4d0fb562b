#include "tools/desktop/VirtualDisplay.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <algorithm>
#include <cctype>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

// The server writes the number that it took to the descriptor named here, once it listens. Standard output is
// ours to read already; the number is the one line there that holds digits only.
constexpr const char *NumberDescriptor = "1";

// With shared memory the server says its number in a line that begins so, before it listens.
constexpr std::string_view MemoryLine = "screen 0 shmid ";

std::vector<std::string> ServerArguments(ScreenSize Size, ScreenMemory Memory) {
    const std::string screen = std::to_string(Size.Width) + "x" + std::to_string(Size.Height) + "x24";
    // Without -noreset the server would start over whenever its last client leaves.
    std::vector<std::string> arguments{
        "-displayfd", NumberDescriptor, "-screen", "0", screen, "-nolisten", "tcp", "-noreset"};
    if (Memory == ScreenMemory::Shared) {
        // The pointer is drawn into that memory, over what programs show.
        arguments.insert(arguments.end(), {"-shmem", "-nocursor"});
    }
    return arguments;
}

bool IsNumber(const std::string &Line) {
    return !Line.empty() && std::all_of(Line.begin(), Line.end(), [](unsigned char Letter) {
        return std::isdigit(Letter) != 0;
    });
}

std::optional<std::string> FindNumber(const std::string &Output) {
    std::istringstream lines(Output);
    // A last line without its end may still grow: getline then stops at the end of the text.
    for (std::string line; std::getline(lines, line) && !lines.eof();) {
        if (IsNumber(line)) {
            return line;
        }
    }
    return std::nullopt;
}

} // namespace

VirtualDisplay::VirtualDisplay(ScreenSize Size, ScreenMemory Memory)
    : Screen(Size),
      Server("Xvfb", ServerArguments(Size, Memory), InheritedEnvironment({"PATH", "HOME", "TMPDIR"})) {
    std::optional<std::string> number;
    WaitUntil([&] {
        number = FindNumber(Server.Output());
        return number || !Server.IsRunning();
    });
    if (!number) {
        throw std::runtime_error("Xvfb did not start. It says:\n" + Server.Output());
    }
    DisplayName = ":" + *number;
}

const std::string &VirtualDisplay::Name() const {
    return DisplayName;
}

ScreenSize VirtualDisplay::Size() const {
    return Screen;
}

std::optional<int> VirtualDisplay::SharedMemory() const {
    const std::string said = Server.Output();
    const std::size_t line = said.find(MemoryLine);
    return line != std::string::npos ? std::optional(std::stoi(said.substr(line + MemoryLine.size())))
                                     : std::nullopt;
}
