#pragma once

#include "state/Bindings.hpp"

#include <cstdint>
#include <tuple>
#include <type_traits>

// The rows of the menus, in the order in which they stand.

/// The first row is there only while there is a run to continue.
enum class MainMenuRow : std::uint32_t { ContinueGame, NewGame, Options, Help, Credits, Quit };

enum class PauseRow : std::int32_t { Resume, Options, Help, MainMenu };

enum class OptionsMainRow : std::int32_t { Controls, Graphics, Audio, Back };

/// The rows of the binding table that is shown stand between the device and the rest.
enum class ControlsRow : std::int32_t {
    Device,
    FirstBinding,
    DefaultSettings = FirstBinding + static_cast<std::int32_t>(std::tuple_size_v<BindingTable>),
    Apply,
    Revert,
    Back,
};

enum class GraphicsRow : std::int32_t {
    Resolution,
    AspectMode,
    RefreshRate,
    DisplayMode,
    VSync,
    DefaultSettings,
    Apply,
    Revert,
    Back,
};

enum class AudioRow : std::int32_t {
    MasterVolume,
    MusicVolume,
    SfxVolume,
    Music,
    Sfx,
    Language,
    DefaultSettings,
    Apply,
    Revert,
    Back,
};

/// How many rows a menu has, given its last one.
template <typename Row> constexpr std::int32_t RowCountUpTo(Row Last) {
    return static_cast<std::int32_t>(Last) + 1;
}

inline constexpr std::int32_t PauseRowCount = RowCountUpTo(PauseRow::MainMenu);
inline constexpr std::int32_t OptionsMainRowCount = RowCountUpTo(OptionsMainRow::Back);
inline constexpr std::int32_t ControlsRowCount = RowCountUpTo(ControlsRow::Back);
inline constexpr std::int32_t GraphicsRowCount = RowCountUpTo(GraphicsRow::Back);
inline constexpr std::int32_t AudioRowCount = RowCountUpTo(AudioRow::Back);

constexpr std::uint32_t MainMenuRowCount(bool HasRunState) {
    return static_cast<std::uint32_t>(MainMenuRow::Quit) + (HasRunState ? 1 : 0);
}

/// What stands in a row of the main menu; Index is below MainMenuRowCount.
constexpr MainMenuRow MainMenuRowAt(std::uint32_t Index, bool HasRunState) {
    return static_cast<MainMenuRow>(HasRunState ? Index : Index + 1);
}

/// The place before (Direction -1) or behind (1) one of Count places, 0 to Count - 1; it goes round the ends.
template <typename Index>
constexpr Index StepRound(std::type_identity_t<Index> Place, std::int32_t Direction, Index Count) {
    return (Place + Count + static_cast<Index>(Direction)) % Count;
}
