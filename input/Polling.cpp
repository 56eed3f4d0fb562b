#include "input/Polling.hpp"

#include "input/Thresholds.hpp"
#include "state/GameState.hpp"

namespace {

bool IsKeyHeld(const GameState &State, const bool *KeyboardState, KeyboardAction Action) {
    return ReadKey(KeyboardState, BindingOf(State.KeyboardBindings, Action));
}

StepInput PollKeyboard(const GameState &State, const bool *KeyboardState) {
    StepInput input;
    input.MoveLeft = IsKeyHeld(State, KeyboardState, KeyboardAction::MoveLeft);
    input.MoveRight = IsKeyHeld(State, KeyboardState, KeyboardAction::MoveRight);
    input.Fire = IsKeyHeld(State, KeyboardState, KeyboardAction::Fire);
    input.Bomb = IsKeyHeld(State, KeyboardState, KeyboardAction::Bomb);
    return input;
}

bool SteersLeft(SDL_Gamepad *Gamepad) {
    return SDL_GetGamepadAxis(Gamepad, SDL_GAMEPAD_AXIS_LEFTX) <= -GameplayAxisThreshold ||
           SDL_GetGamepadButton(Gamepad, SDL_GAMEPAD_BUTTON_DPAD_LEFT);
}

bool SteersRight(SDL_Gamepad *Gamepad) {
    return SDL_GetGamepadAxis(Gamepad, SDL_GAMEPAD_AXIS_LEFTX) >= GameplayAxisThreshold ||
           SDL_GetGamepadButton(Gamepad, SDL_GAMEPAD_BUTTON_DPAD_RIGHT);
}

bool IsButtonHeld(SDL_Gamepad *Gamepad, std::int32_t Button) {
    return IsGamepadButton(Button) && SDL_GetGamepadButton(Gamepad, static_cast<SDL_GamepadButton>(Button));
}

Sint16 FirstAxis(SDL_Joystick *Joystick) {
    return SDL_GetNumJoystickAxes(Joystick) > 0 ? SDL_GetJoystickAxis(Joystick, 0) : Sint16{0};
}

bool FirstHatPoints(SDL_Joystick *Joystick, Uint8 Direction) {
    return SDL_GetNumJoystickHats(Joystick) > 0 && (SDL_GetJoystickHat(Joystick, 0) & Direction) != 0;
}

bool SteersLeft(SDL_Joystick *Joystick) {
    return FirstAxis(Joystick) <= -GameplayAxisThreshold || FirstHatPoints(Joystick, SDL_HAT_LEFT);
}

bool SteersRight(SDL_Joystick *Joystick) {
    return FirstAxis(Joystick) >= GameplayAxisThreshold || FirstHatPoints(Joystick, SDL_HAT_RIGHT);
}

bool IsButtonHeld(SDL_Joystick *Joystick, std::int32_t Button) {
    return Button >= 0 && Button < SDL_GetNumJoystickButtons(Joystick) &&
           SDL_GetJoystickButton(Joystick, Button);
}

/// Adds what is held on a gamepad or joystick, null if none is open. It is asked only for what no device
/// before it has set.
template <typename Device>
void AddDevice(StepInput &Input, Device *OpenDevice, const BindingTable &Bindings) {
    if (OpenDevice == nullptr) {
        return;
    }
    Input.MoveLeft = Input.MoveLeft || SteersLeft(OpenDevice);
    Input.MoveRight = Input.MoveRight || SteersRight(OpenDevice);
    Input.Fire = Input.Fire || IsButtonHeld(OpenDevice, BindingOf(Bindings, PadAction::Fire));
    Input.Bomb = Input.Bomb || IsButtonHeld(OpenDevice, BindingOf(Bindings, PadAction::Bomb));
}

} // namespace

bool ReadKey(const bool *KeyboardState, std::int32_t Scancode) {
    return KeyboardState != nullptr && IsScancode(Scancode) && KeyboardState[Scancode];
}

StepInput PollGameplayInput(const GameState &State, const bool *KeyboardState, const InputDevices &Devices) {
    StepInput input = PollKeyboard(State, KeyboardState);
    AddDevice(input, Devices.Gamepad, State.GamepadBindings);
    AddDevice(input, Devices.Joystick, State.JoystickBindings);
    return input;
}
