#include "gfx/Clip.hpp"

ClipGuard::ClipGuard(SDL_Renderer *Renderer) : Target(Renderer), WasEnabled(SDL_RenderClipEnabled(Renderer)) {
    if (WasEnabled) {
        SDL_GetRenderClipRect(Renderer, &OldRect);
    }
}

ClipGuard::~ClipGuard() {
    SDL_SetRenderClipRect(Target, WasEnabled ? &OldRect : nullptr);
}
