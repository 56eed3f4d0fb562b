#include "app/Frame.hpp"
#include "app/ParentConsole.hpp"
#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "app/StartUp.hpp"

#include <SDL3/SDL_main.h>

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
