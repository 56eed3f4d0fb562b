#include "options/Desktop.hpp"

#include "options/Displays.hpp"
#include "state/GameState.hpp"
#include "state/Resolutions.hpp"

#include <SDL3/SDL.h>

namespace {

/// Whether there is a mode and it tells a size.
bool HasSize(const SDL_DisplayMode *Mode) {
    return Mode != nullptr && Mode->w > 0 && Mode->h > 0;
}

SDL_DisplayID PrimaryOrFirstDisplay() {
    const SDL_DisplayID primary = SDL_GetPrimaryDisplay();
    return primary != 0 ? primary : FirstDisplay();
}

/// The desktop's mode, or the current one where the desktop's tells no size; null if neither does.
const SDL_DisplayMode *DesktopModeOf(SDL_DisplayID Display) {
    const SDL_DisplayMode *mode = SDL_GetDesktopDisplayMode(Display);
    if (!HasSize(mode)) {
        mode = SDL_GetCurrentDisplayMode(Display);
    }
    return HasSize(mode) ? mode : nullptr;
}

} // namespace

void UseDesktopSize(GameState &State) {
    const SDL_DisplayID display = PrimaryOrFirstDisplay();
    if (display == 0) {
        return;
    }
    const SDL_DisplayMode *mode = DesktopModeOf(display);
    if (mode == nullptr) {
        return;
    }
    State.AspectMode = RatioMatches(mode->w, mode->h, 4, 3) ? AspectClassic4x3 : AspectWidescreen;
    State.Resolutions = {Resolution{mode->w, mode->h}};
    State.ResolutionIndex = 0;
    ComputeLogicalWidth(State.AspectMode, mode->w, mode->h);
}
