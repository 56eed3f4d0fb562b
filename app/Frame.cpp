#include "app/Frame.hpp"

#include "app/Events.hpp"
#include "app/Program.hpp"
#include "audio/SfxVoices.hpp"
#include "audio/Transport.hpp"
#include "gfx/Credits.hpp"
#include "gfx/GameOverPanel.hpp"
#include "gfx/Help.hpp"
#include "gfx/MainMenu.hpp"
#include "gfx/OptionsPages.hpp"
#include "gfx/PausePanel.hpp"
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

void Simulate(Program &Game, float DeltaSeconds) {
    GameState &state = Game.State;
    const bool *keyboardState = SDL_GetKeyboardState(nullptr);
    if (state.Screen == ScreenPlaying) {
        const StepInput input = PollGameplayInput(state, keyboardState, Game.Devices);
        SimulationStep(state, DeltaSeconds, input);
    } else if (state.Screen == ScreenCredits) {
        AdvanceCredits(state, DeltaSeconds);
    }
}

void DrawScreen(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    switch (State.Screen) {
    case ScreenMainMenu:
        RenderMainMenu(Renderer, State);
        break;
    case ScreenOptions:
        RenderOptions(Renderer, State, Devices);
        break;
    case ScreenHelp:
        RenderHelp(Renderer, State, Devices);
        break;
    case ScreenPlaying:
        RenderGameplay(Renderer, State);
        break;
    case ScreenPaused:
        RenderGameplay(Renderer, State);
        RenderPauseOverlay(Renderer, State, Devices);
        break;
    case ScreenCredits:
        RenderCredits(Renderer, State);
        break;
    case ScreenGameOver:
        RenderGameplay(Renderer, State);
        RenderGameOverOverlay(Renderer, State, Devices);
        break;
    }
}

void Present(const Program &Game) {
    SDL_SetRenderDrawColor(Game.Renderer, 0, 0, 0, 255);
    SDL_RenderClear(Game.Renderer);
    DrawScreen(Game.Renderer, Game.State, Game.Devices);
    SDL_RenderPresent(Game.Renderer);
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

void RunFrame(Program &Game) {
    GameState &state = Game.State;
    const Uint64 frameStartTicks = SDL_GetTicks();
    DrainEvents(Game);
    SaveOptionsIfDirty(state, Game.Writers.SaveOptions);
    const Uint64 now = SDL_GetTicks();
    if (state.ResetFrameClock) {
        state.ResetFrameClock = false;
        Game.LastFrameTicks = now;
    }
    const float deltaSeconds = DeltaSecondsBetween(Game.LastFrameTicks, now);
    Simulate(Game, deltaSeconds);
    SaveTick(state, deltaSeconds, Game.Writers.WriteSaveState);
    UpdateMusicRuntime(state, Game.Music);
    PlayQueuedSfx(state, Game.Music);
    Present(Game);
    CapFrame(state, frameStartTicks);
    // The next step is measured from the clock of this one, the cap from the top of the frame.
    Game.LastFrameTicks = now;
}
