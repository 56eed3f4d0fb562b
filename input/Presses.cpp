#include "input/Presses.hpp"

#include "input/Thresholds.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"

namespace {

static_assert(ScancodeReturn == SDL_SCANCODE_RETURN && ScancodeEscape == SDL_SCANCODE_ESCAPE &&
                  ScancodeRight == SDL_SCANCODE_RIGHT && ScancodeLeft == SDL_SCANCODE_LEFT &&
                  ScancodeDown == SDL_SCANCODE_DOWN && ScancodeUp == SDL_SCANCODE_UP &&
                  ScancodeA == SDL_SCANCODE_A && ScancodeD == SDL_SCANCODE_D && ScancodeS == SDL_SCANCODE_S &&
                  ScancodeW == SDL_SCANCODE_W && ScancodeSpace == SDL_SCANCODE_SPACE &&
                  ScancodeKeypadEnter == SDL_SCANCODE_KP_ENTER && ScancodeDelete == SDL_SCANCODE_DELETE &&
                  ScancodeBackspace == SDL_SCANCODE_BACKSPACE && LastScancode == SDL_SCANCODE_COUNT - 1 &&
                  LastGamepadButton == SDL_GAMEPAD_BUTTON_MISC6,
    "the keys and buttons are SDL's");
static_assert(DefaultKeyboardBindings == BindingTable{SDL_SCANCODE_LEFT, SDL_SCANCODE_RIGHT,
                                             SDL_SCANCODE_LCTRL, SDL_SCANCODE_X, SDL_SCANCODE_SPACE});
static_assert(DefaultGamepadBindings == BindingTable{SDL_GAMEPAD_BUTTON_SOUTH, SDL_GAMEPAD_BUTTON_WEST,
                                            SDL_GAMEPAD_BUTTON_NORTH, SDL_GAMEPAD_BUTTON_SOUTH,
                                            SDL_GAMEPAD_BUTTON_EAST});
static_assert(UnboundKey == NoKey, "a button that heals gives no key where the keyboard's row is unbound");

/// What a button gives that is bound to healing: in play the keyboard's key for it, otherwise nothing.
/// NOT-BUGS: Healing by gamepad or joystick needs the keyboard's heal key bound
std::int32_t HealKey(const GameState &State) {
    return State.Screen == ScreenPlaying ? BindingOf(State.KeyboardBindings, KeyboardAction::Heal) : NoKey;
}

bool IsBound(const BindingTable &Bindings, PadAction Action, std::int32_t Button) {
    return Button == BindingOf(Bindings, Action);
}

/// What a button gives that is bound to going back: nothing if it also fires or throws bombs.
std::int32_t BackKey(const BindingTable &Bindings, std::int32_t Button) {
    const bool acts =
        IsBound(Bindings, PadAction::Fire, Button) || IsBound(Bindings, PadAction::Bomb, Button);
    return acts ? NoKey : ScancodeEscape;
}

/// The first rule that fits wins. Whatever is bound to them, START pauses in play, and the directional pad
/// moves. Elsewhere START also confirms unless it heals, and BACK goes back unless it is bound otherwise.
std::int32_t GamepadButtonKey(const GameState &State, std::int32_t Button) {
    const BindingTable &bindings = State.GamepadBindings;
    const bool isBack = IsBound(bindings, PadAction::Back, Button) || Button == SDL_GAMEPAD_BUTTON_BACK;
    if (State.Screen == ScreenPlaying && Button == SDL_GAMEPAD_BUTTON_START) {
        return ScancodeEscape;
    }
    if (State.Screen == ScreenPlaying && isBack) {
        // NOT-BUGS: Only START pauses with a gamepad
        return NoKey;
    }
    switch (Button) {
    case SDL_GAMEPAD_BUTTON_DPAD_UP:
        return ScancodeUp;
    case SDL_GAMEPAD_BUTTON_DPAD_DOWN:
        return ScancodeDown;
    case SDL_GAMEPAD_BUTTON_DPAD_LEFT:
        return ScancodeLeft;
    case SDL_GAMEPAD_BUTTON_DPAD_RIGHT:
        return ScancodeRight;
    default:
        break;
    }
    if (IsBound(bindings, PadAction::Heal, Button)) {
        return HealKey(State);
    }
    if (IsBound(bindings, PadAction::Confirm, Button) || Button == SDL_GAMEPAD_BUTTON_START) {
        return ScancodeReturn;
    }
    return isBack ? BackKey(bindings, Button) : NoKey;
}

/// A joystick has no START: its back button pauses, by the key that it gives on every screen.
std::int32_t JoystickButtonKey(const GameState &State, std::int32_t Button) {
    const BindingTable &bindings = State.JoystickBindings;
    if (IsBound(bindings, PadAction::Heal, Button)) {
        return HealKey(State);
    }
    if (IsBound(bindings, PadAction::Confirm, Button)) {
        return ScancodeReturn;
    }
    return IsBound(bindings, PadAction::Back, Button) ? BackKey(bindings, Button) : NoKey;
}

std::int32_t GamepadAxisKey(InputDevices &Devices, const SDL_GamepadAxisEvent &Motion) {
    switch (Motion.axis) {
    case SDL_GAMEPAD_AXIS_LEFTX:
        return AxisToMenuKey(
            Motion.value, Devices.GamepadLeftLatch, Devices.GamepadRightLatch, ScancodeLeft, ScancodeRight);
    case SDL_GAMEPAD_AXIS_LEFTY:
        return AxisToMenuKey(
            Motion.value, Devices.GamepadUpLatch, Devices.GamepadDownLatch, ScancodeUp, ScancodeDown);
    default:
        return NoKey;
    }
}

std::int32_t JoystickAxisKey(InputDevices &Devices, const SDL_JoyAxisEvent &Motion) {
    switch (Motion.axis) {
    case 0:
        return AxisToMenuKey(
            Motion.value, Devices.JoystickLeftLatch, Devices.JoystickRightLatch, ScancodeLeft, ScancodeRight);
    case 1:
        return AxisToMenuKey(
            Motion.value, Devices.JoystickUpLatch, Devices.JoystickDownLatch, ScancodeUp, ScancodeDown);
    default:
        return NoKey;
    }
}

/// A diagonal counts as its vertical part.
std::int32_t HatKey(std::uint8_t Directions) {
    if ((Directions & SDL_HAT_UP) != 0) {
        return ScancodeUp;
    }
    if ((Directions & SDL_HAT_DOWN) != 0) {
        return ScancodeDown;
    }
    if ((Directions & SDL_HAT_LEFT) != 0) {
        return ScancodeLeft;
    }
    return (Directions & SDL_HAT_RIGHT) != 0 ? ScancodeRight : NoKey;
}

} // namespace

