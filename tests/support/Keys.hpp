#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>

// The keys that menus listen to, as SDL's numbers: written down apart from the game's own table of them.

using Scancodes = std::initializer_list<std::int32_t>;

inline constexpr std::int32_t UpKey = 82;
inline constexpr std::int32_t DownKey = 81;
inline constexpr std::int32_t LeftKey = 80;
inline constexpr std::int32_t RightKey = 79;
inline constexpr std::int32_t EnterKey = 40;
inline constexpr std::int32_t SpaceBar = 44;
inline constexpr std::int32_t KeypadEnterKey = 88;
inline constexpr std::int32_t EscapeKey = 41;
inline constexpr std::int32_t DeleteKey = 76;
inline constexpr std::int32_t BackspaceKey = 42;
inline constexpr std::int32_t WKey = 26;
inline constexpr std::int32_t SKey = 22;
inline constexpr std::int32_t AKey = 4;
inline constexpr std::int32_t DKey = 7;

// Keys that mean the same, letters among them.

inline constexpr Scancodes UpKeys{UpKey, WKey};
inline constexpr Scancodes DownKeys{DownKey, SKey};
inline constexpr Scancodes LeftKeys{LeftKey, AKey};
inline constexpr Scancodes RightKeys{RightKey, DKey};
inline constexpr Scancodes ActivateKeys{EnterKey, SpaceBar, KeypadEnterKey};
inline constexpr Scancodes EnterKeys{EnterKey, KeypadEnterKey};
inline constexpr Scancodes ClearKeys{DeleteKey, BackspaceKey};
inline constexpr Scancodes LeaveKeys{EnterKey, KeypadEnterKey, EscapeKey}; ///< of a page of text

/// All that move, change or activate a row.
inline constexpr Scancodes RowKeys{
    UpKey, WKey, DownKey, SKey, LeftKey, AKey, RightKey, DKey, EnterKey, SpaceBar, KeypadEnterKey};

/// For random walks over menus: those that move and change things stand here more often than the others, the
/// last two mean nothing.
inline constexpr std::array WalkedKeys{UpKey, UpKey, UpKey, DownKey, DownKey, DownKey, DownKey, LeftKey,
    LeftKey, RightKey, RightKey, RightKey, EnterKey, EnterKey, EnterKey, SpaceBar, KeypadEnterKey, WKey, SKey,
    AKey, DKey, EscapeKey, DeleteKey, BackspaceKey, 11, 229};

/// Whether a menu listens to a key.
constexpr bool IsMenuKey(std::int32_t Scancode) {
    return Scancode == EscapeKey || std::ranges::find(RowKeys, Scancode) != RowKeys.end();
}
