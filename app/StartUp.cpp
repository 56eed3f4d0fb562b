#include "app/StartUp.hpp"

#include "app/Program.hpp"
#include "app/TakeDown.hpp"
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
    SDL_SetAppMetadata(GameName, KESTREL_VERSION, nullptr); // for the system's list of what plays sound
    // No audio here: the mixer brings it up by itself.
    if (!SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD)) {
        SDL_Log("SDL_Init failed: %s", SDL_GetError());
        return false;
    }
    return true;
}

void FillDefaults(GameState &State) {
    State = GameState{};
    State.Rng.seed(std::random_device{}());
}

bool CreateWindow(Program &Program) {
    const GameState &state = Program.State;
    const Resolution size = CurrentResolution(state);
    ComputeLogicalWidth(state.AspectMode, size.Width, size.Height);
    const SDL_WindowFlags flags = state.Fullscreen ? SDL_WINDOW_FULLSCREEN : 0;
    Program.Window = SDL_CreateWindow(WindowTitle, std::max(size.Width, 1), std::max(size.Height, 1), flags);
    if (Program.Window == nullptr) {
        SDL_Log("SDL_CreateWindow failed: %s", SDL_GetError());
        SDL_Quit();
        return false;
    }
    return true;
}

bool CreateRenderer(Program &Program) {
    Program.Renderer = SDL_CreateRenderer(Program.Window, nullptr);
    if (Program.Renderer == nullptr) {
        SDL_Log("SDL_CreateRenderer failed: %s", SDL_GetError());
        TakeDownWindow(Program);
        return false;
    }
    SDL_SetRenderDrawBlendMode(Program.Renderer, SDL_BLENDMODE_BLEND);
    SDL_SetWindowResizable(Program.Window, false);
    ApplyLogicalPresentation(Program.Window, Program.Renderer);
    return true;
}

bool CreateAtlas(Program &Program) {
    if (!BuildTextureAtlas(Program.Renderer)) {
        SDL_Log("BuildTextureAtlas failed: %s", SDL_GetError());
        TakeDownRenderer(Program);
        return false;
    }
    return true;
}

void DressWindow(Program &Program) {
    if (!SetWindowIconFromAtlas(Program.Window, Program.Renderer)) {
        SDL_Log("SetWindowIconFromAtlas failed: %s", SDL_GetError());
    }
    SDL_HideCursor();
}

void WriteFirstOptions(Program &Program) {
    if (!Program.Writers.SaveOptions(Program.State)) {
        SDL_Log("Failed to create default options config: %s", OptionsFileName);
    }
}

/// A wanted language that is gone has changed the options.
void StartLanguage(GameState &State) {
    const std::string wanted = State.Language;
    LoadLanguage(State);
    if (State.Language != wanted) {
        State.OptionsDirty = true;
    }
}

/// Without a usable save state there is no run and no high score, and the first frame writes a clean file.
void RestoreGame(GameState &State) {
    if (!LoadSaveState(State)) {
        RequestSave(State, 0.0F);
    }
}

void StartAudio(Program &Program) {
    if (!InitMusicRuntime(Program.State, Program.Music)) {
        SDL_Log("Music runtime unavailable; game will run without music");
    }
    UpdateMusicRuntime(Program.State, Program.Music); // the menu's music runs before the first frame
}

} // namespace

bool StartUp(Program &Program) {
    if (!InitSdl()) {
        return false;
    }
    FillDefaults(Program.State);
    const bool configExisted = LoadOptions(Program.State);
    if (!configExisted) {
        UseDesktopSize(Program.State);
    }
    if (!CreateWindow(Program) || !CreateRenderer(Program) || !CreateAtlas(Program)) {
        return false;
    }
    DressWindow(Program);
    RebuildDisplayLists(Program.State, Program.Window);
    if (!configExisted) {
        WriteFirstOptions(Program);
    }
    StartLanguage(Program.State);
    RestoreGame(Program.State);
    Program.Devices = InputDevices{};
    OpenFirstInputDevices(Program.Devices);
    ApplyDisplaySettings(Program.State, Program.Window, Program.Renderer);
    StartAudio(Program);
    Program.LastFrameTicks = SDL_GetTicks();
    return true;
}
