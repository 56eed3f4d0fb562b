#include "input/BindingLabels.hpp"

#include "state/Bindings.hpp"
#include "text/Localization.hpp"
#include "text/Utf8.hpp"

#include <SDL3/SDL.h>

namespace {

std::string Numbered(TextKey Prefix, std::int32_t Number) {
    return GetText(Prefix) + " " + std::to_string(Number);
}

/// SDL's name for a thing in capitals, or a numbered word where SDL has none.
std::string NamedOrNumbered(const char *Name, TextKey Prefix, std::int32_t Number) {
    const bool isNamed = Name != nullptr && *Name != '\0';
    return isNamed ? ToUpperUtf8(Name) : Numbered(Prefix, Number);
}

} // namespace

std::string KeyboardBindingLabel(std::int32_t Value) {
    if (!IsScancode(Value)) {
        return GetText(TextKey::ControlsUnbound);
    }
    const char *name = SDL_GetScancodeName(static_cast<SDL_Scancode>(Value));
    return NamedOrNumbered(name, TextKey::ControlsScancodePrefix, Value);
}

std::string GamepadBindingLabel(std::int32_t Value) {
    if (!IsGamepadButton(Value)) {
        return GetText(TextKey::ControlsUnbound);
    }
    const char *name = SDL_GetGamepadStringForButton(static_cast<SDL_GamepadButton>(Value));
    return NamedOrNumbered(name, TextKey::ControlsButtonPrefix, Value);
}

std::string JoystickBindingLabel(std::int32_t Value) {
    return Value < 0 ? GetText(TextKey::ControlsUnbound) : Numbered(TextKey::ControlsButtonPrefix, Value);
}
