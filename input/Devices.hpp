#pragma once

#include <SDL3/SDL.h>

/// The one gamepad and the one joystick that the game listens to, with the latches that turn their sticks'
/// excursions into single menu presses. A joystick is a device that SDL does not know as a gamepad.
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

/// Whether an event comes from the gamepad or the joystick that is open. A second one of a kind is unheard.
bool IsOpenGamepad(const InputDevices &Devices, SDL_JoystickID Id);
bool IsOpenJoystick(const InputDevices &Devices, SDL_JoystickID Id);

/// Fills whichever of the two slots is empty with the first device that opens. A device that does not is
/// skipped without a word.
void OpenFirstInputDevices(InputDevices &Devices);

/// Opens a joystick into its slot. True if the slot is occupied afterwards by whatever means, false if Id is
/// a gamepad or cannot be opened.
bool TryOpenJoystick(InputDevices &Devices, SDL_JoystickID Id);

/// Opens and closes devices as they come and go; every other event is ignored. A device that goes in the
/// middle of a run pauses nothing, and the next one that is there takes its place.
void HandleHotPlug(InputDevices &Devices, const SDL_Event &Event);

/// Closes what is open, the gamepad first.
void CloseInputDevices(InputDevices &Devices);
