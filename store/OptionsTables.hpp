#pragma once

#include "state/GameState.hpp"

#include <array>
#include <limits>
#include <span>

// Config.ini, in the order in which it is written; every value stands in quotes:
//
//   [Options]           ControlsDevice: a word below; Language: a code, as "de"
//   [ControlsKeyboard]  an SDL scancode for each of KeyboardKeys, 0 is unbound
//   [ControlsGamepad]   an SDL gamepad button for each of PadKeys, -1 is unbound
//   [ControlsJoystick]  a button's number for each of PadKeys, -1 is unbound
//   [Graphics]          ResolutionWidth, ResolutionHeight in the units of SDL's windows; AspectMode: a word
//                       below; RefreshRate in Hz, 0 is automatic; and switches
//   [Audio]             volumes in percent, and switches
//
// A switch is written as 1 or 0 and read as ParseBoolWord has it.

/// The sections beside those of the bindings.
inline constexpr const char *OptionsSection = "Options";
inline constexpr const char *GraphicsSection = "Graphics";
inline constexpr const char *AudioSection = "Audio";

/// The keys that stand in no table below.
inline constexpr const char *ControlsDeviceKey = "ControlsDevice";
inline constexpr const char *LanguageKey = "Language";
inline constexpr const char *WidthKey = "ResolutionWidth";
inline constexpr const char *HeightKey = "ResolutionHeight";
inline constexpr const char *AspectModeKey = "AspectMode";
inline constexpr const char *RefreshRateKey = "RefreshRate";

/// A word for each value of an enumeration, from 0 on.
inline constexpr std::array ControlsDeviceWords{"keyboard", "gamepad", "joystick"};
inline constexpr std::array AspectModeWords{"widescreen", "classic4x3"};

inline constexpr std::array KeyboardKeys{"MoveLeft", "MoveRight", "Fire", "Bomb", "Heal"};
inline constexpr std::array PadKeys{"Fire", "Bomb", "Heal", "Confirm", "Back"};

/// A binding table: the keys of its rows, and the values that are taken, both ends and the unbound one
/// included.
struct BindingSection {
    const char *Name;
    BindingTable GameState::*Table;
    std::span<const char *const, BindingTable{}.size()> Keys;
    std::int32_t Lowest;
    std::int32_t Highest;
};

inline constexpr auto BindingSections = std::to_array<BindingSection>({
    {"ControlsKeyboard", &GameState::KeyboardBindings, KeyboardKeys, UnboundKey, LastScancode},
    {"ControlsGamepad", &GameState::GamepadBindings, PadKeys, UnboundButton, LastGamepadButton},
    {"ControlsJoystick", &GameState::JoystickBindings, PadKeys, UnboundButton,
        std::numeric_limits<std::int32_t>::max()},
});

struct SwitchOption {
    const char *Key;
    bool GameState::*Value;
};

inline constexpr auto GraphicsSwitches = std::to_array<SwitchOption>({
    {"Fullscreen", &GameState::Fullscreen},
    {"VSync", &GameState::VSync},
});

inline constexpr auto AudioSwitches = std::to_array<SwitchOption>({
    {"MusicEnabled", &GameState::MusicEnabled},
    {"SfxEnabled", &GameState::SfxEnabled},
});

struct VolumeOption {
    const char *Key;
    std::int32_t GameState::*Percent;
};

inline constexpr auto Volumes = std::to_array<VolumeOption>({
    {"MasterVolume", &GameState::MasterVolume},
    {"MusicVolume", &GameState::MusicVolume},
    {"SfxVolume", &GameState::SfxVolume},
});
