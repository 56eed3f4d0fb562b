#include "fuzz/support/ExpectedFailure.hpp"
#include "fuzz/support/Target.hpp"
#include "state/GameState.hpp"
#include "state/RefreshRates.hpp"
#include "state/Resolutions.hpp"
#include "store/OptionsFile.hpp"

#include <algorithm>
#include <array>
#include <limits>
#include <tuple>

// The input as the options file: loaded, saved and loaded again, with a display of three modes or none.

namespace {

GameState FreshState(bool HasDisplay) {
    GameState state;
    if (HasDisplay) {
        state.DisplayModes = {{1280, 720, 60}, {1920, 1080, 60}, {1920, 1080, 75}};
        state.Resolutions = {{1280, 720}, {1920, 1080}};
    }
    return state;
}

bool AreWithin(const BindingTable &Table, std::int32_t Lowest, std::int32_t Highest) {
    return std::ranges::all_of(Table, [=](std::int32_t Value) {
        return Value >= Lowest && Value <= Highest;
    });
}

void DemandRanges(const GameState &State) {
    for (const std::int32_t volume : {State.MasterVolume, State.MusicVolume, State.SfxVolume}) {
        Demand(volume >= 0 && volume <= 100, "wrong volume");
    }
    Demand(State.RefreshRate >= 0 && State.RefreshRate <= 1000, "wrong refresh rate");
    Demand(AreWithin(State.KeyboardBindings, UnboundKey, LastScancode), "wrong key");
    Demand(AreWithin(State.GamepadBindings, UnboundButton, LastGamepadButton), "wrong button of a pad");
    Demand(AreWithin(State.JoystickBindings, UnboundButton, std::numeric_limits<std::int32_t>::max()),
        "wrong button of a joystick");
    const Resolution size = CurrentResolution(State);
    Demand(size.Width > 0 && size.Height > 0, "wrong resolution");
    Demand(!State.Language.empty(), "no language");
}

/// What the file holds of a state, but for the language.
auto StoredOptions(const GameState &State) {
    const Resolution size = CurrentResolution(State);
    return std::tuple(State.AspectMode, size.Width, size.Height, State.RefreshRate, State.Fullscreen,
        State.VSync, State.MasterVolume, State.MusicVolume, State.SfxVolume, State.MusicEnabled,
        State.SfxEnabled, State.ControlsDevice, State.KeyboardBindings, State.GamepadBindings,
        State.JoystickBindings);
}

void LoadSaveLoad(bool HasDisplay) {
    GameState state = FreshState(HasDisplay);
    LoadOptions(state);
    DemandRanges(state);
    Demand(SaveOptions(state), "the options were not saved");
    GameState again = FreshState(HasDisplay);
    const bool languageSurvives = SurvivesEscaping(state.Language);
    const bool wasRead = Succeeds([&again] {
        Demand(LoadOptions(again), "the saved options were not loaded");
    });
    Demand(wasRead || !languageSurvives, "the saved options raised a failure");
    if (languageSurvives) {
        Demand(StoredOptions(again) == StoredOptions(state), "an option did not come back");
        Demand(again.Language == state.Language, "the language did not come back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Data, std::size_t Size) {
    WriteBytes(Home().FilePath(OptionsFileName), TextOf({Data, Size}));
    Succeeds([Size] {
        LoadSaveLoad(Size % 2 == 1);
    });
    return 0;
}
