#include "state/RefreshRates.hpp"

#include "state/GameState.hpp"
#include "state/Lists.hpp"
#include "state/Resolutions.hpp"

#include <algorithm>

void RebuildRefreshRates(GameState &State) {
    const std::int32_t wanted = std::max(State.RefreshRate, 0);
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
    State.RefreshRate = Contains(State.RefreshRates, wanted) ? wanted : 0;
}
