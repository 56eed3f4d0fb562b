#include "gfx/Atlas.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tests/support/VirtualDevice.hpp"

namespace {

using Lines = std::vector<std::string>;

class ShuttingDown : public RunningTest {
protected:
    // The writers, to be noted among the calls.
    WatchedCall<void()> WriteOptions{"the options' writer"};
    WatchedCall<void()> WriteSave{"the save's writer"};
};

TEST_F(ShuttingDown, WritesMarkedOptions) {
    State.OptionsDirty = true;
    Stop();
    EXPECT_EQ(Written.OptionsWrites, 1);
    EXPECT_EQ(Written.SaveWrites, 0);
    EXPECT_FALSE(State.OptionsDirty);
}

TEST_F(ShuttingDown, WritesASaveThatIsDue) {
    State.SaveRequested = true;
    State.SaveDelay = 0.0F;
    Stop();
    EXPECT_EQ(Written.SaveWrites, 1);
    EXPECT_EQ(Written.OptionsWrites, 0);
}

TEST_F(ShuttingDown, DoesNotForceASaveThatIsStillWaiting) {
    State.SaveRequested = true;
    State.SaveDelay = 0.001F;
    Stop();
    EXPECT_EQ(Written.SaveWrites, 0);
}

TEST_F(ShuttingDown, WritesNothingThatIsNotMarked) {
    Stop();
    EXPECT_EQ(Written.OptionsWrites, 0);
    EXPECT_EQ(Written.SaveWrites, 0);
}

TEST_F(ShuttingDown, TriesAFailingWriteOnceAndGoesOn) {
    State.OptionsDirty = true;
    State.SaveRequested = true;
    State.SaveDelay = 0.0F;
    Written.OptionsFailures = 9;
    Written.SaveFailures = 9;
    const LogCatcher log;
    Watch.Forget();
    Stop();
    EXPECT_EQ(log.Lines,
        (Lines{"Failed to write options config: Config.ini", "Failed to write save state: SaveState.bin"}));
    EXPECT_EQ(Watch.Quit.Count(), 1);
}

TEST_F(ShuttingDown, GoesInItsOrder) {
    if (HasRealDevices()) {
        GTEST_SKIP() << "a real pad or joystick is plugged in";
    }
    const VirtualDevice stick(JoystickShape);
    const VirtualDevice pad(GamepadShape);
    RunFrame(Program); // opens them
    ASSERT_NE(Program.Devices.Gamepad, nullptr);
    ASSERT_NE(Program.Devices.Joystick, nullptr);
    State.OptionsDirty = true;
    State.SaveRequested = true;
    State.SaveDelay = 0.0F;
    Watch.Forget();
    Written.OnOptionsWrite = [this] {
        Watch.Note(WriteOptions);
    };
    Written.OnSaveWrite = [this] {
        Watch.Note(WriteSave);
    };
    Stop();
    const CallNames order{WriteOptions, WriteSave, Watch.CloseGamepad, Watch.CloseJoystick,
        Watch.DestroyTexture, Watch.DestroyRenderer, Watch.HideWindow, Watch.DestroyWindow, Watch.Quit};
    EXPECT_EQ(Watch.OrderOf(order), order);
}

TEST_F(ShuttingDown, WithoutDevicesClosesNone) {
    Watch.Forget();
    Stop();
    EXPECT_EQ(Watch.CloseGamepad.Count(), 0);
    EXPECT_EQ(Watch.CloseJoystick.Count(), 0);
}

TEST_F(ShuttingDown, NullsTheAtlasAndEndsSdl) {
    ASSERT_NE(SpriteAtlas.Texture, nullptr);
    Stop();
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST_F(ShuttingDown, LeavesNothingInTheWayOfAnotherStart) {
    Stop();
    Start();
    RunFrame(Program);
    EXPECT_TRUE(State.Running);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
}

} // namespace
