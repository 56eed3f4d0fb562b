#pragma once

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

#include <initializer_list>

// Events that a test puts into SDL's queue by hand, behind those that are there.

inline void PushEvent(SDL_Event Event) {
    ASSERT_TRUE(SDL_PushEvent(&Event)) << SDL_GetError();
}

inline void PushEvent(Uint32 Type) {
    SDL_Event event{};
    event.type = Type;
    PushEvent(event);
}

/// A key goes down, or, as a repeat, is held.
inline void PushKey(SDL_Scancode Scancode, bool Repeat = false) {
    SDL_Event event{};
    event.type = SDL_EVENT_KEY_DOWN;
    event.key.scancode = Scancode;
    event.key.down = true;
    event.key.repeat = Repeat;
    PushEvent(event);
}

/// Keys go down, one after the other.
inline void PushKeys(std::initializer_list<SDL_Scancode> Scancodes) {
    for (const SDL_Scancode scancode : Scancodes) {
        PushKey(scancode);
    }
}

/// Empties the queue.
inline void ForgetEvents() {
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}
