#include "state/RefreshRates.hpp"

#include "state/GameState.hpp"
#include "state/Lists.hpp"
#include "state/Resolutions.hpp"

void RebuildRefreshRates(GameState &State) {
    const std::int32_t wanted = std::max(State.RefreshRate, 0);
    State.RefreshRates.assign(1, 0);
    if (State.Fullscreen) {
        const Resolution current = CurrentResolution(State);
        for (const DisplayMode &mode : State.DisplayModes) {
            if (mode.Width == current.Width && mode.Height == current.Height && mode.Hz > 0) {
                AppendNew(State.RefreshRates, mode.Hz);
            }
        }
        std::sort(State.RefreshRates.begin() + 1, State.RefreshRates.end());
    }
    State.RefreshRate = Contains(State.RefreshRates, wanted) ? wanted : 0;
}
