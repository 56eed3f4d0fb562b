#include "app/Events.hpp"

#include "app/KeyHandler.hpp"
#include "app/Program.hpp"
#include "input/Capture.hpp"
#include "input/Presses.hpp"

namespace {

/// The key that an event stands for, or 0. A held key is one press: what the platform repeats is dropped.
std::int32_t PressedKey(Program &Program, const SDL_Event &Event) {
    if (Event.type == SDL_EVENT_KEY_DOWN) {
        return Event.key.repeat ? 0 : static_cast<std::int32_t>(Event.key.scancode);
    }
    return TranslatePress(Program.State, Program.Devices, Event);
}

} // namespace

void DrainEvents(Program &Program) {
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        if (event.type == SDL_EVENT_QUIT) {
            Program.State.Running = false;
            return;
        }
        HandleHotPlug(Program.Devices, event);
        if (CaptureButton(Program.State, Program.Devices, event)) {
            continue;
        }
        DispatchKey(Program.State, Program.Window, Program.Renderer, PressedKey(Program, event));
    }
}
