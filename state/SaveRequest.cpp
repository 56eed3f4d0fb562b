#include "state/SaveRequest.hpp"

#include "state/GameState.hpp"

#include <algorithm>

void RequestSave(GameState &State, float DelaySeconds) {
    State.SaveRequested = true;
    if (DelaySeconds <= 0.0F) {
        State.SaveDelay = 0.0F;
    } else if (State.SaveDelay <= 0.0F) {
        // Meant: this also overtakes a zero mark that no save has met yet, so a new run is written with its
        // first delayed mark and not at once.
        State.SaveDelay = DelaySeconds;
    } else {
        State.SaveDelay = std::min(State.SaveDelay, DelaySeconds);
    }
}
