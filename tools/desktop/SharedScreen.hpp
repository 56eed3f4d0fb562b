#pragma once

#include "tools/desktop/VirtualDisplay.hpp"

#include <cstdint>

// Looks at the screen of a display with shared memory, without asking the server for it: a look takes some
// microseconds and keeps nobody from drawing.
class SharedScreen {
public:
    // Throws std::runtime_error if the display shares no memory.
    explicit SharedScreen(const VirtualDisplay &Display);
    ~SharedScreen();
    SharedScreen(const SharedScreen &) = delete;
    SharedScreen &operator=(const SharedScreen &) = delete;

    // Whether anything but black is in any of the rows that are looked at, one of sixteen. An empty screen is
    // black.
    bool ShowsAnything() const;

private:
    void *Memory = nullptr;
    const std::uint32_t *Pixels = nullptr;
    ScreenSize Size;
};
