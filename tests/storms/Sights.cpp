#include "tests/storms/Sights.hpp"

#include "app/Program.hpp"
#include "state/LogicalScreen.hpp"

#include <iterator>

namespace {

struct Frame {
    const GameState &Before;
    const GameState &After;
    const InputDevices &Devices;
    bool AppliesDisplay;
};

template <enum Screen Shown> bool Shows(const Frame &Seen) {
    return Seen.After.Screen == Shown;
}

template <enum OptionsPage Page> bool IsOn(const Frame &Seen) {
    return Seen.After.Screen == ScreenOptions && Seen.After.OptionsPage == Page;
}

template <enum CaptureKind Kind> bool Captures(const Frame &Seen) {
    return Seen.After.CaptureKind == Kind;
}

/// A capture that was running has ended in the frame, and left something else in the pending table.
template <enum CaptureKind Kind, BindingTable GameState::*Pending> bool Binds(const Frame &Seen) {
    return Seen.Before.CaptureKind == Kind && Seen.After.CaptureKind == CaptureKindNone &&
           Seen.Before.*Pending != Seen.After.*Pending;
}

bool AppliesControls(const Frame &Seen) {
    return Seen.Before.KeyboardBindings != Seen.After.KeyboardBindings ||
           Seen.Before.GamepadBindings != Seen.After.GamepadBindings ||
           Seen.Before.JoystickBindings != Seen.After.JoystickBindings;
}

bool AppliesAudio(const Frame &Seen) {
    return Seen.Before.MasterVolume != Seen.After.MasterVolume ||
           Seen.Before.MusicVolume != Seen.After.MusicVolume ||
           Seen.Before.SfxVolume != Seen.After.SfxVolume ||
           Seen.Before.MusicEnabled != Seen.After.MusicEnabled ||
           Seen.Before.SfxEnabled != Seen.After.SfxEnabled || Seen.Before.Language != Seen.After.Language;
}

struct Sight {
    const char *Name;
    bool (*IsSeen)(const Frame &Seen);
};

constexpr Sight All[] = {
    {"the main menu", Shows<ScreenMainMenu>},
    {"the options", IsOn<OptionsPageMain>},
    {"the controls page", IsOn<OptionsPageControls>},
    {"the graphics page", IsOn<OptionsPageGraphics>},
    {"the audio page", IsOn<OptionsPageAudio>},
    {"help", Shows<ScreenHelp>},
    {"play", Shows<ScreenPlaying>},
    {"pause", Shows<ScreenPaused>},
    {"the credits", Shows<ScreenCredits>},
    {"game over", Shows<ScreenGameOver>},
    {"capture of a key", Captures<CaptureKindKeyboard>},
    {"capture of a gamepad's button", Captures<CaptureKindGamepad>},
    {"capture of a joystick's button", Captures<CaptureKindJoystick>},
    {"a key is bound", Binds<CaptureKindKeyboard, &GameState::PendingKeyboard>},
    {"a gamepad's button is bound", Binds<CaptureKindGamepad, &GameState::PendingGamepad>},
    {"a joystick's button is bound", Binds<CaptureKindJoystick, &GameState::PendingJoystick>},
    {"controls are applied", AppliesControls},
    {"graphics are applied",
        [](const Frame &Seen) {
            return Seen.AppliesDisplay;
        }},
    {"audio is applied", AppliesAudio},
    {"another language is applied",
        [](const Frame &Seen) {
            return Seen.Before.Language != Seen.After.Language;
        }},
    {"a narrow screen",
        [](const Frame & /*Seen*/) {
            return LogicalWidth < DefaultLogicalWidth;
        }},
    {"a wide screen",
        [](const Frame & /*Seen*/) {
            return LogicalWidth > DefaultLogicalWidth;
        }},
    {"a gamepad is open",
        [](const Frame &Seen) {
            return Seen.Devices.Gamepad != nullptr;
        }},
    {"a joystick is open",
        [](const Frame &Seen) {
            return Seen.Devices.Joystick != nullptr;
        }},
    {"the car is dying",
        [](const Frame &Seen) {
            return Seen.After.PlayerDying;
        }},
    {"the program is left",
        [](const Frame &Seen) {
            return !Seen.After.Running;
        }},
};

} // namespace

Sights::Sights() : Frames(std::size(All)) {}

void Sights::Note(const GameState &Before, const Program &After, bool AppliesDisplay) {
    const Frame seen{Before, After.State, After.Devices, AppliesDisplay};
    for (std::size_t i = 0; i < Frames.size(); ++i) {
        Frames[i] += All[i].IsSeen(seen) ? 1 : 0;
    }
}

std::vector<std::string> Sights::Missing() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < Frames.size(); ++i) {
        if (Frames[i] == 0) {
            names.emplace_back(All[i].Name);
        }
    }
    return names;
}

std::string Sights::Table() const {
    std::string table;
    for (std::size_t i = 0; i < Frames.size(); ++i) {
        table += std::to_string(Frames[i]) + " " + All[i].Name + "\n";
    }
    return table;
}
