#pragma once

#include <cstdint>

// The rows of the menus, in the order in which they stand.

/// The first row is there only while there is a run to continue.
enum class MainMenuRow : std::uint32_t { ContinueGame, NewGame, Options, Help, Credits, Quit };

enum class PauseRow : std::int32_t { Resume, Options, Help, MainMenu };

enum class OptionsMainRow : std::int32_t { Controls, Graphics, Audio, Back };

constexpr std::int32_t PauseRowCount = 4;
constexpr std::int32_t OptionsMainRowCount = 4;

constexpr std::uint32_t MainMenuRowCount(bool HasRunState) {
    return HasRunState ? 6 : 5;
}

/// What stands in a row of the main menu; Index is below MainMenuRowCount.
constexpr MainMenuRow MainMenuRowAt(std::uint32_t Index, bool HasRunState) {
    return static_cast<MainMenuRow>(HasRunState ? Index : Index + 1);
}

/// The row above and the row below one of Count rows; both go round the ends.
template <typename Row> constexpr Row RowAbove(Row Selection, Row Count) {
    return (Selection + Count - 1) % Count;
}

template <typename Row> constexpr Row RowBelow(Row Selection, Row Count) {
    return (Selection + 1) % Count;
}
