#pragma once

#include <cstdint>

/// The pages of ScreenOptions.
enum OptionsPage : std::int32_t {
    OptionsPageMain = 0,
    OptionsPageControls = 1,
    OptionsPageGraphics = 2,
    OptionsPageAudio = 3,
};
