#include "tests/app/OptionsPromises.hpp"

#include "state/GameState.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/Promises.hpp"
#include "text/Localization.hpp"

#include <algorithm>

namespace {

bool IsPercentage(std::int32_t Value) {
    return Value >= 0 && Value <= 100;
}

bool IsBindable(std::int32_t Key) {
    return Key >= 0 && Key < 512 && Key != EscapeKey && Key != DeleteKey && Key != BackspaceKey;
}

/// A gamepad's button or none.
bool IsPadButton(std::int32_t Button) {
    return Button >= -1 && Button <= 25;
}

/// A joystick's button or none.
bool IsStickButton(std::int32_t Button) {
    return Button >= -1;
}

bool IsInCatalogue(const std::string &Language) {
    return std::ranges::find(Localization.Languages, Language, &LanguageEntry::Code) !=
           Localization.Languages.end();
}

bool IsDevice(enum ControlsDevice Device) {
    return Device >= ControlsDeviceKeyboard && Device <= ControlsDeviceJoystick;
}

/// Every control within its range, applied and pending.
std::string BrokenControl(const GameState &State) {
    return FirstBroken({
        {"ControlsDevice", IsDevice(State.ControlsDevice)},
        {"PendingControlsDevice", IsDevice(State.PendingControlsDevice)},
        {"KeyboardBindings", std::ranges::all_of(State.KeyboardBindings, IsBindable)},
        {"PendingKeyboard", std::ranges::all_of(State.PendingKeyboard, IsBindable)},
        {"GamepadBindings", std::ranges::all_of(State.GamepadBindings, IsPadButton)},
        {"PendingGamepad", std::ranges::all_of(State.PendingGamepad, IsPadButton)},
        {"JoystickBindings", std::ranges::all_of(State.JoystickBindings, IsStickButton)},
        {"PendingJoystick", std::ranges::all_of(State.PendingJoystick, IsStickButton)},
    });
}

/// Every other value within its range.
std::string BrokenValue(const GameState &State) {
    return FirstBroken({
        {"OptionsMainSelection", State.OptionsMainSelection >= 0 && State.OptionsMainSelection < 4},
        {"ControlsSelection", State.ControlsSelection >= 0 && State.ControlsSelection < 10},
        {"GraphicsSelection", State.GraphicsSelection >= 0 && State.GraphicsSelection < 9},
        {"AudioSelection", State.AudioSelection >= 0 && State.AudioSelection < 10},
        {"ResolutionIndex", State.ResolutionIndex >= 0 &&
                                State.ResolutionIndex < static_cast<std::int32_t>(State.Resolutions.size())},
        {"AspectMode", State.AspectMode == AspectWidescreen || State.AspectMode == AspectClassic4x3},
        {"RefreshRate", std::ranges::count(State.RefreshRates, State.RefreshRate) == 1},
        {"PendingMasterVolume", IsPercentage(State.PendingMasterVolume)},
        {"PendingMusicVolume", IsPercentage(State.PendingMusicVolume)},
        {"PendingSfxVolume", IsPercentage(State.PendingSfxVolume)},
        {"MasterVolume", IsPercentage(State.MasterVolume)},
        {"MusicVolume", IsPercentage(State.MusicVolume)},
        {"SfxVolume", IsPercentage(State.SfxVolume)},
        {"Language", IsInCatalogue(State.Language)},
        {"PendingLanguage", IsInCatalogue(State.PendingLanguage)},
    });
}

/// Each page is in edit exactly while it is open, and a capture runs on one page alone.
std::string BrokenEdit(const GameState &State) {
    const auto isOpen = [&State](enum OptionsPage Page) {
        return State.OptionsPage == Page;
    };
    return FirstBroken({
        {"OptionsPage", isOpen(OptionsPageMain) || State.Screen == ScreenOptions},
        {"PendingControlsValid", State.PendingControlsValid == isOpen(OptionsPageControls)},
        {"GraphicsSnapshotValid", State.GraphicsSnapshotValid == isOpen(OptionsPageGraphics)},
        {"PendingAudioValid", State.PendingAudioValid == isOpen(OptionsPageAudio)},
        {"CaptureKind", State.CaptureActive == (State.CaptureKind != CaptureKindNone)},
        {"CaptureActive", !State.CaptureActive || isOpen(OptionsPageControls)},
    });
}

} // namespace

std::string BrokenOption(const GameState &State) {
    for (const auto &broken : {BrokenValue(State), BrokenControl(State), BrokenEdit(State)}) {
        if (!broken.empty()) {
            return broken;
        }
    }
    return {};
}
