#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/PreparedRun.hpp"
#include "tests/e2e/StoredFiles.hpp"
#include "tests/e2e/TextSight.hpp"

#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <thread>

// What the game remembers from one start to the next.

namespace {

using std::chrono::milliseconds;

enum Row { Resume, Options, Help, MainMenu };

// A save is written 0.8 seconds of frames after it was asked for; a frame counts for 33 milliseconds at most,
// so a slow machine takes longer.
constexpr milliseconds UntilSaved{6000};

constexpr int KitLane = 0;

// A run in the middle of everything: each kind of thing is on the road or comes down it, in the lanes that
// the car leaves, all bombs but one are thrown, and there is a score.
GameState BusyRun() {
    GameState run;
    run.HasRunState = true;
    run.Score = 6000;
    run.HighScore = 7000;
    run.Bombs = 1;
    run.FirstAidKits = 2;
    for (int i = 0; i < 3; ++i) {
        const float y = -40.0F - 60.0F * static_cast<float>(i);
        run.Enemies.push_back({.Y = y,
            .Speed = 60.0F,
            .AiTimer = 9.0F,
            .FireCooldown = 0.5F,
            .Lane = 2,
            .Hp = 1 + i,
            .Color = {}});
        run.Obstacles.push_back({.Y = y, .Lane = 1, .Type = i});
        run.Items.push_back({.Y = y, .Lane = KitLane, .Type = i});
    }
    return run;
}

// The screen with nothing but the paused run on it, as it then lies in the file. The car is in lane 8 and
// shots are in the air. Nothing if it does not get there.
std::optional<Screenshot> PauseARunWorthKeeping(PlayedGame &Game, const PreparedHome &Home) {
    Game.Person().PressKey(Key::LeftControl);
    // Held, since a life that is lost puts the car back into the middle.
    Game.Person().PressKey(Key::Right);
    // Past the car's blinking.
    const bool isBusy = Game.WaitForPicture([](const Screenshot &Seen) {
                                return CarInLane(8)(Seen) && !FindShots(Seen).empty() && SeesEnemy(Seen) &&
                                       FindKitLane(Seen) == KitLane;
                            })
                            .has_value();
    // The run that is paused is written once, unless its last step was followed by a save at once: the file
    // was right then already.
    Game.Program().Send(SIGSTOP);
    const std::optional<std::string> before = Home.Read(SaveFile);
    Game.TapInOneFrame({Key::Escape});
    const bool isPaused = Game.WaitForPicture(PauseMenu(Resume)).has_value();
    Game.Person().ReleaseKey(Key::Right);
    Game.Person().ReleaseKey(Key::LeftControl);
    WaitUntil(
        [&] {
            return Home.Read(SaveFile) != before;
        },
        UntilSaved);
    return isBusy && isPaused ? Game.WaitForPicture(PauseMenu(Resume)) : std::nullopt;
}

// The names of all that lies in the folder of the game's files.
std::set<std::string> StoredNames(const PreparedHome &Home) {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(StoredPath(Home, SaveFile).parent_path())) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

Sight HighScoreIs(std::int64_t Score) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%08lld", static_cast<long long>(Score));
    return [text = std::string(digits.data())](const Screenshot &Seen) {
        constexpr int top = 190;
        constexpr int scale = 3;
        return ShowsText(Seen, text, top, scale, {{0xEB, 0xEB, 0xEB}});
    };
}

} // namespace

TEST(Memory, TheFirstStartLeavesBothFilesAndNoOther) {
    const PreparedHome home;
    OpenedGame game({960, 720}, {}, &home);
    EXPECT_EQ(StoredOption(home, "Graphics", "AspectMode"), "classic4x3");
    EXPECT_EQ(StoredOption(home, "Graphics", "ResolutionWidth"), "960");
    EXPECT_EQ(StoredOption(home, "Graphics", "ResolutionHeight"), "720");
    EXPECT_EQ(StoredOption(home, "Graphics", "Fullscreen"), "1");
    EXPECT_EQ(StoredOption(home, "Options", "Language"), "en");
    EXPECT_EQ(StoredOption(home, "Audio", "MusicVolume"), "50");
    EXPECT_EQ(StoredHighScore(home), std::optional<std::int64_t>(0));
    EXPECT_EQ(StoresRun(home), std::optional(false));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
    EXPECT_EQ(StoredNames(home), (std::set<std::string>{OptionsFile, SaveFile}));
}

