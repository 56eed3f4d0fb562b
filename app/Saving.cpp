#include "app/Saving.hpp"

#include "state/GameState.hpp"

#include <SDL3/SDL.h>

#include <algorithm>

namespace {

constexpr float RetrySeconds = 1.0F;

} // namespace

void SaveOptionsIfDirty(GameState &State, StateWriter SaveOptions) {
    if (SaveOptions == nullptr || !State.OptionsDirty) {
        return;
    }
    if (SaveOptions(State)) {
        State.OptionsDirty = false;
    } else {
        SDL_Log("Failed to write options config: %s", "Config.ini");
    }
}

void SaveTick(GameState &State, float DeltaSeconds, StateWriter WriteSaveState) {
    if (WriteSaveState == nullptr || !State.SaveRequested) {
        return;
    }
    State.SaveDelay = std::max(State.SaveDelay - std::max(DeltaSeconds, 0.0F), 0.0F);
    if (State.SaveDelay > 0.0F) {
        return;
    }
    if (WriteSaveState(State)) {
        State.SaveRequested = false;
        State.SaveDelay = 0.0F;
    } else {
        SDL_Log("Failed to write save state: %s", "SaveState.bin");
        State.SaveDelay = RetrySeconds;
    }
}
