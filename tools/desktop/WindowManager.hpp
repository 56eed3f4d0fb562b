#pragma once

#include "tools/desktop/ChildProcess.hpp"
#include "tools/desktop/XClient.hpp"

#include <filesystem>
#include <string>

// A plain window manager on a display of our own, so that windows can fill the screen and leave it again.
class WindowManager {
public:
    // Starts evilwm, with that home folder, and waits until it looks after the display. Throws
    // std::runtime_error if it is missing, ends, or is not ready in time.
    WindowManager(const std::string &DisplayName, const std::filesystem::path &Home, XClient &OnThatDisplay);

private:
    ChildProcess Manager;
};
