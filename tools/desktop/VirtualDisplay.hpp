#pragma once

#include "tools/desktop/ChildProcess.hpp"

#include <optional>
#include <string>

struct ScreenSize {
    int Width = 1280;
    int Height = 720;
};

// Whose memory holds what the screen shows: the server's own, or one that a SharedScreen can look into.
enum class ScreenMemory { Own, Shared };

// An X server of our own that draws into memory, with one screen of 24 bits a pixel and no window manager.
class VirtualDisplay {
public:
    // Starts Xvfb on a free display number. Throws std::runtime_error if Xvfb is missing, ends, or is not
    // ready in time.
    explicit VirtualDisplay(ScreenSize Size, ScreenMemory Memory = ScreenMemory::Own);

    // What a client puts into DISPLAY, such as ":7".
    const std::string &Name() const;
    ScreenSize Size() const;
    // The system's number of the memory that is shared; nothing if none is.
    std::optional<int> SharedMemory() const;

private:
    ScreenSize Screen;
    ChildProcess Server;
    std::string DisplayName;
};
