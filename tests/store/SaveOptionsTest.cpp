#include "tests/store/OptionsTest.hpp"

#include "state/LogicalScreen.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/SpecialFiles.hpp"

namespace {

using Lines = std::vector<std::string>;

class SaveOptionsTest : public OptionsTest {
protected:
    /// Whether the file holds this line as a whole.
    bool HasLine(const std::string &Line) {
        return ("\r\n" + Written() + "\r\n").find("\r\n" + Line + "\r\n") != std::string::npos;
    }
};

TEST_F(SaveOptionsTest, WriteADefaultFileToTheByte) {
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(SaveOptionsTest, WriteEveryValue) {
    State.ControlsDevice = ControlsDeviceJoystick;
    State.Language = "de";
    State.KeyboardBindings = {1, 2, 3, 4, 511};
    State.GamepadBindings = {5, 6, 7, -1, 25};
    State.JoystickBindings = {9, 10, -1, 12, 2147483647};
    State.Resolutions = {{640, 480}, {1024, 768}};
    State.ResolutionIndex = 1;
    State.AspectMode = AspectClassic4x3;
    State.RefreshRate = 144;
    State.Fullscreen = false;
    State.VSync = false;
    State.MasterVolume = 0;
    State.MusicVolume = 1;
    State.SfxVolume = 99;
    State.MusicEnabled = false;
    State.SfxEnabled = false;
    EXPECT_EQ(Written(),
        "[Options]\r\nControlsDevice=\"joystick\"\r\nLanguage=\"de\"\r\n\r\n"
        "[ControlsKeyboard]\r\nMoveLeft=\"1\"\r\nMoveRight=\"2\"\r\nFire=\"3\"\r\nBomb=\"4\"\r\n"
        "Heal=\"511\"\r\n\r\n"
        "[ControlsGamepad]\r\nFire=\"5\"\r\nBomb=\"6\"\r\nHeal=\"7\"\r\nConfirm=\"-1\"\r\n"
        "Back=\"25\"\r\n\r\n"
        "[ControlsJoystick]\r\nFire=\"9\"\r\nBomb=\"10\"\r\nHeal=\"-1\"\r\nConfirm=\"12\"\r\n"
        "Back=\"2147483647\"\r\n\r\n"
        "[Graphics]\r\nResolutionWidth=\"1024\"\r\nResolutionHeight=\"768\"\r\n"
        "AspectMode=\"classic4x3\"\r\nRefreshRate=\"144\"\r\nFullscreen=\"0\"\r\nVSync=\"0\"\r\n\r\n"
        "[Audio]\r\nMasterVolume=\"0\"\r\nMusicVolume=\"1\"\r\nSfxVolume=\"99\"\r\n"
        "MusicEnabled=\"0\"\r\nSfxEnabled=\"0\"");
}

TEST_F(SaveOptionsTest, NameTheDeviceAndTheKeyboardForAnyOtherValue) {
    const std::vector<std::pair<int, std::string>> rows{{0, "keyboard"}, {1, "gamepad"}, {2, "joystick"},
        {3, "keyboard"}, {99, "keyboard"}, {-1, "keyboard"}};
    for (const auto &[value, word] : rows) {
        State.ControlsDevice = static_cast<ControlsDevice>(value);
        EXPECT_TRUE(HasLine("ControlsDevice=\"" + word + "\"")) << value;
    }
}

TEST_F(SaveOptionsTest, WriteANegativeRateAsAutomatic) {
    State.RefreshRate = -60;
    EXPECT_TRUE(HasLine("RefreshRate=\"0\""));
}

TEST_F(SaveOptionsTest, WriteTheResolutionThatIsInForce) {
    State.ResolutionIndex = 99;
    EXPECT_TRUE(HasLine("ResolutionWidth=\"5120\""));
    EXPECT_TRUE(HasLine("ResolutionHeight=\"1440\""));
    State.ResolutionIndex = -1;
    EXPECT_TRUE(HasLine("ResolutionWidth=\"640\""));
    EXPECT_TRUE(HasLine("ResolutionHeight=\"360\""));
    State.AspectMode = AspectClassic4x3;
    State.ResolutionIndex = 3;
    EXPECT_TRUE(HasLine("ResolutionWidth=\"1024\""));
    EXPECT_TRUE(HasLine("ResolutionHeight=\"768\""));
    State.Resolutions = {{1111, 222}};
    EXPECT_TRUE(HasLine("ResolutionWidth=\"1111\""));
    EXPECT_TRUE(HasLine("ResolutionHeight=\"222\""));
}

TEST_F(SaveOptionsTest, WriteWhatIsAppliedAndNotWhatIsPending) {
    State.PendingLanguage = "de";
    State.PendingMasterVolume = 3;
    State.PendingKeyboard = {1, 2, 3, 4, 5};
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.GraphicsSnapshot.Width = 640;
    State.PendingAudioValid = State.PendingControlsValid = State.GraphicsSnapshotValid = true;
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(SaveOptionsTest, KeepNothingOfAnOlderFile) {
    Store("Config.ini", "; mine\r\n[Options]\r\nMine=\"1\"\r\nLanguage=\"de\"\r\n[Mine]\r\nKey=\"1\"\r\n" +
                            std::string(5000, ';'));
    EXPECT_EQ(Written(), DefaultOptionsText);
}

TEST_F(SaveOptionsTest, LeaveTheRecordAlone) {
    State.RefreshRate = -60;
    State.ResolutionIndex = 99;
    State.OptionsDirty = true;
    Written();
    EXPECT_EQ(State.RefreshRate, -60);
    EXPECT_EQ(State.ResolutionIndex, 99);
    EXPECT_TRUE(State.OptionsDirty);
    EXPECT_TRUE(State.Resolutions.empty());
}

TEST_F(SaveOptionsTest, ComeBack) {
    State.ControlsDevice = ControlsDeviceGamepad;
    State.Language = "pt-br";
    State.KeyboardBindings = {0, 2, 3, 4, 511};
    State.GamepadBindings = {5, 6, 7, -1, 25};
    State.JoystickBindings = {9, 10, -1, 12, 2147483647};
    State.ResolutionIndex = 2;
    State.AspectMode = AspectClassic4x3;
    State.RefreshRate = 75;
    State.Fullscreen = false;
    State.VSync = false;
    State.MasterVolume = 0;
    State.MusicVolume = 1;
    State.SfxVolume = 99;
    State.MusicEnabled = false;
    State.SfxEnabled = false;
    const std::string written = Written();
    const GameState saved = State;
    State = {};
    EXPECT_TRUE(Load());
    EXPECT_EQ(State.ControlsDevice, saved.ControlsDevice);
    EXPECT_EQ(State.Language, "pt-br");
    EXPECT_EQ(State.KeyboardBindings, saved.KeyboardBindings);
    EXPECT_EQ(State.GamepadBindings, saved.GamepadBindings);
    EXPECT_EQ(State.JoystickBindings, saved.JoystickBindings);
    EXPECT_EQ(State.ResolutionIndex, 2);
    EXPECT_EQ(State.AspectMode, AspectClassic4x3);
    EXPECT_EQ(State.RefreshRate, 75); // no display has told its rates yet
    EXPECT_EQ(LogicalWidth, 960);
    EXPECT_EQ(Written(), written);
}

TEST_F(SaveOptionsTest, KeepTheOldFileWhateverFailsAndSayNothing) {
    Store("Config.ini", "old contents");
    const LogCatcher log;
    testing::internal::CaptureStdout();
    const CallNames failed = FailEach(
        [this] {
            return SaveOptions(State);
        },
        [this](bool /*IsUntouched*/, bool Result) {
            EXPECT_EQ(Result, MayBeWritten());
            EXPECT_EQ(Stored("Config.ini"), MayBeWritten() ? DefaultOptionsText : "old contents");
            EXPECT_EQ(Names(), Lines{"Config.ini"});
            Store("Config.ini", "old contents");
        });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(log.Lines, Lines{});
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.LoadFile, Watch.OpenUserStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.WriteStorageFile}));
}

