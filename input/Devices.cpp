#include "input/Devices.hpp"

#include <memory>

namespace {

/// Opens a gamepad, unless one is open. True if one is open afterwards, whichever.
bool TryOpenGamepad(InputDevices &Devices, SDL_JoystickID Id) {
    if (Devices.Gamepad == nullptr) {
        Devices.Gamepad = SDL_OpenGamepad(Id);
        Devices.GamepadId = Devices.Gamepad != nullptr ? Id : 0;
    }
    return Devices.Gamepad != nullptr;
}

void CloseGamepad(InputDevices &Devices) {
    SDL_CloseGamepad(Devices.Gamepad);
    Devices.Gamepad = nullptr;
    Devices.GamepadId = 0;
    Devices.GamepadLeftLatch = Devices.GamepadRightLatch = false;
    Devices.GamepadUpLatch = Devices.GamepadDownLatch = false;
}

void CloseJoystick(InputDevices &Devices) {
    SDL_CloseJoystick(Devices.Joystick);
    Devices.Joystick = nullptr;
    Devices.JoystickId = 0;
    Devices.JoystickLeftLatch = Devices.JoystickRightLatch = false;
    Devices.JoystickUpLatch = Devices.JoystickDownLatch = false;
}

/// Tries the devices of a list of SDL's, which may be null, in order until one is open, and frees the list.
void OpenFirst(
    InputDevices &Devices, SDL_JoystickID *Ids, bool (*TryOpen)(InputDevices &Devices, SDL_JoystickID Id)) {
    const std::unique_ptr<SDL_JoystickID, decltype(&SDL_free)> list(Ids, SDL_free);
    for (const SDL_JoystickID *id = Ids; id != nullptr && *id != 0; ++id) {
        if (TryOpen(Devices, *id)) {
            return;
        }
    }
}

/// SDL tells of an unplugged gamepad twice, as a joystick and as a gamepad: whichever comes first closes it.
void HandleJoystickRemoved(InputDevices &Devices, SDL_JoystickID Id) {
    if (IsOpenJoystick(Devices, Id)) {
        CloseJoystick(Devices);
    }
    if (IsOpenGamepad(Devices, Id)) {
        CloseGamepad(Devices);
    }
    OpenFirstInputDevices(Devices);
}

} // namespace

bool IsOpenGamepad(const InputDevices &Devices, SDL_JoystickID Id) {
    return Devices.Gamepad != nullptr && Id == Devices.GamepadId;
}

bool IsOpenJoystick(const InputDevices &Devices, SDL_JoystickID Id) {
    return Devices.Joystick != nullptr && Id == Devices.JoystickId;
}

void OpenFirstInputDevices(InputDevices &Devices) {
    if (Devices.Gamepad == nullptr) {
        OpenFirst(Devices, SDL_GetGamepads(nullptr), TryOpenGamepad);
    }
    if (Devices.Joystick == nullptr) {
        OpenFirst(Devices, SDL_GetJoysticks(nullptr), TryOpenJoystick);
    }
}

bool TryOpenJoystick(InputDevices &Devices, SDL_JoystickID Id) {
    if (Devices.Joystick == nullptr && !SDL_IsGamepad(Id)) {
        Devices.Joystick = SDL_OpenJoystick(Id);
        Devices.JoystickId = Devices.Joystick != nullptr ? Id : 0;
    }
    return Devices.Joystick != nullptr;
}

void HandleHotPlug(InputDevices &Devices, const SDL_Event &Event) {
    switch (Event.type) {
    case SDL_EVENT_GAMEPAD_ADDED:
        TryOpenGamepad(Devices, Event.gdevice.which);
        break;
    case SDL_EVENT_GAMEPAD_REMOVED:
        if (IsOpenGamepad(Devices, Event.gdevice.which)) {
            CloseGamepad(Devices);
            OpenFirstInputDevices(Devices);
        }
        break;
    case SDL_EVENT_JOYSTICK_ADDED:
        TryOpenJoystick(Devices, Event.jdevice.which);
        break;
    case SDL_EVENT_JOYSTICK_REMOVED:
        HandleJoystickRemoved(Devices, Event.jdevice.which);
        break;
    default:
        break;
    }
}

void CloseInputDevices(InputDevices &Devices) {
    if (Devices.Gamepad != nullptr) {
        CloseGamepad(Devices);
    }
    if (Devices.Joystick != nullptr) {
        CloseJoystick(Devices);
    }
}
