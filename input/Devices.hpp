#pragma once

#include <SDL3/SDL.h>

/// The one gamepad and the one joystick that the game listens to; a joystick is a device that SDL does not
/// know as a gamepad. Where none is open the pointer is null and the id 0; what is open the owner closes with
/// CloseInputDevices. A latch is set from a stick's menu press to one side until it is back near the centre
/// or presses to the other side (AxisToMenuKey).
struct InputDevices {
    SDL_Gamepad *Gamepad = nullptr;
    SDL_JoystickID GamepadId = 0;
    SDL_Joystick *Joystick = nullptr;
    SDL_JoystickID JoystickId = 0;
    bool GamepadLeftLatch = false;
    bool GamepadRightLatch = false;
    bool GamepadUpLatch = false;
    bool GamepadDownLatch = false;
    bool JoystickLeftLatch = false;
    bool JoystickRightLatch = false;
    bool JoystickUpLatch = false;
    bool JoystickDownLatch = false;
};

/// Whether Id is that of the open gamepad or joystick. Events of any other device are to be ignored.
bool IsOpenGamepad(const InputDevices &Devices, SDL_JoystickID Id);
bool IsOpenJoystick(const InputDevices &Devices, SDL_JoystickID Id);

/// Opens the first gamepad that can be opened, unless one is open, and the first joystick likewise. A device
/// that cannot be opened is skipped, and nothing is logged.
void OpenFirstInputDevices(InputDevices &Devices);

/// Opens a joystick, unless one is open or Id is a gamepad. Whether a joystick is open afterwards.
bool TryOpenJoystick(InputDevices &Devices, SDL_JoystickID Id);

/// Opens and closes devices as they are plugged in and out; every other event is ignored. When an open device
/// is unplugged, the next one of its kind is opened at once; a run is not paused.
void HandleHotPlug(InputDevices &Devices, const SDL_Event &Event);

/// Closes what is open, the gamepad first. Devices is then as if new.
void CloseInputDevices(InputDevices &Devices);