TEST_F(SaveOptionsTest, FailWhereSomethingElseTakesThePlainFilesPlace) {
    const TimeLimit limit;
    Store("Config.ini", DefaultOptionsText);
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(PathOf(".Config.ini.tmp"));
        State.MasterVolume = 7;
        testing::internal::CaptureStdout();
        EXPECT_FALSE(SaveOptions(State));
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Unable to write INI file: " + PathOf(".Config.ini.tmp").string() + "\n");
        ExpectRemoved(special, PathOf(".Config.ini.tmp"));
        special.Make(PathOf(".Config.ini.tmp"));
        EXPECT_FALSE(LoadOptions(State));
        EXPECT_EQ(State.MasterVolume, 7);
        EXPECT_EQ(Stored("Config.ini"), DefaultOptionsText);
        ExpectRemoved(special, PathOf(".Config.ini.tmp"));
    }
}

TEST_F(SaveOptionsTest, FailWhereSomethingElseTakesTheFilesPlace) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(PathOf("Config.ini"));
        EXPECT_FALSE(SaveOptions(State));
        EXPECT_FALSE(Load());
        EXPECT_EQ(Printed, "");
        EXPECT_TRUE(IsSpecialFile(PathOf("Config.ini")));
        std::filesystem::remove_all(PathOf("Config.ini"));
    }
}

TEST_F(SaveOptionsTest, FailWhereTheHomeIsAFile) {
    Store("Config.ini", "old contents");
    const EnvironmentScope home("XDG_DATA_HOME", PathOf("Config.ini").string());
    testing::internal::CaptureStdout();
    EXPECT_FALSE(SaveOptions(State));
    EXPECT_FALSE(LoadOptions(State));
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(Stored("Config.ini"), "old contents");
}

} // namespace
