#include "state/RefreshRates.hpp"

#include "state/GameState.hpp"
#include "state/Lists.hpp"
#include "state/Resolutions.hpp"

#include <algorithm>

void RebuildRefreshRates(GameState &State) {
    State.RefreshRates = {0};
    if (State.Fullscreen) {
        const Resolution current = CurrentResolution(State);
        for (const DisplayMode &mode : State.DisplayModes) {
            if (mode.Width == current.Width && mode.Height == current.Height && mode.Hz > 0) {
                AppendNew(State.RefreshRates, mode.Hz);
            }
        }
        std::ranges::sort(State.RefreshRates); // 0 stays in front
    }
    if (!Contains(State.RefreshRates, State.RefreshRate)) {
        State.RefreshRate = 0;
    }
}
