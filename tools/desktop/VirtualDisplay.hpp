#pragma once

#include "tools/desktop/ChildProcess.hpp"

#include <string>

struct ScreenSize {
    int Width = 1280;
    int Height = 720;
};

// An X server of our own that draws into memory, with one screen of 24 bits a pixel and no window manager.
class VirtualDisplay {
public:
    // Starts Xvfb on a free display number. Throws std::runtime_error if Xvfb is missing, ends, or is not
    // ready in time.
    explicit VirtualDisplay(ScreenSize Size);

    // What a client puts into DISPLAY, such as ":7".
    const std::string &Name() const;

private:
    ChildProcess Server;
    std::string DisplayName;
};
