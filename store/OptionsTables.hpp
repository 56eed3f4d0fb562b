#pragma once

#include "state/GameState.hpp"

#include <array>
#include <limits>
#include <span>

// What the options file holds beside the few values that have rules of their own, section by section.

/// The sections beside those of the bindings.
constexpr const char *OptionsSection = "Options";
constexpr const char *GraphicsSection = "Graphics";
constexpr const char *AudioSection = "Audio";

/// A word for each value of an enumeration, from 0 on.
constexpr std::array<const char *, 3> ControlsDeviceWords{"keyboard", "gamepad", "joystick"};
constexpr std::array<const char *, 2> AspectModeWords{"widescreen", "classic4x3"};

constexpr std::array<const char *, 5> KeyboardKeys{"MoveLeft", "MoveRight", "Fire", "Bomb", "Heal"};
constexpr std::array<const char *, 5> PadKeys{"Fire", "Bomb", "Heal", "Confirm", "Back"};

/// One binding table: its rows' keys and the values that are taken, the one for unbound among them.
struct BindingSection {
    const char *Name;
    BindingTable GameState::*Table;
    std::span<const char *const, 5> Keys;
    std::int32_t Lowest;
    std::int32_t Highest;
};

constexpr std::array<BindingSection, 3> BindingSections{{
    {"ControlsKeyboard", &GameState::KeyboardBindings, KeyboardKeys, UnboundKey, LastScancode},
    {"ControlsGamepad", &GameState::GamepadBindings, PadKeys, UnboundButton, LastGamepadButton},
    {"ControlsJoystick", &GameState::JoystickBindings, PadKeys, UnboundButton,
        std::numeric_limits<std::int32_t>::max()},
}};

struct SwitchOption {
    const char *Key;
    bool GameState::*Value;
};

constexpr std::array<SwitchOption, 2> GraphicsSwitches{{
    {"Fullscreen", &GameState::Fullscreen},
    {"VSync", &GameState::VSync},
}};

constexpr std::array<SwitchOption, 2> AudioSwitches{{
    {"MusicEnabled", &GameState::MusicEnabled},
    {"SfxEnabled", &GameState::SfxEnabled},
}};

struct VolumeOption {
    const char *Key;
    std::int32_t GameState::*Percent;
};

constexpr std::array<VolumeOption, 3> Volumes{{
    {"MasterVolume", &GameState::MasterVolume},
    {"MusicVolume", &GameState::MusicVolume},
    {"SfxVolume", &GameState::SfxVolume},
}};

constexpr const char *ControlsDeviceKey = "ControlsDevice";
constexpr const char *LanguageKey = "Language";
constexpr const char *WidthKey = "ResolutionWidth";
constexpr const char *HeightKey = "ResolutionHeight";
constexpr const char *AspectModeKey = "AspectMode";
constexpr const char *RefreshRateKey = "RefreshRate";
