#include "options/Presentation.hpp"

#include "sim/Lanes.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "state/Resolutions.hpp"

namespace {

template <typename Thing> void ShiftThings(std::vector<Thing> &Things, float Delta) {
    for (Thing &thing : Things) {
        thing.X += Delta;
    }
}

/// Sets LogicalWidth by the shape of a resolution and moves all that is on the road along with it.
void ChangeLogicalWidth(GameState &State, const Resolution &Size) {
    const std::int32_t old = LogicalWidth;
    ComputeLogicalWidth(State.AspectMode, Size.Width, Size.Height);
    if (old <= 0 || LogicalWidth <= 0 || old == LogicalWidth) {
        return;
    }
    const float delta = static_cast<float>(LogicalWidth) * 0.5F - static_cast<float>(old) * 0.5F;
    SnapToLanes(State);
    ShiftThings(State.Bullets, delta);
    ShiftThings(State.EnemyBullets, delta);
    ShiftThings(State.Explosions, delta);
}

void EnterFullscreen(SDL_Window *Window, bool WasFullscreen) {
    // With a null mode the window is a borderless one that covers the desktop.
    // NOT-BUGS: In fullscreen the resolution only chooses the shape of the picture
    // NOT-BUGS: The refresh rate is kept and never used
    if (!SDL_SetWindowFullscreenMode(Window, nullptr)) {
        SDL_Log("SDL_SetWindowFullscreenMode(borderless) failed: %s", SDL_GetError());
    }
    if (!WasFullscreen && !SDL_SetWindowFullscreen(Window, true)) {
        SDL_Log("SDL_SetWindowFullscreen(true) failed: %s", SDL_GetError());
    }
}

void EnterWindowed(SDL_Window *Window, bool WasFullscreen, const Resolution &Size) {
    if (WasFullscreen && !SDL_SetWindowFullscreen(Window, false)) {
        SDL_Log("SDL_SetWindowFullscreen(false) failed: %s", SDL_GetError());
    }
    if (!SDL_SetWindowSize(Window, Size.Width, Size.Height)) {
        SDL_Log("SDL_SetWindowSize(%d, %d) failed: %s", Size.Width, Size.Height, SDL_GetError());
    }
    // A window that was not fullscreen keeps its place.
    if (WasFullscreen && !SDL_SetWindowPosition(Window, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED)) {
        SDL_Log("SDL_SetWindowPosition(centered) failed: %s", SDL_GetError());
    }
}

void ApplyWindowMode(const GameState &State, SDL_Window *Window, const Resolution &Size) {
    const bool wasFullscreen = (SDL_GetWindowFlags(Window) & SDL_WINDOW_FULLSCREEN) != 0;
    if (State.Fullscreen) {
        EnterFullscreen(Window, wasFullscreen);
    } else {
        EnterWindowed(Window, wasFullscreen, Size);
    }
}

void ApplyVSync(GameState &State, SDL_Renderer *Renderer) {
    const int wanted = State.VSync ? 1 : 0;
    if (!SDL_SetRenderVSync(Renderer, wanted)) {
        SDL_Log("SDL_SetRenderVSync(%d) failed: %s", wanted, SDL_GetError());
    }
    int actual = 0;
    const bool known = SDL_GetRenderVSync(Renderer, &actual);
    if (!known) {
        SDL_Log("SDL_GetRenderVSync failed: %s", SDL_GetError());
    }
    State.VSyncActive = known && actual != 0;
}

} // namespace

void ApplyLogicalPresentation(SDL_Window *Window, SDL_Renderer *Renderer) {
    if (Window == nullptr) {
        return;
    }
    if (!SDL_SetRenderLogicalPresentation(
            Renderer, LogicalWidth, LogicalHeight, SDL_LOGICAL_PRESENTATION_LETTERBOX)) {
        SDL_Log("SDL_SetRenderLogicalPresentation failed: %s", SDL_GetError());
    }
}

void ApplyDisplaySettings(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer) {
    if (Window == nullptr) {
        return;
    }
    const Resolution size = CurrentResolution(State);
    ChangeLogicalWidth(State, size);
    ApplyWindowMode(State, Window, size);
    ApplyVSync(State, Renderer);
    ApplyLogicalPresentation(Window, Renderer);
    State.ResetFrameClock = true;
}
