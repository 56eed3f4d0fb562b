#pragma once

#include "state/Display.hpp"

#include <cstdint>

/// The pages of ScreenOptions.
enum OptionsPage : std::int32_t {
    OptionsPageMain = 0,
    OptionsPageControls = 1,
    OptionsPageGraphics = 2,
    OptionsPageAudio = 3,
};

/// The display options as they were last applied, while the Graphics page edits the live ones.
struct GraphicsSnapshot {
    std::int32_t Width = 1280;
    std::int32_t Height = 720;
    enum AspectMode AspectMode = AspectWidescreen;
    std::int32_t RefreshRate = 0;
    bool Fullscreen = true;
    bool VSync = true;

    bool operator==(const GraphicsSnapshot &) const = default;
};
