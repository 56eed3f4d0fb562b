#pragma once

// The keys that are pressed for the game, by their X key symbols.
enum class Key : unsigned long {
    Space = 0x0020,
    A = 0x0061,
    D = 0x0064,
    F = 0x0066,
    S = 0x0073,
    W = 0x0077,
    X = 0x0078,
    Backspace = 0xFF08,
    Return = 0xFF0D,
    Escape = 0xFF1B,
    Left = 0xFF51,
    Up = 0xFF52,
    Right = 0xFF53,
    Down = 0xFF54,
    KeypadEnter = 0xFF8D,
    LeftControl = 0xFFE3,
    Delete = 0xFFFF,
};
