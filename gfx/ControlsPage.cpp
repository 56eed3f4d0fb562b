#include "gfx/ControlsPage.hpp"

#include "gfx/MenuStyle.hpp"
#include "gfx/OptionsRows.hpp"
#include "input/BindingLabels.hpp"
#include "input/Devices.hpp"
#include "state/GameState.hpp"
#include "state/MenuRows.hpp"
#include "text/Localization.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace {

/// In the order of KeyboardAction and of PadAction.
constexpr std::array KeyboardActionNames{
    TextKey::ActionMoveLeft,
    TextKey::ActionMoveRight,
    TextKey::ActionFire,
    TextKey::ActionBomb,
    TextKey::ActionHeal,
};
constexpr std::array PadActionNames{
    TextKey::ActionFire,
    TextKey::ActionBomb,
    TextKey::ActionHeal,
    TextKey::ActionConfirm,
    TextKey::ActionBack,
};
static_assert(KeyboardActionNames.size() == BindingTable().size());
static_assert(PadActionNames.size() == BindingTable().size());

enum ControlsDevice ShownDevice(const GameState &State) {
    return State.PendingControlsValid ? State.PendingControlsDevice : State.ControlsDevice;
}

std::string WithPresence(TextKey Name, bool IsOpen) {
    return GetText(Name) + " (" + SwitchText(IsOpen) + ")";
}

std::string DeviceText(enum ControlsDevice Device, const InputDevices &Devices) {
    switch (Device) {
    case ControlsDeviceKeyboard:
        return GetText(TextKey::DeviceKeyboard);
    case ControlsDeviceGamepad:
        return WithPresence(TextKey::DeviceGamepad, Devices.Gamepad != nullptr);
    case ControlsDeviceJoystick:
        return WithPresence(TextKey::DeviceJoystick, Devices.Joystick != nullptr);
    }
    return GetText(TextKey::DeviceUnknown);
}

std::string BindingText(const GameState &State, enum ControlsDevice Device, std::size_t Row) {
    const bool isPending = State.PendingControlsValid;
    switch (Device) {
    case ControlsDeviceGamepad:
        return GamepadBindingLabel((isPending ? State.PendingGamepad : State.GamepadBindings)[Row]);
    case ControlsDeviceJoystick:
        return JoystickBindingLabel((isPending ? State.PendingJoystick : State.JoystickBindings)[Row]);
    default:
        return KeyboardBindingLabel((isPending ? State.PendingKeyboard : State.KeyboardBindings)[Row]);
    }
}

std::array<OptionsRow, ControlsRowCount> Rows(const GameState &State, const InputDevices &Devices) {
    const enum ControlsDevice device = ShownDevice(State);
    const bool isPad = device == ControlsDeviceGamepad || device == ControlsDeviceJoystick;
    const auto &names = isPad ? PadActionNames : KeyboardActionNames;
    const auto binding = [&](std::size_t Row) {
        return OptionsRow{names[Row], BindingText(State, device, Row)};
    };
    return {{
        {TextKey::OptionsControlsDevice, DeviceText(device, Devices)},
        binding(0),
        binding(1),
        binding(2),
        binding(3),
        binding(4),
        {TextKey::OptionsDefaultSettings, {}},
        {TextKey::CommonApply, {}},
        {TextKey::CommonRevert, {}},
        {TextKey::CommonBack, {}},
    }};
}

/// A prompt's words and the name of the action behind them.
std::string Prompt(TextKey Words, std::span<const TextKey> Names, std::int32_t Row) {
    return GetText(Words) + GetText(Names[static_cast<std::size_t>(Row)]);
}

std::string CapturePrompt(const GameState &State) {
    switch (State.CaptureKind) {
    case CaptureKindKeyboard:
        return Prompt(
            TextKey::OptionsControlsBindPromptKeyboard, KeyboardActionNames, State.CaptureKeyboardRow);
    case CaptureKindGamepad:
        return Prompt(TextKey::OptionsControlsBindPromptGamepad, PadActionNames, State.CaptureGamepadRow);
    case CaptureKindJoystick:
        return Prompt(TextKey::OptionsControlsBindPromptJoystick, PadActionNames, State.CaptureJoystickRow);
    default:
        return GetText(TextKey::OptionsControlsBindPromptAny);
    }
}

} // namespace

void DrawControlsPage(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices,
    std::string_view DeviceLine) {
    const float centerX = ScreenCenterX();
    DrawOptionsRows(Renderer, Rows(State, Devices), State.ControlsSelection);
    if (State.CaptureActive) {
        DrawHint(Renderer, CapturePrompt(State), centerX, OptionsFirstHintY, PromptColor);
        DrawHint(
            Renderer, GetText(TextKey::OptionsControlsHintEscCancelDelClear), centerX, OptionsSecondHintY);
        return;
    }
    DrawHint(Renderer, GetText(TextKey::OptionsControlsHintRebindDevice), centerX, OptionsFirstHintY);
    DrawHint(Renderer,
        DeviceLine.empty() ? std::string_view(GetText(TextKey::OptionsControlsHintEscBack)) : DeviceLine,
        centerX, OptionsSecondHintY);
}
