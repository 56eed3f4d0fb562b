#include "tests/app/FilesTest.hpp"

#include "state/LogicalScreen.hpp"
#include "state/Resolutions.hpp"
#include "tests/support/FileSizeLimit.hpp"
#include "tests/support/SpecialFiles.hpp"
#include "tests/support/watch/FakeDisplays.hpp"
#include "text/Localization.hpp"

#include <string>

namespace {

using Lines = std::vector<std::string>;

/// Start-up with the real files of the user's storage.
class StartUpFiles : public FilesTest {
protected:
    /// Starts, runs one frame and ends, as a person who only looks.
    void Visit() {
        Start();
        RunFrame(Program);
        Stop();
    }
};

TEST_F(StartUpFiles, AFirstLaunchHasOptionsBeforeTheFirstFrameAndASaveAfterIt) {
    Start();
    EXPECT_TRUE(Exists("Config.ini"));
    EXPECT_FALSE(Exists("SaveState.bin"));
    RunFrame(Program);
    EXPECT_TRUE(Exists("SaveState.bin"));
    EXPECT_FALSE(State.HasRunState);
}

TEST_F(StartUpFiles, ASecondLaunchReadsTheOptionsAndLeavesTheDesktopAlone) {
    Visit();
    const std::string first = Contents("Config.ini");
    Watch.Forget();
    Start();
    EXPECT_EQ(Watch.GetPrimaryDisplay.Count(), 0);
    RunFrame(Program);
    EXPECT_EQ(Contents("Config.ini"), first);
    EXPECT_FALSE(State.SaveRequested);
}

TEST_F(StartUpFiles, TheWindowOpensAsTheOptionsSay) {
    Put("Config.ini",
        "[Graphics]\r\nResolutionWidth=\"1600\"\r\nResolutionHeight=\"900\"\r\nFullscreen=\"0\"");
    Watch.Forget();
    Start();
    EXPECT_EQ(Watch.CreateWindow.OnlyCall(), std::tuple(WindowTitle, 1600, 900, SDL_WindowFlags{0}));
    EXPECT_EQ(LogicalWidth, 1280);
    EXPECT_EQ(CurrentResolution(State), (Resolution{1600, 900}));
}

TEST_F(StartUpFiles, AWantedLanguageThatIsGoneMarksTheOptionsOnce) {
    Put("Config.ini", "[Options]\r\nLanguage=\"xx\"");
    Start();
    EXPECT_EQ(State.Language, "en");
    EXPECT_TRUE(State.OptionsDirty);
    RunFrame(Program);
    EXPECT_FALSE(State.OptionsDirty);
    EXPECT_NE(Contents("Config.ini").find("Language=\"en\""), std::string::npos);
}

TEST_F(StartUpFiles, TheLanguageOfTheOptionsIsInForceBeforeTheFirstFrame) {
    Put("Config.ini", "[Options]\r\nLanguage=\" DE \"");
    Start();
    EXPECT_EQ(State.Language, "de");
    EXPECT_EQ(Localization.CurrentLanguage, "de");
    EXPECT_FALSE(State.OptionsDirty);
}

TEST_F(StartUpFiles, ADamagedSaveIsReplacedInTheFirstFrameByOneWithoutARun) {
    Put("SaveState.bin", "no save state at all");
    Start();
    EXPECT_FALSE(State.HasRunState);
    EXPECT_EQ(State.HighScore, 0);
    RunFrame(Program);
    EXPECT_EQ(Contents("SaveState.bin").substr(0, 2), "\x0A\x08");
    Stop();
    Start();
    EXPECT_FALSE(State.SaveRequested);
}

TEST_F(StartUpFiles, ARunWaitsToBeContinuedWithItsHighScore) {
    Start();
    State.HasRunState = true;
    State.HighScore = 4711;
    State.Score = 99;
    State.PlayerLane = 7;
    State.SaveRequested = true;
    State.SaveDelay = 0.0F;
    Stop();
    Start();
    EXPECT_EQ(State.Screen, ScreenMainMenu);
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.HighScore, 4711);
    EXPECT_EQ(State.Score, 99);
    EXPECT_EQ(State.PlayerLane, 7);
}

TEST_F(StartUpFiles, FirstOptionsThatCannotBeWrittenAreLoggedOnceAndNotTriedAgain) {
    Program.Writers = CountingWriters();
    Written.OptionsFailures = 1;
    const LogCatcher log;
    Start();
    RunFrame(Program);
    EXPECT_EQ(log.Lines, (Lines{NoIconsLine, "Failed to create default options config: Config.ini"}));
    EXPECT_EQ(Written.OptionsWrites, 1);
}

TEST_F(StartUpFiles, AQuitWithinTheDelayLeavesTheOldSave) {
    Visit();
    const std::string before = Contents("SaveState.bin");
    Start();
    State.HighScore = 1000;
    State.SaveRequested = true;
    State.SaveDelay = 0.5F;
    Stop();
    EXPECT_EQ(Contents("SaveState.bin"), before);
}

