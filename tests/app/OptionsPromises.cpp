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

/// Every value within its range.
std::string BrokenValue(const GameState &State) {
    return FirstBroken({
        {"OptionsMainSelection", State.OptionsMainSelection >= 0 && State.OptionsMainSelection < 4},
        {"ControlsSelection", State.ControlsSelection >= 0 && State.ControlsSelection < 10},
        {"GraphicsSelection", State.GraphicsSelection >= 0 && State.GraphicsSelection < 9},
        {"AudioSelection", State.AudioSelection >= 0 && State.AudioSelection < 10},
        {"ResolutionIndex", State.ResolutionIndex >= 0 &&
                                State.ResolutionIndex < static_cast<std::int32_t>(State.Resolutions.size())},
        {"RefreshRate", std::ranges::count(State.RefreshRates, State.RefreshRate) == 1},
        {"PendingMasterVolume", IsPercentage(State.PendingMasterVolume)},
        {"PendingMusicVolume", IsPercentage(State.PendingMusicVolume)},
        {"PendingSfxVolume", IsPercentage(State.PendingSfxVolume)},
        {"MasterVolume", IsPercentage(State.MasterVolume)},
        {"MusicVolume", IsPercentage(State.MusicVolume)},
        {"SfxVolume", IsPercentage(State.SfxVolume)},
        {"KeyboardBindings", std::ranges::all_of(State.KeyboardBindings, IsBindable)},
        {"PendingKeyboard", std::ranges::all_of(State.PendingKeyboard, IsBindable)},
        {"Language", std::ranges::find(Localization.Languages, State.Language, &LanguageEntry::Code) !=
                         Localization.Languages.end()},
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
    std::string value = BrokenValue(State);
    return value.empty() ? BrokenEdit(State) : value;
}
