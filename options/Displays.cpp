#include "options/Displays.hpp"

#include "state/GameState.hpp"
#include "state/Lists.hpp"
#include "state/Numbers.hpp"
#include "state/RefreshRates.hpp"
#include "state/Resolutions.hpp"

#include <algorithm>
#include <memory>

namespace {

SDL_DisplayID DisplayOf(SDL_Window *Window) {
    const SDL_DisplayID display = Window != nullptr ? SDL_GetDisplayForWindow(Window) : 0;
    return display != 0 ? display : FirstDisplay();
}

/// A mode's rate in whole Hz, 0 where it tells none.
std::int32_t RoundedRate(const SDL_DisplayMode &Mode) {
    float rate = Mode.refresh_rate;
    if (Mode.refresh_rate_numerator > 0 && Mode.refresh_rate_denominator > 0) {
        rate = static_cast<float>(Mode.refresh_rate_numerator) /
               static_cast<float>(Mode.refresh_rate_denominator);
    }
    return std::max(RoundToInt(rate), 0);
}

void ListDisplayModes(GameState &State, SDL_DisplayID Display) {
    const std::unique_ptr<SDL_DisplayMode *, decltype(&SDL_free)> modes(
        SDL_GetFullscreenDisplayModes(Display, nullptr), SDL_free);
    for (SDL_DisplayMode **mode = modes.get(); mode != nullptr && *mode != nullptr; ++mode) {
        if ((*mode)->w > 0 && (*mode)->h > 0) {
            AppendNew(State.DisplayModes, DisplayMode{(*mode)->w, (*mode)->h, RoundedRate(**mode)});
        }
    }
}

void ListResolutions(GameState &State) {
    for (const DisplayMode &mode : State.DisplayModes) {
        if (ResolutionAllowed(State.AspectMode, mode.Width, mode.Height)) {
            AppendNew(State.Resolutions, Resolution{mode.Width, mode.Height});
        }
    }
    if (State.Resolutions.empty()) {
        const std::span<const Resolution> builtIn = BuiltInResolutions(State.AspectMode);
        State.Resolutions.assign(builtIn.begin(), builtIn.end());
    }
    std::sort(State.Resolutions.begin(), State.Resolutions.end());
}

} // namespace

SDL_DisplayID FirstDisplay() {
    const std::unique_ptr<SDL_DisplayID, decltype(&SDL_free)> displays(SDL_GetDisplays(nullptr), SDL_free);
    return displays != nullptr ? *displays : 0;
}

void RebuildDisplayLists(GameState &State, SDL_Window *Window) {
    const Resolution wanted = CurrentResolution(State);
    State.DisplayModes.clear();
    State.Resolutions.clear();
    const SDL_DisplayID display = DisplayOf(Window);
    if (display != 0) {
        ListDisplayModes(State, display);
    }
    ListResolutions(State);
    State.ResolutionIndex =
        FindResolutionIndex(State, wanted.Width, wanted.Height, DefaultResolutionIndex(State.AspectMode));
    RebuildRefreshRates(State);
}