TEST_F(StartUpFiles, ASaveWithoutRoomOnTheDiskLeavesTheOldOneAndIsTriedAgainAfterASecond) {
    Visit();
    const std::string before = Contents("SaveState.bin");
    Start();
    ShowWithoutWaiting(ScreenMainMenu);
    State.HighScore = 1000;
    State.SaveRequested = true;
    State.SaveDelay = 0.0F;
    const LogCatcher log;
    {
        const FileSizeLimit disk(before.size() - 1);
        RunFrame(Program);
    }
    EXPECT_EQ(log.Lines, Lines{"Failed to write save state: SaveState.bin"});
    EXPECT_EQ(Contents("SaveState.bin"), before);
    EXPECT_EQ(State.SaveDelay, 1.0F);
    for (int i = 0; i < 31; ++i) {
        LetTimePass(1000); // 0.033 seconds for the game
        RunFrame(Program);
    }
    EXPECT_FALSE(State.SaveRequested);
    EXPECT_EQ(log.Lines.size(), 1U);
    Stop();
    Start();
    EXPECT_EQ(State.HighScore, 1000);
}

TEST_F(StartUpFiles, PipesInThePlacesOfTheFilesAreLeftAlone) {
    const TimeLimit limit;
    MakePipe(Home.FilePath("Config.ini"));
    MakePipe(Home.FilePath("SaveState.bin"));
    const LogCatcher log;
    Start();
    RunFrame(Program);
    EXPECT_EQ(log.Lines, (Lines{NoIconsLine, "Failed to create default options config: Config.ini",
                             "Failed to write save state: SaveState.bin"}));
    State.OptionsDirty = true;
    RunFrame(Program);
    EXPECT_EQ(log.Lines.back(), "Failed to write options config: Config.ini");
    EXPECT_TRUE(IsSpecialFile(Home.FilePath("Config.ini")));
    EXPECT_TRUE(IsSpecialFile(Home.FilePath("SaveState.bin")));
}

TEST_F(StartUpFiles, PipesInThePlacesOfPlainFilesAreRemovedByTheReadsThatTheyFail) {
    const TimeLimit limit;
    Visit();
    const std::string config = Contents("Config.ini");
    const std::string save = Contents("SaveState.bin");
    const auto plainFiles = {".Config.ini.tmp", ".SaveState.bin.tmp", ".TitleStorageRead.tmp"};
    for (const char *name : plainFiles) {
        MakePipe(Home.FilePath(name));
    }
    const LogCatcher log;
    Visit();
    EXPECT_EQ(log.Lines, Lines{NoIconsLine});
    EXPECT_EQ(Contents("Config.ini"), config);
    EXPECT_EQ(Contents("SaveState.bin"), save);
    for (const char *name : plainFiles) {
        EXPECT_FALSE(std::filesystem::exists(Home.FilePath(name))) << name;
    }
}

/// Start-up with a rate of 144 in the options, at 1920x1080.
class StartUpRates : public StartUpFiles {
protected:
    /// Expects what is left of the rate, in the record and in the options when they are next written, on a
    /// display with these modes.
    void ExpectRate(std::int32_t Rate, bool Fullscreen, const std::vector<SDL_DisplayMode> &Modes) {
        FakeDisplays displays(Watch);
        displays.AddOnly(1920, 1080).Modes = Modes;
        Put("Config.ini",
            std::string("[Graphics]\r\nResolutionWidth=\"1920\"\r\nResolutionHeight=\"1080\"\r\n"
                        "RefreshRate=\"144\"\r\nFullscreen=\"") +
                (Fullscreen ? "1\"" : "0\""));
        Start();
        EXPECT_EQ(State.Fullscreen, Fullscreen);
        EXPECT_EQ(CurrentResolution(State), (Resolution{1920, 1080}));
        EXPECT_EQ(State.RefreshRate, Rate);
        State.OptionsDirty = true;
        RunFrame(Program);
        const std::string line = "\r\nRefreshRate=\"" + std::to_string(Rate) + "\"\r\n";
        EXPECT_NE(Contents("Config.ini").find(line), std::string::npos);
    }
};

TEST_F(StartUpRates, SurviveInFullscreenIfTheDisplayOffersThemAtTheChosenSize) {
    ExpectRate(144, true, {Mode(1920, 1080, 60.0F), Mode(1920, 1080, 144.0F)});
}

TEST_F(StartUpRates, ThatTheDisplayDoesNotOfferBecomeAutomatic) {
    ExpectRate(0, true, {Mode(1920, 1080, 60.0F), Mode(1920, 1080, 120.0F)});
}

TEST_F(StartUpRates, OfferedAtAnotherSizeOnlyBecomeAutomatic) {
    ExpectRate(0, true, {Mode(1920, 1080, 60.0F), Mode(1280, 720, 144.0F)});
}

TEST_F(StartUpRates, BecomeAutomaticInAWindow) {
    ExpectRate(0, false, {Mode(1920, 1080, 60.0F), Mode(1920, 1080, 144.0F)});
}

} // namespace
