#include "app/Events.hpp"

#include "app/KeyHandler.hpp"
#include "app/Program.hpp"
#include "input/Capture.hpp"
#include "input/Presses.hpp"

namespace {

/// The scancode that an event stands for, or NoKey. The repeats of a key that is held are no presses. Off
/// ScreenPlaying a stick's motion sets or clears its latches.
std::int32_t PressedKey(Program &Game, const SDL_Event &Event) {
    if (Event.type == SDL_EVENT_KEY_DOWN) {
        return Event.key.repeat ? NoKey : static_cast<std::int32_t>(Event.key.scancode);
    }
    return TranslatePress(Game.State, Game.Devices, Event);
}

} // namespace

void DrainEvents(Program &Game) {
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        if (event.type == SDL_EVENT_QUIT) {
            Game.State.Running = false;
            return;
        }
        HandleHotPlug(Game.Devices, event);
        if (CaptureButton(Game.State, Game.Devices, event)) {
            continue;
        }
        DispatchKey(Game.State, Game.Window, Game.Renderer, PressedKey(Game, event));
    }
}
