#pragma once

#include "state/MenuRows.hpp"

#include <cstdint>

// The keys of the menus, as SDL scancodes. They are fixed: rebinding does not touch them.

inline constexpr std::int32_t ScancodeA = 4;
inline constexpr std::int32_t ScancodeD = 7;
inline constexpr std::int32_t ScancodeS = 22;
inline constexpr std::int32_t ScancodeW = 26;
inline constexpr std::int32_t ScancodeReturn = 40;
inline constexpr std::int32_t ScancodeEscape = 41;
inline constexpr std::int32_t ScancodeBackspace = 42;
inline constexpr std::int32_t ScancodeSpace = 44;
inline constexpr std::int32_t ScancodeDelete = 76;
inline constexpr std::int32_t ScancodeRight = 79;
inline constexpr std::int32_t ScancodeLeft = 80;
inline constexpr std::int32_t ScancodeDown = 81;
inline constexpr std::int32_t ScancodeUp = 82;
inline constexpr std::int32_t ScancodeKeypadEnter = 88;

constexpr bool IsKeyUp(std::int32_t Scancode) {
    return Scancode == ScancodeUp || Scancode == ScancodeW;
}

constexpr bool IsKeyDown(std::int32_t Scancode) {
    return Scancode == ScancodeDown || Scancode == ScancodeS;
}

constexpr bool IsKeyLeft(std::int32_t Scancode) {
    return Scancode == ScancodeLeft || Scancode == ScancodeA;
}

constexpr bool IsKeyRight(std::int32_t Scancode) {
    return Scancode == ScancodeRight || Scancode == ScancodeD;
}

/// The two Return keys.
constexpr bool IsKeyEnter(std::int32_t Scancode) {
    return Scancode == ScancodeReturn || Scancode == ScancodeKeypadEnter;
}

constexpr bool IsKeyActivate(std::int32_t Scancode) {
    return IsKeyEnter(Scancode) || Scancode == ScancodeSpace;
}

/// The keys that unbind a row while its capture runs.
constexpr bool IsKeyClear(std::int32_t Scancode) {
    return Scancode == ScancodeDelete || Scancode == ScancodeBackspace;
}

constexpr bool IsKeyEscape(std::int32_t Scancode) {
    return Scancode == ScancodeEscape;
}

/// Moves a selection among Count rows by the keys for up and down, round the ends. False for any other key.
template <typename Index> constexpr bool MoveSelection(Index &Selection, Index Count, std::int32_t Scancode) {
    if (IsKeyUp(Scancode)) {
        Selection = StepRound(Selection, -1, Count);
    } else if (IsKeyDown(Scancode)) {
        Selection = StepRound(Selection, 1, Count);
    } else {
        return false;
    }
    return true;
}
