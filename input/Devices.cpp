#include "input/Devices.hpp"

namespace {

bool TryOpenGamepad(InputDevices &Devices, SDL_JoystickID Id) {
    Devices.Gamepad = SDL_OpenGamepad(Id);
    if (Devices.Gamepad == nullptr) {
        return false;
    }
    Devices.GamepadId = Id;
    return true;
}

void CloseGamepad(InputDevices &Devices) {
    SDL_CloseGamepad(Devices.Gamepad);
    Devices.Gamepad = nullptr;
    Devices.GamepadId = 0;
    Devices.GamepadLeftLatch = false;
    Devices.GamepadRightLatch = false;
    Devices.GamepadUpLatch = false;
    Devices.GamepadDownLatch = false;
}

void CloseJoystick(InputDevices &Devices) {
    SDL_CloseJoystick(Devices.Joystick);
    Devices.Joystick = nullptr;
    Devices.JoystickId = 0;
    Devices.JoystickLeftLatch = false;
    Devices.JoystickRightLatch = false;
    Devices.JoystickUpLatch = false;
    Devices.JoystickDownLatch = false;
}

/// Tries the devices of a list in order until one is open, then frees the list, which may be null.
template <typename TryOpen> void OpenFirst(SDL_JoystickID *Ids, TryOpen Try) {
    for (const SDL_JoystickID *id = Ids; id != nullptr && *id != 0; ++id) {
        if (Try(*id)) {
            break;
        }
    }
    SDL_free(Ids);
}

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
        OpenFirst(SDL_GetGamepads(nullptr), [&Devices](SDL_JoystickID Id) {
            return TryOpenGamepad(Devices, Id);
        });
    }
    if (Devices.Joystick == nullptr) {
        OpenFirst(SDL_GetJoysticks(nullptr), [&Devices](SDL_JoystickID Id) {
            return TryOpenJoystick(Devices, Id);
        });
    }
}

bool TryOpenJoystick(InputDevices &Devices, SDL_JoystickID Id) {
    if (Devices.Joystick != nullptr) {
        return true;
    }
    if (SDL_IsGamepad(Id)) {
        return false;
    }
    Devices.Joystick = SDL_OpenJoystick(Id);
    if (Devices.Joystick == nullptr) {
        return false;
    }
    Devices.JoystickId = Id;
    return true;
}

void HandleHotPlug(InputDevices &Devices, const SDL_Event &Event) {
    switch (Event.type) {
    case SDL_EVENT_GAMEPAD_ADDED:
        if (Devices.Gamepad == nullptr) {
            TryOpenGamepad(Devices, Event.gdevice.which);
        }
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
