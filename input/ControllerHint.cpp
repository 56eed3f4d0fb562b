#include "input/ControllerHint.hpp"

#include "input/BindingLabels.hpp"
#include "input/Devices.hpp"
#include "state/GameState.hpp"
#include "text/Localization.hpp"

#include <initializer_list>

namespace {

constexpr std::string_view GroupGap = "   ";

using BindingLabel = std::string (*)(std::int32_t Value);

/// Appends words with blanks between them, and a wider gap before them if the line has words already.
void AppendWords(std::string &Line, std::initializer_list<std::string_view> Words) {
    std::string_view gap = Line.empty() ? std::string_view() : GroupGap;
    for (const std::string_view word : Words) {
        Line.append(gap).append(word);
        gap = " ";
    }
}

/// Appends what one device's buttons do.
void AppendGroup(std::string &Line, TextKey Prefix, const BindingTable &Bindings, BindingLabel Label,
    std::string_view ConfirmLabel, std::string_view BackLabel) {
    const bool same = !ConfirmLabel.empty() && ConfirmLabel == BackLabel;
    const std::string_view between =
        same ? std::string_view(GetText(TextKey::ControllerHintOr)) : ConfirmLabel;
    const std::string confirm = Label(BindingOf(Bindings, PadAction::Confirm));
    const std::string back = Label(BindingOf(Bindings, PadAction::Back));
    AppendWords(Line, {GetText(Prefix), confirm, between, back, BackLabel});
}

} // namespace

std::string ControllerHint(const GameState &State, const InputDevices &Devices, std::string_view ConfirmLabel,
    std::string_view BackLabel) {
    const std::string_view confirm =
        ConfirmLabel.empty() ? std::string_view(GetText(TextKey::ControllerHintSelect)) : ConfirmLabel;
    const std::string_view back =
        BackLabel.empty() ? std::string_view(GetText(TextKey::ControllerHintBack)) : BackLabel;
    std::string line;
    if (Devices.Gamepad != nullptr) {
        AppendGroup(line, TextKey::ControllerHintPadPrefix, State.GamepadBindings, GamepadBindingLabel,
            confirm, back);
    }
    if (Devices.Joystick != nullptr) {
        AppendGroup(line, TextKey::ControllerHintJoyPrefix, State.JoystickBindings, JoystickBindingLabel,
            confirm, back);
    }
    return line;
}
