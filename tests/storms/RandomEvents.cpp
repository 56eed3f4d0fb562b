#include "tests/storms/RandomEvents.hpp"

#include "app/Program.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"
#include "tests/app/PushEvents.hpp"
#include "tests/support/Keys.hpp"

#include <cstring>

namespace {

constexpr std::size_t MostDevices = 4;

/// Beyond any number that SDL gives a device.
constexpr SDL_JoystickID MadeUpId = 0x40000000;

/// The ends of the range, and both sides of each threshold.
constexpr std::array<Sint16, 16> AxisValues{-32768, -32767, -19000, -18999, -11000, -10999, -9001, -9000, 0,
    9000, 9001, 10999, 11000, 18999, 19000, 32767};

/// Usual ones, one that has nothing at all, and one that has more than anybody would hold.
constexpr std::array Shapes{GamepadShape, JoystickShape, DeviceShape{SDL_JOYSTICK_TYPE_GAMEPAD, 1, 2, 1},
    DeviceShape{SDL_JOYSTICK_TYPE_UNKNOWN, 0, 0, 0}, DeviceShape{SDL_JOYSTICK_TYPE_WHEEL, 40, 200, 8}};

struct TypeRange {
    Uint32 First;
    Uint32 Last;
    bool HasPointers = false; ///< which then are null
};

/// The types that the game has no use for, some that stand for nothing among them. SDL's mark of the end of a
/// poll and the message of an older SDL, of which it would follow a pointer, never come from outside.
constexpr std::array IgnoredTypes{
    TypeRange{SDL_EVENT_FIRST, SDL_EVENT_QUIT - 1},
    TypeRange{SDL_EVENT_TERMINATING, SDL_EVENT_SYSTEM_THEME_CHANGED},
    TypeRange{SDL_EVENT_DISPLAY_FIRST - 1, SDL_EVENT_DISPLAY_LAST + 1},
    TypeRange{SDL_EVENT_WINDOW_FIRST, SDL_EVENT_WINDOW_LAST + 1},
    TypeRange{SDL_EVENT_TEXT_EDITING, SDL_EVENT_SCREEN_KEYBOARD_HIDDEN, true},
    TypeRange{SDL_EVENT_MOUSE_MOTION, SDL_EVENT_MOUSE_REMOVED},
    TypeRange{SDL_EVENT_JOYSTICK_BATTERY_UPDATED, SDL_EVENT_JOYSTICK_UPDATE_COMPLETE},
    TypeRange{SDL_EVENT_GAMEPAD_REMAPPED, SDL_EVENT_GAMEPAD_STEAM_HANDLE_UPDATED},
    TypeRange{SDL_EVENT_FINGER_DOWN, SDL_EVENT_FINGER_CANCELED},
    TypeRange{SDL_EVENT_PINCH_BEGIN, SDL_EVENT_PINCH_END},
    TypeRange{SDL_EVENT_CLIPBOARD_UPDATE, SDL_EVENT_CLIPBOARD_UPDATE, true},
    TypeRange{SDL_EVENT_DROP_FILE, SDL_EVENT_DROP_POSITION, true},
    TypeRange{SDL_EVENT_AUDIO_DEVICE_ADDED, SDL_EVENT_AUDIO_DEVICE_FORMAT_CHANGED},
    TypeRange{SDL_EVENT_SENSOR_UPDATE, SDL_EVENT_SENSOR_UPDATE},
    TypeRange{SDL_EVENT_PEN_PROXIMITY_IN, SDL_EVENT_PEN_AXIS},
    TypeRange{SDL_EVENT_CAMERA_DEVICE_ADDED, SDL_EVENT_CAMERA_DEVICE_DENIED},
    TypeRange{SDL_EVENT_RENDER_TARGETS_RESET, SDL_EVENT_RENDER_DEVICE_LOST},
    TypeRange{SDL_EVENT_PRIVATE0, SDL_EVENT_POLL_SENTINEL - 1},
    TypeRange{SDL_EVENT_USER, SDL_EVENT_USER + 2},
    TypeRange{SDL_EVENT_LAST, SDL_EVENT_LAST},
};

SDL_Event EventOf(SDL_EventType Type) {
    SDL_Event event;
    SDL_zero(event);
    event.type = Type;
    return event;
}

/// SDL holds its devices while it raises an event of one, and those who watch it count on that.
void PushAsDevice(const SDL_Event &Event) {
    SDL_LockJoysticks();
    PushEvent(Event);
    SDL_UnlockJoysticks();
}

/// Whether a key may lead from the screen that is shown to another one.
bool Leaves(const GameState &State, std::int32_t Key) {
    return IsKeyEscape(Key) || (IsKeyActivate(Key) && State.Screen != ScreenPlaying);
}

bool IsOnApply(const GameState &State) {
    switch (State.OptionsPage) {
    case OptionsPageControls:
        return State.ControlsSelection == static_cast<std::int32_t>(ControlsRow::Apply);
    case OptionsPageGraphics:
        return State.GraphicsSelection == static_cast<std::int32_t>(GraphicsRow::Apply);
    case OptionsPageAudio:
        return State.AudioSelection == static_cast<std::int32_t>(AudioRow::Apply);
    default:
        return false;
    }
}

/// Whether a key would end the program.
bool Quits(const GameState &State, std::int32_t Key) {
    const bool isOnQuit = State.MainMenuSelection + 1 == MainMenuRowCount(State.HasRunState);
    return State.Screen == ScreenMainMenu && (IsKeyEscape(Key) || (IsKeyActivate(Key) && isOnQuit));
}

} // namespace

