#include "tools/desktop/WindowManager.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <stdexcept>

namespace {

Environment ManagerEnvironment(const std::string &DisplayName, const std::filesystem::path &Home) {
    Environment variables = InheritedEnvironment({"PATH", "LD_LIBRARY_PATH"});
    variables["HOME"] = Home.string();
    variables["DISPLAY"] = DisplayName;
    return variables;
}

} // namespace

// The font is the one that the X server itself has; without borders a window stands where it is said to.
WindowManager::WindowManager(
    const std::string &DisplayName, const std::filesystem::path &Home, XClient &OnThatDisplay)
    : Manager("evilwm", {"--fn", "fixed", "--bw", "0"}, ManagerEnvironment(DisplayName, Home)) {
    WaitUntil([&] {
        return OnThatDisplay.HasWindowManager() || !Manager.IsRunning();
    });
    if (!OnThatDisplay.HasWindowManager()) {
        throw std::runtime_error("evilwm did not start. It says:\n" + Manager.Output());
    }
}
