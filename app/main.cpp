#include "app/Frame.hpp"
#include "app/ParentConsole.hpp"
#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "app/StartUp.hpp"

#include <SDL3/SDL_main.h>

// StartUp brings up SDL, the options, the window, the words, the saved run and the sound. Each RunFrame then
//   reads the events and acts on presses         app/Events, app/KeyHandler, input/, options/
//   writes the options where that is due         app/Saving, store/
//   lets the run go on by one step               sim/Step
//   writes the save state where that is due      app/Saving, store/
//   asks for the music and plays the sounds      audio/Transport, audio/SfxVoices
//   draws the screen that is shown               gfx/
// ShutDown saves and takes all down. The game stands in one record, state/GameState.hpp; the mixer and the
// devices have their own.
int main(int /*ArgumentCount*/, char ** /*Arguments*/) {
    UseParentConsole();
    Program program;
    if (!StartUp(program)) {
        return 1;
    }
    while (program.State.Running) {
        RunFrame(program);
    }
    ShutDown(program);
    return 0;
}
