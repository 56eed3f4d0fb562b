#include "app/StartUp.hpp"

#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "audio/Runtime.hpp"
#include "audio/Transport.hpp"
#include "gfx/Atlas.hpp"
#include "options/Desktop.hpp"
#include "options/Displays.hpp"
#include "options/Presentation.hpp"
#include "state/Resolutions.hpp"
#include "state/SaveRequest.hpp"
#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"
#include "text/Languages.hpp"

#include <algorithm>
#include <random>

namespace {

constexpr const char *GameName = "Kestrel Volley";
constexpr const char *WindowTitle = "Kestrel Volley v" KESTREL_VERSION;

bool InitSdl() {
    // The system's list of what plays sound shows this name.
    SDL_SetAppMetadata(GameName, KESTREL_VERSION, nullptr);
    // No audio here: the mixer brings it up by itself.
    if (!SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD)) {
        SDL_Log("SDL_Init failed: %s", SDL_GetError());
        return false;
    }
    return true;
}

void FillDefaultsAndSeed(GameState &State) {
    State = GameState{};
    State.Rng.seed(std::random_device{}());
}

bool CreateWindow(Program &Game) {
    const GameState &state = Game.State;
    const Resolution size = CurrentResolution(state);
    ComputeLogicalWidth(state.AspectMode, size.Width, size.Height);
    const SDL_WindowFlags flags = state.Fullscreen ? SDL_WINDOW_FULLSCREEN : 0;
    Game.Window = SDL_CreateWindow(WindowTitle, std::max(size.Width, 1), std::max(size.Height, 1), flags);
    if (Game.Window == nullptr) {
        SDL_Log("SDL_CreateWindow failed: %s", SDL_GetError());
        return false;
    }
    return true;
}

bool CreateRenderer(Program &Game) {
    Game.Renderer = SDL_CreateRenderer(Game.Window, nullptr);
    if (Game.Renderer == nullptr) {
        SDL_Log("SDL_CreateRenderer failed: %s", SDL_GetError());
        return false;
    }
    SDL_SetRenderDrawBlendMode(Game.Renderer, SDL_BLENDMODE_BLEND);
    SDL_SetWindowResizable(Game.Window, false);
    ApplyLogicalPresentation(Game.Window, Game.Renderer);
    return true;
}

bool CreateAtlas(const Program &Game) {
    if (!BuildTextureAtlas(Game.Renderer)) {
        SDL_Log("BuildTextureAtlas failed: %s", SDL_GetError());
        return false;
    }
    return true;
}

void SetIcon(const Program &Game) {
    if (!SetWindowIconFromAtlas(Game.Window, Game.Renderer)) {
        SDL_Log("SetWindowIconFromAtlas failed: %s", SDL_GetError());
    }
}

/// A first launch leaves a whole file to edit. It is tried once.
void WriteFirstOptions(const Program &Game) {
    if (!Game.Writers.SaveOptions(Game.State)) {
        SDL_Log("Failed to create default options config: %s", OptionsFileName);
    }
}

/// Without the wanted language another one is loaded and becomes the option, which the first frame writes.
void StartLanguage(GameState &State) {
    const std::string wanted = State.Language;
    LoadLanguage(State);
    if (State.Language != wanted) {
        State.OptionsDirty = true;
    }
}

/// Without a usable save state there is no run and no high score, and the first frame writes a new file.
void RestoreGame(GameState &State) {
    if (!LoadSaveState(State)) {
        RequestSave(State, 0.0F);
    }
}

void StartAudio(Program &Game) {
    if (!InitMusicRuntime(Game.State, Game.Music)) {
        SDL_Log("Music runtime unavailable; game will run without music");
    }
    // The menu's music runs before the first frame.
    UpdateMusicRuntime(Game.State, Game.Music);
}

} // namespace

bool StartUp(Program &Game) {
    if (!InitSdl()) {
        return false;
    }
    FillDefaultsAndSeed(Game.State);
    const bool configExisted = LoadOptions(Game.State);
    if (!configExisted) {
        UseDesktopSize(Game.State);
    }
    if (!CreateWindow(Game) || !CreateRenderer(Game) || !CreateAtlas(Game)) {
        TakeDown(Game);
        return false;
    }
    SetIcon(Game);
    SDL_HideCursor();
    RebuildDisplayLists(Game.State, Game.Window);
    if (!configExisted) {
        WriteFirstOptions(Game);
    }
    StartLanguage(Game.State);
    RestoreGame(Game.State);
    // New like the state above: devices and latches of an earlier start mean nothing now.
    Game.Devices = InputDevices{};
    OpenFirstInputDevices(Game.Devices);
    ApplyDisplaySettings(Game.State, Game.Window, Game.Renderer);
    StartAudio(Game);
    Game.LastFrameTicks = SDL_GetTicks();
    return true;
}