const std::array<RandomEvents::Kind, 10> RandomEvents::Kinds{{
    {300, &RandomEvents::PushKey},
    {60, &RandomEvents::PushGamepadAxis},
    {60, &RandomEvents::PushGamepadButton},
    {60, &RandomEvents::PushJoystickPart},
    {60, &RandomEvents::PushJoystickButton},
    {30, &RandomEvents::PushDeviceRumour},
    {5, &RandomEvents::PlugInOrOut},
    {80, &RandomEvents::MoveDevice},
    {2, &RandomEvents::ChangeWindow},
    {343, &RandomEvents::PushIgnored},
}};

void RandomEvents::PushKeyOrOther(const Program &Game) {
    const bool isCapturing = Game.State.CaptureActive && Draw(4) == 0;
    if (isCapturing && Game.State.CaptureKind == CaptureKindGamepad) {
        PushGamepadButton(Game);
    } else if (isCapturing && Game.State.CaptureKind == CaptureKindJoystick) {
        PushJoystickButton(Game);
    } else if (Draw(3) > 0) {
        PushKey(Game);
    } else {
        PushAny(Game);
    }
}

void RandomEvents::PushAny(const Program &Game) {
    std::uint32_t drawn = Draw(1000); // the sum of all shares
    const Kind *kind = Kinds.data();
    while (drawn >= kind->Share) {
        drawn -= kind->Share;
        ++kind;
    }
    (this->*kind->Push)(Game);
}

void RandomEvents::PushHarmless(const Program &Game) {
    IsHarmless = true;
    PushAny(Game);
    IsHarmless = false;
}

void RandomEvents::LetGo() {
    Plugged.clear();
    Held = {};
}

/// Bytes that mean nothing.
SDL_Event RandomEvents::DrawBytes() {
    std::array<std::uint32_t, sizeof(SDL_Event) / sizeof(std::uint32_t)> words{};
    for (std::uint32_t &word : words) {
        word = static_cast<std::uint32_t>(Random());
    }
    SDL_Event event;
    std::memcpy(&event, words.data(), sizeof event);
    return event;
}

/// Keys of menus, keys that are bound, and any other; some are beyond the last of SDL's.
std::int32_t RandomEvents::DrawScancode(const Program &Game) {
    const std::uint32_t kind = Draw(12);
    auto key = DrawFrom<std::int32_t>(WalkedKeys);
    if (kind == 0) {
        key = static_cast<std::int32_t>(Draw(2 * SDL_SCANCODE_COUNT));
    } else if (kind <= 2) {
        key = DrawFrom<std::int32_t>(Game.State.KeyboardBindings);
    }
    if (IsHarmless) {
        return Leaves(Game.State, key) ? DownKey : key;
    }
    // In play nearly no key means anything, little that is changed would be applied, and the main menu would
    // not be seen for long.
    if (Game.State.Screen == ScreenPlaying && Draw(8) == 0) {
        return EscapeKey;
    }
    if (IsOnApply(Game.State) && Draw(4) == 0) {
        return EnterKey;
    }
    return Quits(Game.State, key) && Draw(8) > 0 ? DownKey : key;
}

/// The devices that the program has opened, one of those that are there, and some that are not.
SDL_JoystickID RandomEvents::DrawId(const Program &Game) {
    switch (Draw(8)) {
    case 0:
        return 0;
    case 1:
        return MadeUpId + Draw(1000);
    case 2:
        return Plugged.empty() ? 0 : Plugged[Draw(static_cast<std::uint32_t>(Plugged.size()))].Device->Id;
    case 3:
    case 4:
    case 5:
        return Game.Devices.GamepadId;
    default:
        return Game.Devices.JoystickId;
    }
}

