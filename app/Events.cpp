#include "app/Events.hpp"

#include "app/Program.hpp"

void DrainEvents(Program &Program) {
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        if (event.type == SDL_EVENT_QUIT) {
            Program.State.Running = false;
            return;
        }
        HandleHotPlug(Program.Devices, event);
    }
}
