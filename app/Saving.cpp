#include "app/Saving.hpp"

#include "state/GameState.hpp"
#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"

#include <SDL3/SDL.h>

#include <algorithm>

namespace {

constexpr float RetrySeconds = 1.0F;

} // namespace

void SaveOptionsIfDirty(GameState &State, StateWriter Write) {
    if (!State.OptionsDirty) {
        return;
    }
    if (Write(State)) {
        State.OptionsDirty = false;
    } else {
        SDL_Log("Failed to write options config: %s", OptionsFileName);
    }
}

void SaveTick(GameState &State, float DeltaSeconds, StateWriter Write) {
    if (!State.SaveRequested) {
        return;
    }
    State.SaveDelay = std::max(State.SaveDelay - std::max(DeltaSeconds, 0.0F), 0.0F);
    if (State.SaveDelay > 0.0F) {
        return;
    }
    if (Write(State)) {
        State.SaveRequested = false;
        State.SaveDelay = 0.0F;
    } else {
        SDL_Log("Failed to write save state: %s", SaveStateFileName);
        State.SaveDelay = RetrySeconds;
    }
}
