#include "tests/app/StateText.hpp"

#include "tests/sim/RecordHash.hpp"

#include <sstream>

namespace {

class StateWriter {
public:
    template <typename Value> void Line(const char *Name, const Value &Field) {
        Text << Name << ' ' << Field << '\n';
    }

    template <typename List> void ListLine(const char *Name, const List &Values) {
        Text << Name;
        for (const auto &value : Values) {
            Write(value);
        }
        Text << '\n';
    }

    std::string Written() const {
        return Text.str();
    }

private:
    void Write(std::int32_t Value) {
        Text << ' ' << Value;
    }

    void Write(const Resolution &Value) {
        Text << ' ' << Value.Width << 'x' << Value.Height;
    }

    void Write(const DisplayMode &Value) {
        Text << ' ' << Value.Width << 'x' << Value.Height << '@' << Value.Hz;
    }

    std::ostringstream Text;
};

void WriteScreens(StateWriter &Writer, const GameState &State) {
    Writer.Line("Screen", State.Screen);
    Writer.Line("Running", State.Running);
    Writer.Line("MainMenuSelection", State.MainMenuSelection);
    Writer.Line("PauseSelection", State.PauseSelection);
    Writer.Line("OptionsReturnScreen", State.OptionsReturnScreen);
    Writer.Line("HelpReturnScreen", State.HelpReturnScreen);
    Writer.Line("CreditsScroll", State.CreditsScroll);
}

void WriteOptionPages(StateWriter &Writer, const GameState &State) {
    Writer.Line("OptionsPage", State.OptionsPage);
    Writer.Line("OptionsMainSelection", State.OptionsMainSelection);
    Writer.Line("ControlsSelection", State.ControlsSelection);
    Writer.Line("GraphicsSelection", State.GraphicsSelection);
    Writer.Line("AudioSelection", State.AudioSelection);
}

void WriteControlsEdit(StateWriter &Writer, const GameState &State) {
    Writer.Line("CaptureActive", State.CaptureActive);
    Writer.Line("CaptureKind", State.CaptureKind);
    Writer.Line("CaptureKeyboardRow", State.CaptureKeyboardRow);
    Writer.Line("CaptureGamepadRow", State.CaptureGamepadRow);
    Writer.Line("CaptureJoystickRow", State.CaptureJoystickRow);
    Writer.ListLine("PendingKeyboard", State.PendingKeyboard);
    Writer.ListLine("PendingGamepad", State.PendingGamepad);
    Writer.ListLine("PendingJoystick", State.PendingJoystick);
    Writer.Line("PendingControlsDevice", State.PendingControlsDevice);
    Writer.Line("PendingControlsValid", State.PendingControlsValid);
}

void WriteGraphicsEdit(StateWriter &Writer, const GameState &State) {
    Writer.Line("GraphicsSnapshot.Width", State.GraphicsSnapshot.Width);
    Writer.Line("GraphicsSnapshot.Height", State.GraphicsSnapshot.Height);
    Writer.Line("GraphicsSnapshot.AspectMode", State.GraphicsSnapshot.AspectMode);
    Writer.Line("GraphicsSnapshot.RefreshRate", State.GraphicsSnapshot.RefreshRate);
    Writer.Line("GraphicsSnapshot.Fullscreen", State.GraphicsSnapshot.Fullscreen);
    Writer.Line("GraphicsSnapshot.VSync", State.GraphicsSnapshot.VSync);
    Writer.Line("GraphicsSnapshotValid", State.GraphicsSnapshotValid);
}

void WriteAudioEdit(StateWriter &Writer, const GameState &State) {
    Writer.Line("PendingMasterVolume", State.PendingMasterVolume);
    Writer.Line("PendingMusicVolume", State.PendingMusicVolume);
    Writer.Line("PendingSfxVolume", State.PendingSfxVolume);
    Writer.Line("PendingMusicEnabled", State.PendingMusicEnabled);
    Writer.Line("PendingSfxEnabled", State.PendingSfxEnabled);
    Writer.Line("PendingLanguage", State.PendingLanguage);
    Writer.Line("PendingAudioValid", State.PendingAudioValid);
}

void WriteOptions(StateWriter &Writer, const GameState &State) {
    Writer.Line("AspectMode", State.AspectMode);
    Writer.Line("ResolutionIndex", State.ResolutionIndex);
    Writer.Line("RefreshRate", State.RefreshRate);
    Writer.Line("Fullscreen", State.Fullscreen);
    Writer.Line("VSync", State.VSync);
    Writer.Line("VSyncActive", State.VSyncActive);
    Writer.Line("MasterVolume", State.MasterVolume);
    Writer.Line("MusicVolume", State.MusicVolume);
    Writer.Line("SfxVolume", State.SfxVolume);
    Writer.Line("MusicEnabled", State.MusicEnabled);
    Writer.Line("SfxEnabled", State.SfxEnabled);
    Writer.Line("Language", State.Language);
    Writer.Line("ControlsDevice", State.ControlsDevice);
    Writer.ListLine("KeyboardBindings", State.KeyboardBindings);
    Writer.ListLine("GamepadBindings", State.GamepadBindings);
    Writer.ListLine("JoystickBindings", State.JoystickBindings);
    Writer.Line("OptionsDirty", State.OptionsDirty);
    Writer.Line("ResetFrameClock", State.ResetFrameClock);
    Writer.ListLine("Resolutions", State.Resolutions);
    Writer.ListLine("RefreshRates", State.RefreshRates);
    Writer.ListLine("DisplayModes", State.DisplayModes);
}

void WriteSounds(StateWriter &Writer, const SoundQueue &Sounds) {
    std::vector<std::int32_t> ids;
    for (std::size_t i = 0; i < Sounds.Count; ++i) {
        ids.push_back(static_cast<std::int32_t>(Sounds.Ids.at(i)));
    }
    Writer.ListLine("PendingSounds", ids);
}

/// The few fields of a run that keys touch stand by themselves, so that a failure tells which it was.
void WriteRun(StateWriter &Writer, const GameState &State) {
    Writer.Line("Hp", State.Player.Hp);
    Writer.Line("FirstAidKits", State.FirstAidKits);
    Writer.Line("HasRunState", State.HasRunState);
    Writer.Line("SaveRequested", State.SaveRequested);
    Writer.Line("SaveDelay", State.SaveDelay);
    Writer.Line("the whole run", HashOfRun(State));
}

} // namespace

std::string TextOf(const GameState &State) {
    StateWriter writer;
    WriteScreens(writer, State);
    WriteOptionPages(writer, State);
    WriteControlsEdit(writer, State);
    WriteGraphicsEdit(writer, State);
    WriteAudioEdit(writer, State);
    WriteOptions(writer, State);
    WriteSounds(writer, State.PendingSounds);
    WriteRun(writer, State);
    return writer.Written();
}
