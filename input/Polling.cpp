#include "input/Polling.hpp"

#include "input/Thresholds.hpp"
#include "state/GameState.hpp"

namespace {

bool IsKeyHeld(const GameState &State, const bool *KeyboardState, KeyboardAction Action) {
    return ReadKey(KeyboardState, BindingOf(State.KeyboardBindings, Action));
}

bool IsGamepadButtonHeld(SDL_Gamepad *Gamepad, std::int32_t Button) {
    return Button >= 0 && Button <= LastGamepadButton &&
           SDL_GetGamepadButton(Gamepad, static_cast<SDL_GamepadButton>(Button));
}

bool IsJoystickButtonHeld(SDL_Joystick *Joystick, std::int32_t Button) {
    return Button >= 0 && Button < SDL_GetNumJoystickButtons(Joystick) &&
           SDL_GetJoystickButton(Joystick, Button);
}

StepInput PollKeyboard(const GameState &State, const bool *KeyboardState) {
    StepInput input;
    input.MoveLeft = IsKeyHeld(State, KeyboardState, KeyboardAction::MoveLeft);
    input.MoveRight = IsKeyHeld(State, KeyboardState, KeyboardAction::MoveRight);
    input.Fire = IsKeyHeld(State, KeyboardState, KeyboardAction::Fire);
    input.Bomb = IsKeyHeld(State, KeyboardState, KeyboardAction::Bomb);
    return input;
}

// What a device earlier in the order has set is not read again.

void AddGamepad(StepInput &Input, SDL_Gamepad *Gamepad, const BindingTable &Bindings) {
    const auto axis = [Gamepad] {
        return SDL_GetGamepadAxis(Gamepad, SDL_GAMEPAD_AXIS_LEFTX);
    };
    Input.MoveLeft = Input.MoveLeft || axis() <= -GameplayAxisThreshold ||
                     SDL_GetGamepadButton(Gamepad, SDL_GAMEPAD_BUTTON_DPAD_LEFT);
    Input.MoveRight = Input.MoveRight || axis() >= GameplayAxisThreshold ||
                      SDL_GetGamepadButton(Gamepad, SDL_GAMEPAD_BUTTON_DPAD_RIGHT);
    Input.Fire = Input.Fire || IsGamepadButtonHeld(Gamepad, BindingOf(Bindings, PadAction::Fire));
    Input.Bomb = Input.Bomb || IsGamepadButtonHeld(Gamepad, BindingOf(Bindings, PadAction::Bomb));
}

void AddJoystick(StepInput &Input, SDL_Joystick *Joystick, const BindingTable &Bindings) {
    const auto hat = [Joystick] {
        return SDL_GetNumJoystickHats(Joystick) > 0 ? SDL_GetJoystickHat(Joystick, 0)
                                                    : Uint8{SDL_HAT_CENTERED};
    };
    const auto axis = [Joystick] {
        return SDL_GetNumJoystickAxes(Joystick) > 0 ? SDL_GetJoystickAxis(Joystick, 0) : Sint16{0};
    };
    Input.MoveLeft = Input.MoveLeft || axis() <= -GameplayAxisThreshold || (hat() & SDL_HAT_LEFT) != 0;
    Input.MoveRight = Input.MoveRight || axis() >= GameplayAxisThreshold || (hat() & SDL_HAT_RIGHT) != 0;
    Input.Fire = Input.Fire || IsJoystickButtonHeld(Joystick, BindingOf(Bindings, PadAction::Fire));
    Input.Bomb = Input.Bomb || IsJoystickButtonHeld(Joystick, BindingOf(Bindings, PadAction::Bomb));
}

} // namespace

bool ReadKey(const bool *KeyboardState, std::int32_t Scancode) {
    return KeyboardState != nullptr && Scancode >= FirstScancode && Scancode <= LastScancode &&
           KeyboardState[Scancode];
}

StepInput PollGameplayInput(const GameState &State, const bool *KeyboardState, const InputDevices &Devices) {
    StepInput input = PollKeyboard(State, KeyboardState);
    if (Devices.Gamepad != nullptr) {
        AddGamepad(input, Devices.Gamepad, State.GamepadBindings);
    }
    if (Devices.Joystick != nullptr) {
        AddJoystick(input, Devices.Joystick, State.JoystickBindings);
    }
    return input;
}
