#pragma once

#include <SDL3/SDL.h>

/// A device's kind and what it has. What is of gamepad type is what SDL knows as a gamepad.
struct DeviceShape {
    SDL_JoystickType Type = SDL_JOYSTICK_TYPE_FLIGHT_STICK;
    Uint16 Axes = 2;
    Uint16 Buttons = 4;
    Uint16 Hats = 1;
};

/// A device of SDL's virtual kind, plugged in while this lives. SDL's joysticks must be up. Values reach SDL
/// at once; a device that the game has not opened can be moved all the same.
class VirtualDevice {
public:
    explicit VirtualDevice(const DeviceShape &Shape);
    ~VirtualDevice();
    VirtualDevice(const VirtualDevice &) = delete;
    VirtualDevice &operator=(const VirtualDevice &) = delete;

    void SetAxis(int Axis, Sint16 Value);
    void SetButton(int Button, bool Down);
    void SetHat(int Hat, Uint8 Value);
    void Unplug();

    SDL_JoystickID Id = 0;

private:
    SDL_Joystick *Handle = nullptr;
};

/// A gamepad with every axis and button, and a joystick with two axes, four buttons and a hat.
inline constexpr DeviceShape GamepadShape{
    SDL_JOYSTICK_TYPE_GAMEPAD, SDL_GAMEPAD_AXIS_COUNT, SDL_GAMEPAD_BUTTON_COUNT, 0};
inline constexpr DeviceShape JoystickShape{};

/// Whether this machine has a pad or joystick of its own, which would get in the way of the virtual ones.
bool HasRealDevices();