Sint16 RandomEvents::DrawAxisValue() {
    return Draw(4) == 0 ? static_cast<Sint16>(Draw(65536)) : DrawFrom<Sint16>(AxisValues);
}

/// Mostly one that there is on usual devices. The harmless ones are the button that fires, in play, and one
/// that is never bound.
Uint8 RandomEvents::DrawButton(const Program &Game, std::int32_t FireButton) {
    if (IsHarmless) {
        return static_cast<Uint8>(Game.State.Screen == ScreenPlaying ? FireButton : 255);
    }
    return static_cast<Uint8>(Draw(4) == 0 ? Draw(256) : Draw(16));
}

/// A key goes down or up, mostly as SDL has it: one that goes down while it is held repeats.
void RandomEvents::PushKey(const Program &Game) {
    const std::int32_t key = DrawScancode(Game);
    const auto place = static_cast<std::size_t>(key);
    const bool isDown = Draw(4) > 0;
    const bool wasHeld = place < Held.size() && Held.at(place);
    SDL_Event event = EventOf(isDown ? SDL_EVENT_KEY_DOWN : SDL_EVENT_KEY_UP);
    event.key.scancode = static_cast<SDL_Scancode>(key);
    event.key.key =
        Draw(2) == 0 ? SDL_GetKeyFromScancode(event.key.scancode, SDL_KMOD_NONE, true) : Draw(1000);
    event.key.mod = static_cast<SDL_Keymod>(Draw(65536));
    event.key.raw = static_cast<Uint16>(Draw(65536));
    event.key.windowID = Draw(2) == 0 ? SDL_GetWindowID(Game.Window) : Draw(1000);
    event.key.which = Draw(4);
    event.key.down = isDown != (Draw(50) == 0);
    // Not each time, or a held key would not be heard again before it is released.
    event.key.repeat = isDown && Draw(3) == 0 && (wasHeld || Draw(50) == 0);
    if (place < Held.size()) {
        Held.at(place) = isDown;
    }
    PushEvent(event);
}

void RandomEvents::PushGamepadAxis(const Program &Game) {
    SDL_Event event = EventOf(SDL_EVENT_GAMEPAD_AXIS_MOTION);
    event.gaxis.which = DrawId(Game);
    event.gaxis.axis = static_cast<Uint8>(Draw(4) == 0 ? Draw(256) : Draw(2));
    event.gaxis.value = DrawAxisValue();
    PushAsDevice(event);
}

void RandomEvents::PushGamepadButton(const Program &Game) {
    SDL_Event event = EventOf(Draw(2) == 0 ? SDL_EVENT_GAMEPAD_BUTTON_DOWN : SDL_EVENT_GAMEPAD_BUTTON_UP);
    event.gbutton.which = DrawId(Game);
    event.gbutton.button = DrawButton(Game, BindingOf(Game.State.GamepadBindings, PadAction::Fire));
    event.gbutton.down = event.type == SDL_EVENT_GAMEPAD_BUTTON_DOWN;
    PushAsDevice(event);
}

/// Axes and hats of gamepads are moved by MoveDevice alone: SDL translates them by tables that are as long as
/// the device has them.
void RandomEvents::PushJoystickPart(const Program &Game) {
    SDL_Event event = EventOf(SDL_EVENT_JOYSTICK_AXIS_MOTION);
    SDL_JoystickID id = DrawId(Game);
    id = SDL_GetGamepadFromID(id) == nullptr ? id : MadeUpId;
    if (Draw(2) == 0) {
        event.jaxis.which = id;
        event.jaxis.axis = static_cast<Uint8>(Draw(4) == 0 ? Draw(256) : Draw(2));
        event.jaxis.value = DrawAxisValue();
    } else if (Draw(4) > 0) {
        event.type = SDL_EVENT_JOYSTICK_HAT_MOTION;
        event.jhat.which = id;
        event.jhat.hat = static_cast<Uint8>(Draw(256));
        event.jhat.value = static_cast<Uint8>(Draw(4) == 0 ? Draw(256) : 1U << Draw(4));
    } else {
        event.type = SDL_EVENT_JOYSTICK_BALL_MOTION;
        event.jball.which = id;
        event.jball.xrel = DrawAxisValue();
    }
    PushAsDevice(event);
}

