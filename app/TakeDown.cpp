#include "app/TakeDown.hpp"

#include "app/Program.hpp"

void TakeDownWindow(Program &Program) {
    // Hidden before it is destroyed: on X11 SDL would first take a fullscreen window back to its size, and a
    // window manager that moves it and drops its frame in the same moment ends the program by a BadWindow
    // error.
    SDL_HideWindow(Program.Window);
    SDL_DestroyWindow(Program.Window);
    Program.Window = nullptr;
    SDL_Quit();
}

void TakeDownRenderer(Program &Program) {
    SDL_DestroyRenderer(Program.Renderer);
    Program.Renderer = nullptr;
    TakeDownWindow(Program);
}
