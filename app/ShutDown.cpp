#include "app/ShutDown.hpp"

#include "app/Program.hpp"
#include "audio/Runtime.hpp"
#include "gfx/Atlas.hpp"

void ShutDown(Program &Program) {
    SaveOptionsIfDirty(Program.State, Program.Writers.SaveOptions);
    SaveTick(Program.State, 0.0F, Program.Writers.WriteSaveState);
    CloseInputDevices(Program.Devices);
    ShutdownMusicRuntime(Program.Music, true);
    DestroyTextureAtlas();
    SDL_DestroyRenderer(Program.Renderer);
    Program.Renderer = nullptr;
    // Hidden before it is destroyed: on X11 SDL would first take a fullscreen window back to its size, and a
    // window manager that moves it and drops its frame in the same moment ends the program by a BadWindow
    // error.
    SDL_HideWindow(Program.Window);
    SDL_DestroyWindow(Program.Window);
    Program.Window = nullptr;
    SDL_Quit();
}