void RandomEvents::PushJoystickButton(const Program &Game) {
    SDL_Event event = EventOf(Draw(2) == 0 ? SDL_EVENT_JOYSTICK_BUTTON_DOWN : SDL_EVENT_JOYSTICK_BUTTON_UP);
    event.jbutton.which = DrawId(Game);
    event.jbutton.button = DrawButton(Game, BindingOf(Game.State.JoystickBindings, PadAction::Fire));
    event.jbutton.down = event.type == SDL_EVENT_JOYSTICK_BUTTON_DOWN;
    PushAsDevice(event);
}

/// A device is said to have come or gone, which it mostly has not.
void RandomEvents::PushDeviceRumour(const Program &Game) {
    constexpr std::array types{SDL_EVENT_GAMEPAD_ADDED, SDL_EVENT_GAMEPAD_REMOVED, SDL_EVENT_JOYSTICK_ADDED,
        SDL_EVENT_JOYSTICK_REMOVED};
    SDL_Event event = EventOf(DrawFrom<SDL_EventType>(types));
    event.jdevice.which = DrawId(Game); // where it stands in the events of gamepads as well
    PushAsDevice(event);
}

void RandomEvents::PlugInOrOut(const Program & /*Game*/) {
    if (Plugged.empty() || (Plugged.size() < MostDevices && Draw(2) == 0)) {
        const auto shape = DrawFrom<DeviceShape>(Shapes);
        Plugged.push_back({shape, std::make_unique<VirtualDevice>(shape)});
    } else {
        Plugged.erase(Plugged.begin() + Draw(static_cast<std::uint32_t>(Plugged.size())));
    }
}

/// Moves something on a device, and SDL raises what comes of it.
void RandomEvents::MoveDevice(const Program &Game) {
    if (Plugged.empty()) {
        PlugInOrOut(Game);
    }
    const auto &[shape, device] = Plugged[Draw(static_cast<std::uint32_t>(Plugged.size()))];
    const std::uint32_t part = Draw(3);
    if (part == 0 && shape.Axes > 0) {
        device->SetAxis(static_cast<int>(Draw(shape.Axes)), DrawAxisValue());
    } else if (part == 1 && shape.Buttons > 0) {
        const bool isGamepad = shape.Type == SDL_JOYSTICK_TYPE_GAMEPAD;
        const BindingTable &bindings = isGamepad ? Game.State.GamepadBindings : Game.State.JoystickBindings;
        const int button = DrawButton(Game, BindingOf(bindings, PadAction::Fire));
        device->SetButton(button % shape.Buttons, Draw(2) == 0);
    } else if (part == 2 && shape.Hats > 0) {
        device->SetHat(static_cast<int>(Draw(shape.Hats)), static_cast<Uint8>(Draw(256)));
    }
}

/// What a window manager may do to the window unasked, as far as the driver can; what is hidden comes back.
void RandomEvents::ChangeWindow(const Program &Game) {
    using Action = bool (*)(SDL_Window *);
    constexpr std::array<Action, 5> actions{
        SDL_HideWindow, SDL_MinimizeWindow, SDL_MaximizeWindow, SDL_RestoreWindow, SDL_RaiseWindow};
    const SDL_WindowFlags flags = SDL_GetWindowFlags(Game.Window);
    const std::uint32_t drawn = Draw(8);
    if ((flags & SDL_WINDOW_HIDDEN) != 0) {
        SDL_ShowWindow(Game.Window);
    } else if ((flags & SDL_WINDOW_MINIMIZED) != 0) {
        SDL_RestoreWindow(Game.Window);
    } else if (drawn < actions.size()) {
        actions.at(drawn)(Game.Window);
    } else if (drawn == actions.size()) {
        SDL_SetWindowFullscreen(Game.Window, Draw(2) == 0);
    } else {
        SDL_SetWindowSize(Game.Window, static_cast<int>(1 + Draw(1300)), static_cast<int>(1 + Draw(800)));
    }
}

/// Half of what happens to windows and displays is told of the game's own.
void RandomEvents::PushIgnored(const Program &Game) {
    const auto range = DrawFrom<TypeRange>(IgnoredTypes);
    const Uint32 type = range.First + Draw(range.Last - range.First + 1);
    SDL_Event event = range.HasPointers ? EventOf(SDL_EVENT_FIRST) : DrawBytes();
    event.type = type;
    if (type >= SDL_EVENT_WINDOW_FIRST && type <= SDL_EVENT_WINDOW_LAST && Draw(2) == 0) {
        event.window.windowID = SDL_GetWindowID(Game.Window);
    } else if (type >= SDL_EVENT_DISPLAY_FIRST && type <= SDL_EVENT_DISPLAY_LAST && Draw(2) == 0) {
        event.display.displayID = SDL_GetDisplayForWindow(Game.Window);
    }
    PushAsDevice(event);
}
