#pragma once

#include <SDL3/SDL.h>

/// Remembers the renderer's clip state and puts it back at the end of the block.
class ClipGuard {
public:
    explicit ClipGuard(SDL_Renderer *Renderer);
    ~ClipGuard();
    ClipGuard(const ClipGuard &) = delete;
    ClipGuard &operator=(const ClipGuard &) = delete;

private:
    SDL_Renderer *Target;
    bool WasEnabled;
    SDL_Rect OldRect{};
};
