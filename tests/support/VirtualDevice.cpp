#include "tests/support/VirtualDevice.hpp"

#include <gtest/gtest.h>

VirtualDevice::VirtualDevice(const DeviceShape &Shape) {
    // Devices are heard while no window has the focus, as none has in a test.
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    SDL_VirtualJoystickDesc description;
    SDL_INIT_INTERFACE(&description);
    description.type = static_cast<Uint16>(Shape.Type);
    description.naxes = Shape.Axes;
    description.nbuttons = Shape.Buttons;
    description.nhats = Shape.Hats;
    description.name = "Test device";
    Id = SDL_AttachVirtualJoystick(&description);
    EXPECT_NE(Id, 0U) << SDL_GetError();
    Handle = SDL_OpenJoystick(Id);
    EXPECT_NE(Handle, nullptr) << SDL_GetError();
    SDL_UpdateJoysticks();
}

VirtualDevice::~VirtualDevice() {
    Unplug();
}

void VirtualDevice::SetAxis(int Axis, Sint16 Value) {
    EXPECT_TRUE(SDL_SetJoystickVirtualAxis(Handle, Axis, Value)) << SDL_GetError();
    SDL_UpdateJoysticks();
}

void VirtualDevice::SetButton(int Button, bool Down) {
    EXPECT_TRUE(SDL_SetJoystickVirtualButton(Handle, Button, Down)) << SDL_GetError();
    SDL_UpdateJoysticks();
}

void VirtualDevice::SetHat(int Hat, Uint8 Value) {
    EXPECT_TRUE(SDL_SetJoystickVirtualHat(Handle, Hat, Value)) << SDL_GetError();
    SDL_UpdateJoysticks();
}

void VirtualDevice::Unplug() {
    if (Handle != nullptr && SDL_WasInit(SDL_INIT_JOYSTICK) != 0) {
        SDL_CloseJoystick(Handle);
        SDL_DetachVirtualJoystick(Id);
    }
    Handle = nullptr;
}

bool HasRealDevices() {
    int count = 0;
    SDL_free(SDL_GetJoysticks(&count));
    return count > 0;
}
