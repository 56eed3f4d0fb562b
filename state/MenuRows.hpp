#pragma once

#include <cstdint>

// The rows of the menus, in the order in which they stand.

/// The first row is there only while there is a run to continue.
enum class MainMenuRow : std::uint32_t { ContinueGame, NewGame, Options, Help, Credits, Quit };

enum class PauseRow : std::int32_t { Resume, Options, Help, MainMenu };

enum class OptionsMainRow : std::int32_t { Controls, Graphics, Audio, Back };

/// Five rows of the binding table that is shown stand between the device and the rest.
enum class ControlsRow : std::int32_t {
    Device = 0,
    FirstBinding = 1,
    DefaultSettings = 6,
    Apply = 7,
    Revert = 8,
    Back = 9,
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

inline constexpr std::int32_t PauseRowCount = 4;
inline constexpr std::int32_t OptionsMainRowCount = 4;
inline constexpr std::int32_t ControlsRowCount = 10;
inline constexpr std::int32_t GraphicsRowCount = 9;
inline constexpr std::int32_t AudioRowCount = 10;

constexpr std::uint32_t MainMenuRowCount(bool HasRunState) {
    return HasRunState ? 6 : 5;
}

/// What stands in a row of the main menu; Index is below MainMenuRowCount.
constexpr MainMenuRow MainMenuRowAt(std::uint32_t Index, bool HasRunState) {
    return static_cast<MainMenuRow>(HasRunState ? Index : Index + 1);
}

/// The row above and the row below one of Count rows; both go round the ends.
template <typename Index> constexpr Index RowAbove(Index Selection, Index Count) {
    return (Selection + Count - 1) % Count;
}

template <typename Index> constexpr Index RowBelow(Index Selection, Index Count) {
    return (Selection + 1) % Count;
}

/// The place before (Direction -1) or behind (1) one of Count places, round the ends.
constexpr std::int32_t StepRound(std::int32_t Place, std::int32_t Direction, std::int32_t Count) {
    return (Place + Direction + Count) % Count;
}