std::int32_t AxisToMenuKey(std::int16_t Value, bool &NegativeLatch, bool &PositiveLatch,
    std::int32_t NegativeScancode, std::int32_t PositiveScancode) {
    const auto press = [](bool &Latch, bool &Opposite, std::int32_t Scancode) {
        if (Latch) {
            return NoKey;
        }
        Latch = true;
        Opposite = false;
        return Scancode;
    };
    if (Value <= -MenuAxisPress) {
        return press(NegativeLatch, PositiveLatch, NegativeScancode);
    }
    if (Value >= MenuAxisPress) {
        return press(PositiveLatch, NegativeLatch, PositiveScancode);
    }
    if (Value >= -MenuAxisRelease && Value <= MenuAxisRelease) {
        NegativeLatch = false;
        PositiveLatch = false;
    }
    return NoKey;
}

std::int32_t TranslatePress(const GameState &State, InputDevices &Devices, const SDL_Event &Event) {
    // In play steering is polled: axes and hats press nothing, and the latches keep what they have.
    // NOT-BUGS: A stick that is let go during play can lose its first push in the next menu
    const bool sticksPress = State.Screen != ScreenPlaying;
    switch (Event.type) {
    case SDL_EVENT_GAMEPAD_AXIS_MOTION:
        return sticksPress && IsOpenGamepad(Devices, Event.gaxis.which) ? GamepadAxisKey(Devices, Event.gaxis)
                                                                        : NoKey;
    case SDL_EVENT_JOYSTICK_AXIS_MOTION:
        return sticksPress && IsOpenJoystick(Devices, Event.jaxis.which)
                   ? JoystickAxisKey(Devices, Event.jaxis)
                   : NoKey;
    case SDL_EVENT_JOYSTICK_HAT_MOTION:
        return sticksPress && IsOpenJoystick(Devices, Event.jhat.which) ? HatKey(Event.jhat.value) : NoKey;
    case SDL_EVENT_GAMEPAD_BUTTON_DOWN:
        return IsOpenGamepad(Devices, Event.gbutton.which) ? GamepadButtonKey(State, Event.gbutton.button)
                                                           : NoKey;
    case SDL_EVENT_JOYSTICK_BUTTON_DOWN:
        return IsOpenJoystick(Devices, Event.jbutton.which) ? JoystickButtonKey(State, Event.jbutton.button)
                                                            : NoKey;
    default:
        return NoKey;
    }
}
