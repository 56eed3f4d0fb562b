#pragma once

#include "state/GameState.hpp"

#include <array>
#include <limits>
#include <span>

// What the options file holds beside the few values that have rules of their own, section by section.

/// The sections beside those of the bindings.
inline constexpr const char *OptionsSection = "Options";
inline constexpr const char *GraphicsSection = "Graphics";
inline constexpr const char *AudioSection = "Audio";

/// A word for each value of an enumeration, from 0 on.
inline constexpr std::array<const char *, 3> ControlsDeviceWords{"keyboard", "gamepad", "joystick"};
inline constexpr std::array<const char *, 2> AspectModeWords{"widescreen", "classic4x3"};

inline constexpr std::array<const char *, 5> KeyboardKeys{"MoveLeft", "MoveRight", "Fire", "Bomb", "Heal"};
inline constexpr std::array<const char *, 5> PadKeys{"Fire", "Bomb", "Heal", "Confirm", "Back"};

/// One binding table: its rows' keys and the values that are taken, the one for unbound among them.
struct BindingSection {
    const char *Name;
    BindingTable GameState::*Table;
    std::span<const char *const, 5> Keys;
    std::int32_t Lowest;
    std::int32_t Highest;
};

inline constexpr std::array<BindingSection, 3> BindingSections{{
    {"ControlsKeyboard", &GameState::KeyboardBindings, KeyboardKeys, UnboundKey, LastScancode},
    {"ControlsGamepad", &GameState::GamepadBindings, PadKeys, UnboundButton, LastGamepadButton},
    {"ControlsJoystick", &GameState::JoystickBindings, PadKeys, UnboundButton,
        std::numeric_limits<std::int32_t>::max()},
}};

struct SwitchOption {
    const char *Key;
    bool GameState::*Value;
};

inline constexpr std::array<SwitchOption, 2> GraphicsSwitches{{
    {"Fullscreen", &GameState::Fullscreen},
    {"VSync", &GameState::VSync},
}};

inline constexpr std::array<SwitchOption, 2> AudioSwitches{{
    {"MusicEnabled", &GameState::MusicEnabled},
    {"SfxEnabled", &GameState::SfxEnabled},
}};

struct VolumeOption {
    const char *Key;
    std::int32_t GameState::*Percent;
};

inline constexpr std::array<VolumeOption, 3> Volumes{{
    {"MasterVolume", &GameState::MasterVolume},
    {"MusicVolume", &GameState::MusicVolume},
    {"SfxVolume", &GameState::SfxVolume},
}};

inline constexpr const char *ControlsDeviceKey = "ControlsDevice";
inline constexpr const char *LanguageKey = "Language";
inline constexpr const char *WidthKey = "ResolutionWidth";
inline constexpr const char *HeightKey = "ResolutionHeight";
inline constexpr const char *AspectModeKey = "AspectMode";
inline constexpr const char *RefreshRateKey = "RefreshRate";
