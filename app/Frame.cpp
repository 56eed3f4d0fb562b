#include "app/Frame.hpp"

#include "app/Events.hpp"
#include "app/Program.hpp"
#include "gfx/World.hpp"
#include "input/Polling.hpp"
#include "sim/Step.hpp"

#include <algorithm>

namespace {

void AdvanceCredits(GameState &State, float DeltaSeconds) {
    State.CreditsScroll += CreditsScrollSpeed * DeltaSeconds;
    if (State.CreditsScroll > CreditsScrollEnd) {
        State.CreditsScroll = 0.0F;
        State.Screen = ScreenMainMenu;
    }
}

void Simulate(Program &Program, float DeltaSeconds) {
    GameState &state = Program.State;
    const bool *keyboardState = SDL_GetKeyboardState(nullptr);
    if (state.Screen == ScreenPlaying) {
        const StepInput input = PollGameplayInput(state, keyboardState, Program.Devices);
        SimulationStep(state, DeltaSeconds, input);
    } else if (state.Screen == ScreenCredits) {
        AdvanceCredits(state, DeltaSeconds);
    }
}

void DrawScreen(SDL_Renderer *Renderer, const GameState &State) {
    switch (State.Screen) {
    case ScreenPlaying:
    case ScreenPaused:
    case ScreenGameOver:
        RenderGameplay(Renderer, State);
        break;
    default:
        break;
    }
}

void Present(SDL_Renderer *Renderer, const GameState &State) {
    SDL_SetRenderDrawColor(Renderer, 0, 0, 0, 255);
    SDL_RenderClear(Renderer);
    DrawScreen(Renderer, State);
    SDL_RenderPresent(Renderer);
}

/// Sleeps out the rest of a short frame, unless the present call paces the loop.
void CapFrame(const GameState &State, Uint64 FrameStartTicks) {
    const Uint64 elapsed = SDL_GetTicks() - FrameStartTicks;
    if (!State.VSyncActive && elapsed < MinFrameMilliseconds) {
        SDL_Delay(static_cast<Uint32>(MinFrameMilliseconds - elapsed));
    }
}

} // namespace

float DeltaSecondsBetween(Uint64 LastFrameTicks, Uint64 Now) {
    return std::min(static_cast<float>(Now - LastFrameTicks) / 1000.0F, MaxDeltaSeconds);
}

void RunFrame(Program &Program) {
    GameState &state = Program.State;
    const Uint64 frameStartTicks = SDL_GetTicks();
    DrainEvents(Program);
    SaveOptionsIfDirty(state, Program.Writers.SaveOptions);
    const Uint64 now = SDL_GetTicks();
    if (state.ResetFrameClock) {
        state.ResetFrameClock = false;
        Program.LastFrameTicks = now;
    }
    const float deltaSeconds = DeltaSecondsBetween(Program.LastFrameTicks, now);
    Simulate(Program, deltaSeconds);
    SaveTick(state, deltaSeconds, Program.Writers.WriteSaveState);
    Present(Program.Renderer, state);
    CapFrame(state, frameStartTicks);
    Program.LastFrameTicks = now; // a step is measured from here, the cap from the top of the frame
}
