#pragma once

#include "app/Saving.hpp"
#include "audio/MusicRuntime.hpp"
#include "input/Devices.hpp"
#include "state/GameState.hpp"
#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"

#include <SDL3/SDL.h>

/// What the main program owns, a single instance from start-up to the end of the process. Window and renderer
/// are null while there are none.
struct Program {
    GameState State;
    MusicRuntime Music;
    InputDevices Devices;
    SDL_Window *Window = nullptr;
    SDL_Renderer *Renderer = nullptr;
    SaveWriters Writers{SaveOptions, WriteSaveState};
    Uint64 LastFrameTicks = 0; ///< when the last step was measured, in milliseconds of SDL_GetTicks
};