TEST(Memory, ContinueGameResumesTheRunAsItStoodToThePixel) {
    const PreparedHome home;
    PutRun(home, BusyRun());
    std::optional<Screenshot> left;
    {
        PlayedGame game({}, DrawnAsForPlayers(), &home);
        left = PauseARunWorthKeeping(game, home);
        ASSERT_TRUE(left);
        EXPECT_EQ(BombsShown(*left), 1);
        EXPECT_EQ(KitsShown(*left), 2);
        EXPECT_FALSE(ScoreIsZero(*left));
        ASSERT_TRUE(game.Tap(Key::Up, PauseMenu(MainMenu)));
        ASSERT_TRUE(game.Tap(Key::Return, SixRowMenu(0)));
        ASSERT_TRUE(game.Tap(Key::Up, SixRowMenu(5)));
        game.Person().PressKey(Key::Return); // QUIT
        ASSERT_EQ(game.Program().WaitForExit(PatientDeadline), std::optional(0));
    }
    OpenedGame game({}, DrawnAsForPlayers(), &home);
    ASSERT_TRUE(SixRowMenu(0)(game.Person().Look()));
    // The run is paused before a single step of it.
    game.TapInOneFrame({Key::Return, Key::Escape});
    const std::optional<Screenshot> continued = game.WaitForPicture(PauseMenu(Resume));
    ASSERT_TRUE(continued);
    EXPECT_TRUE(continued->Pixels == left->Pixels);
    ASSERT_TRUE(game.Tap(Key::Escape, ScreenIs(SeenScreen::Playing)));
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
}

// The first frame of a new run puts its save off by 0.8 seconds.
TEST(Memory, ANewGameQuitAtOnceBringsTheOldRunBack) {
    const PreparedHome home;
    const std::string old = MadeSave({.HighScore = 7000, .Score = 6000, .Lane = 2});
    home.Put(SaveFile, old);
    {
        OpenedGame game({}, {}, &home);
        ASSERT_TRUE(game.Tap(Key::Down, SixRowMenu(1)));
        game.Program().Send(SIGSTOP);
        game.Person().TapKey(Key::Return, milliseconds{1});
        std::this_thread::sleep_for(milliseconds{200});
        game.Person().RequestClose(game.Window());
        std::this_thread::sleep_for(milliseconds{200});
        game.Program().Send(SIGCONT);
        ASSERT_EQ(game.Program().WaitForExit(PatientDeadline), std::optional(0));
    }
    EXPECT_EQ(home.Read(SaveFile), old);
    OpenedGame game({}, {}, &home);
    EXPECT_TRUE(game.Tap(Key::Return, CarInLane(2)));
}

TEST(Memory, ANewGamePlayedForAWhileReplacesTheOldRun) {
    const PreparedHome home;
    const std::string old = MadeSave({.HighScore = 7000, .Score = 6000, .Lane = 2});
    home.Put(SaveFile, old);
    {
        OpenedGame game({}, {}, &home);
        ASSERT_TRUE(game.Tap(Key::Down, SixRowMenu(1)));
        ASSERT_TRUE(game.Tap(Key::Return, CarInLane(4)));
        ASSERT_TRUE(WaitUntil([&] {
            return StoresRun(home) == true && home.Read(SaveFile) != old;
        }));
        ASSERT_EQ(game.Close(), std::optional(0));
    }
    EXPECT_EQ(StoredHighScore(home), std::optional<std::int64_t>(7000));
    OpenedGame game({}, {}, &home);
    EXPECT_TRUE(game.Tap(Key::Return, [](const Screenshot &Seen) {
        return CarInLane(4)(Seen) && HighScoreIs(7000)(Seen);
    }));
}

// A run that beats the high score by its next enemy, and that the shot after it ends.
TEST(Memory, TheHighScoreOutlivesTheRunAndTheProgram) {
    constexpr std::int64_t highScore = 6990 + 200;
    GameState run = QuietRun();
    run.HighScore = 7000;
    run.Score = 6990;
    run.Player.Hp = 10;
    run.Player.Stocks = 0;
    ShootEnemy(run);
    ShootDownwards(run);
    const PreparedHome home;
    PutRun(home, run);
    {
        PlayedGame game({}, {}, &home); // the menu's first row continues it
        EXPECT_TRUE(game.WaitForPicture(ScreenIs(SeenScreen::GameOver)));
        EXPECT_EQ(game.Close(), std::optional(0));
    }
    EXPECT_EQ(StoredHighScore(home), std::optional(highScore));
    EXPECT_EQ(StoresRun(home), std::optional(false));
    PlayedGame game({}, {}, &home); // the menu has five rows now, and the first one is NEW GAME
    EXPECT_TRUE(game.WaitForPicture([&](const Screenshot &Seen) {
        return HighScoreIs(highScore)(Seen) && ScoreIsZero(Seen);
    }));
}

TEST(Memory, ADamagedSaveIsReplacedByAnEmptyOne) {
    const PreparedHome home;
    home.Put(SaveFile, "This is no saved run at all.");
    OpenedGame game({}, {}, &home);
    ASSERT_TRUE(FiveRowMenu(0)(game.Person().Look()));
    EXPECT_EQ(StoredHighScore(home), std::optional<std::int64_t>(0));
    EXPECT_EQ(StoresRun(home), std::optional(false));
    EXPECT_EQ(game.Close(), std::optional(0));
}
