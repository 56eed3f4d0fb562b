#include "app/ShutDown.hpp"

#include "app/Program.hpp"
#include "audio/Runtime.hpp"
#include "gfx/Atlas.hpp"

void ShutDown(Program &Game) {
    SaveOptionsIfDirty(Game.State, Game.Writers.SaveOptions);
    SaveTick(Game.State, 0.0F, Game.Writers.WriteSaveState);
    CloseInputDevices(Game.Devices);
    ShutdownMusicRuntime(Game.Music, true);
    DestroyTextureAtlas();
    TakeDown(Game);
}

void TakeDown(Program &Game) {
    if (Game.Renderer != nullptr) {
        SDL_DestroyRenderer(Game.Renderer);
        Game.Renderer = nullptr;
    }
    if (Game.Window != nullptr) {
        // Hidden before it is destroyed: on X11 SDL would first take a fullscreen window back to its size,
        // and a window manager that moves it and drops its frame in the same moment ends the program by a
        // BadWindow error.
        SDL_HideWindow(Game.Window);
        SDL_DestroyWindow(Game.Window);
        Game.Window = nullptr;
    }
    SDL_Quit();
}
