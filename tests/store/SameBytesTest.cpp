#include "sim/FirstAid.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"
#include "tests/sim/RecordHash.hpp"
#include "tests/sim/ReplayInputs.hpp"
#include "tests/store/OptionsTest.hpp"
#include "tests/store/SaveTest.hpp"
#include "tests/support/Figure.hpp"

// What the player's files hold is the same to the byte on every machine.

namespace {

class SameSave : public SaveTest {
protected:
    /// Writes a run and reads it back, which must give the same bytes again.
    std::string Written(const GameState &Run) {
        EXPECT_TRUE(WriteSaveState(Run));
        std::string bytes = Stored("SaveState.bin");
        State = {};
        EXPECT_TRUE(LoadSaveState(State));
        EXPECT_TRUE(WriteSaveState(State));
        EXPECT_EQ(Hex(Stored("SaveState.bin")), Hex(bytes));
        return bytes;
    }
};

TEST_F(SameSave, OfTheReplayHoldsTheSameBytesOnEveryMachine) {
    GameState run;
    run.Rng.seed(ReplaySeed);
    StartNewRun(run);
    RecordHash chain;
    for (int i = 0; i < 6000; ++i) {
        SimulationStep(run, ReplayStepSeconds, ReplayInputAt(i));
        run.PendingSounds.Count = 0;
        if (run.Screen == ScreenGameOver) {
            StartNewRun(run);
        }
        if (i % 200 == 0) {
            UseFirstAid(run);
            chain.AddText(Written(run));
        }
    }
    TellFigure("save", chain.Value());
    // Changes only when the rules of a run or the form of its file change, in a commit that says which.
    EXPECT_EQ(chain.Value(), 0xE8D924A419767F56U);
}

class SameOptions : public OptionsTest {};

TEST_F(SameOptions, AreTheSameBytesOnEveryMachine) {
    State.ControlsDevice = ControlsDeviceGamepad;
    State.Language = "fi";
    State.KeyboardBindings = {4, 7, 511, 27, 44};
    State.GamepadBindings = {5, 6, -1, 0, 25};
    State.JoystickBindings = {2147483647, 1, 2, 3, 4};
    State.Resolutions = {{640, 480}, {1024, 768}};
    State.ResolutionIndex = 1;
    State.AspectMode = AspectClassic4x3;
    State.RefreshRate = 144;
    State.Fullscreen = false;
    State.MusicVolume = 5;
    State.SfxEnabled = false;
    RecordHash hash;
    hash.AddText(Written());
    State = {};
    EXPECT_TRUE(Load());
    hash.AddText(Written());
    TellFigure("options", hash.Value());
    // Changes only when an option comes, goes or gets another default.
    EXPECT_EQ(hash.Value(), 0xE1C486E8DB1CA951U);
}

} // namespace
