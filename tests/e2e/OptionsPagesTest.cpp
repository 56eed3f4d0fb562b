#include "tests/e2e/PageSight.hpp"
#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"
#include "tests/e2e/TextSight.hpp"

#include <algorithm>
#include <string>
#include <vector>

// The options' pages as a person works them, what the game then does, and what it keeps.

namespace {

enum ControlsRow { Device, MoveLeft, MoveRight, Fire, Bomb, Heal, ControlsDefaults, ControlsApply };
enum AudioRow {
    Master,
    Music,
    Sfx,
    MusicOn,
    SfxOn,
    Language,
    AudioDefaults,
    AudioApply,
    AudioRevert,
    AudioBack
};
enum GraphicsRow { VSync = 4, GraphicsDefaults, GraphicsApply };

// The line that asks for a key in place of the Controls page's hints.
Sight AsksForKey(const std::string &Action) {
    return [text = "PRESS A KEY FOR " + Action](const Screenshot &Seen) {
        return ShowsText(Seen, text, 498, 2, {{0x78, 0xFF, 0xAA}});
    };
}

Sight All(const std::vector<Sight> &Sights) {
    return [Sights](const Screenshot &Seen) {
        return std::ranges::all_of(Sights, [&Seen](const Sight &Sight) {
            return Sight(Seen);
        });
    };
}

// Goes to an action's row of the Controls page and gives it another key.
void Rebind(OpenedGame &Game, int Row, const std::string &Action, Key NewKey, const std::string &Name) {
    ASSERT_NO_FATAL_FAILURE(ActivateRow(Game, Page::Controls, Row, AsksForKey(Action)));
    ASSERT_TRUE(Game.Tap(NewKey, All({PageIs(Page::Controls, Row), RowShows(Row, Name)})));
}

// Goes back to the main menu, from any page.
void LeavePages(OpenedGame &Game) {
    ASSERT_TRUE(Game.Tap(Key::Escape, [](const Screenshot &Seen) {
        return FindMenu(Seen) && FindMenu(Seen)->Screen == SeenScreen::Options;
    }));
    ASSERT_TRUE(Game.Tap(Key::Escape, ScreenIs(SeenScreen::MainMenu)));
}

// Starts a run from the row OPTIONS of the main menu without one.
void Play(OpenedGame &Game) {
    ASSERT_TRUE(Game.Tap(Key::Up, FiveRowMenu(0)));
    ASSERT_TRUE(Game.Tap(Key::Return, CarInLane(4)));
}

// A salvo takes 3 of 100 from the meter at once.
bool HasFired(const Screenshot &Seen) {
    return AmmoShown(Seen) < 110 && !FindShots(Seen).empty();
}

bool HasFullAmmo(const Screenshot &Seen) {
    return AmmoShown(Seen) == 110;
}

void ExpectFires(OpenedGame &Game, Key Firing) {
    ASSERT_TRUE(Game.WaitForPicture(HasFullAmmo));
    EXPECT_TRUE(Game.Tap(Firing, HasFired));
}

} // namespace

TEST(AudioPage, VolumesGoInStepsOfFiveAndAreKept) {
    const PreparedHome home;
    {
        OpenedGame game({}, {}, &home);
        ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
        ASSERT_TRUE(PageIs(Page::Audio, Master)(game.Person().Look()));
        ASSERT_TRUE(game.Tap(Key::Left, RowShows(Master, "95%")));
        ASSERT_TRUE(game.Tap(Key::A, RowShows(Master, "90%")));
        ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Sfx));
        ASSERT_TRUE(game.Tap(Key::D, RowShows(Sfx, "80%")));
        ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, MusicOn, RowShows(MusicOn, "OFF")));
        EXPECT_EQ(StoredOption(home, "Audio", "MasterVolume"), "100") << "written without APPLY";
        ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, AudioApply, PageIs(Page::Audio, AudioApply)));
        EXPECT_TRUE(Keeps(home, "Audio", "MasterVolume", "90"));
        EXPECT_EQ(StoredOption(home, "Audio", "SfxVolume"), "80");
        EXPECT_EQ(StoredOption(home, "Audio", "MusicEnabled"), "0");
        EXPECT_EQ(game.Close(), std::optional(0));
        EXPECT_EQ(game.Program().Output(), "");
    }
    OpenedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
    EXPECT_TRUE(game.WaitForPicture(All({RowShows(Master, "90%"), RowShows(Music, "50%"),
        RowShows(Sfx, "80%"), RowShows(MusicOn, "OFF"), RowShows(SfxOn, "ON")})));
}

TEST(AudioPage, VolumesStopAtBothEnds) {
    const PreparedHome home;
    home.Put(OptionsFile, "[Audio]\r\nMasterVolume=\"97\"\r\nMusicVolume=\"3\"\r\n");
    OpenedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
    ASSERT_TRUE(game.WaitForPicture(RowShows(Master, "97%")));
    ASSERT_TRUE(game.Tap(Key::Right, RowShows(Master, "100%")));
    EXPECT_TRUE(game.Ignores(Key::Right, RowShows(Master, "100%")));
    ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Music));
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(Music, "0%")));
    EXPECT_TRUE(game.Ignores(Key::Left, RowShows(Music, "0%")));
    EXPECT_TRUE(game.Ignores(Key::Return, RowShows(Music, "0%")));
}

TEST(AudioPage, BackEscapeAndRevertDropWhatWasNotApplied) {
    const PreparedHome home;
    OpenedGame game({}, {}, &home);
    const std::optional<std::string> kept = home.Read(OptionsFile);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(Master, "95%")));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, AudioRevert, RowShows(Master, "100%")));
    for (const bool isByRow : {true, false}) {
        ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Master));
        ASSERT_TRUE(game.Tap(Key::Left, RowShows(Master, "95%")));
        if (isByRow) {
            ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, AudioBack, OptionsMenu(2)));
        } else {
            ASSERT_TRUE(game.Tap(Key::Escape, OptionsMenu(2)));
        }
        ASSERT_TRUE(game.Tap(Key::Return, RowShows(Master, "100%")));
    }
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(home.Read(OptionsFile), kept);
}

TEST(AudioPage, DefaultSettingsBringEverythingBackButTheLanguage) {
    const PreparedHome home;
    home.Put(OptionsFile, "[Options]\r\nLanguage=\"en\"\r\n[Audio]\r\nMasterVolume=\"10\"\r\n"
                          "MusicVolume=\"20\"\r\nSfxVolume=\"30\"\r\nMusicEnabled=\"0\"\r\n");
    OpenedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
    ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Language));
    ASSERT_TRUE(game.Tap(Key::Right, RowShows(Language, "DEUTSCH")));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, AudioDefaults,
        All({RowShows(Master, "100%"), RowShows(Music, "50%"), RowShows(Sfx, "75%"), RowShows(MusicOn, "ON"),
            RowShows(Language, "DEUTSCH")})));
    EXPECT_EQ(StoredOption(home, "Audio", "MasterVolume"), "10") << "written without APPLY";
    ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Audio, Language));
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(Language, "ENGLISH")));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, AudioApply, PageIs(Page::Audio, AudioApply)));
    EXPECT_TRUE(Keeps(home, "Audio", "MasterVolume", "100"));
    EXPECT_EQ(StoredOption(home, "Audio", "MusicVolume"), "50");
    EXPECT_EQ(StoredOption(home, "Audio", "SfxVolume"), "75");
    EXPECT_EQ(StoredOption(home, "Audio", "MusicEnabled"), "1");
}

TEST(ControlsPage, ANewKeyFiresAtOnceAndAfterTheNextStart) {
    const PreparedHome home;
    {
        OpenedGame game({}, {}, &home);
        ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Controls));
        ASSERT_TRUE(game.WaitForPicture(RowShows(Fire, "LEFT CTRL")));
        ASSERT_NO_FATAL_FAILURE(Rebind(game, Fire, "FIRE", Key::F, "F"));
        EXPECT_EQ(StoredOption(home, "ControlsKeyboard", "Fire"), "224") << "written without APPLY";
        ASSERT_NO_FATAL_FAILURE(
            ActivateRow(game, Page::Controls, ControlsApply, PageIs(Page::Controls, ControlsApply)));
        EXPECT_TRUE(Keeps(home, "ControlsKeyboard", "Fire", "9"));
        ASSERT_NO_FATAL_FAILURE(LeavePages(game));
        ASSERT_NO_FATAL_FAILURE(Play(game));
        EXPECT_TRUE(game.Ignores(Key::LeftControl, HasFullAmmo)) << "the old key still fires";
        ASSERT_NO_FATAL_FAILURE(ExpectFires(game, Key::F));
        EXPECT_EQ(game.Close(), std::optional(0));
        EXPECT_EQ(game.Program().Output(), "");
    }
    PlayedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(ExpectFires(game, Key::F));
}

TEST(ControlsPage, ACaptureIsLeftByEscapeAndClearedByDelete) {
    const PreparedHome home;
    OpenedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Controls));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Controls, Bomb, AsksForKey("BOMB")));
    ASSERT_TRUE(game.Tap(Key::Escape, [](const Screenshot &Seen) {
        return PageIs(Page::Controls, Bomb)(Seen) && RowShows(Bomb, "X")(Seen) && !AsksForKey("BOMB")(Seen);
    }));
    // A cursor key can be bound as well: it does not move the marker here.
    ASSERT_NO_FATAL_FAILURE(Rebind(game, Bomb, "BOMB", Key::Down, "DOWN"));
    ASSERT_NO_FATAL_FAILURE(Rebind(game, Fire, "FIRE", Key::Delete, "UNBOUND"));
    ASSERT_NO_FATAL_FAILURE(Rebind(game, Heal, "HEAL", Key::Backspace, "UNBOUND"));
    ASSERT_NO_FATAL_FAILURE(
        ActivateRow(game, Page::Controls, ControlsApply, PageIs(Page::Controls, ControlsApply)));
    EXPECT_TRUE(Keeps(home, "ControlsKeyboard", "Bomb", "81"));
    EXPECT_EQ(StoredOption(home, "ControlsKeyboard", "Fire"), "0");
    EXPECT_EQ(StoredOption(home, "ControlsKeyboard", "Heal"), "0");
    ASSERT_NO_FATAL_FAILURE(LeavePages(game));
    ASSERT_NO_FATAL_FAILURE(Play(game));
    EXPECT_TRUE(game.Tap(Key::Down, [](const Screenshot &Seen) {
        return BombsShown(Seen) == 2;
    }));
}

TEST(ControlsPage, WhatWasNotAppliedIsDropped) {
    const PreparedHome home;
    OpenedGame game({}, {}, &home);
    const std::optional<std::string> kept = home.Read(OptionsFile);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Controls));
    ASSERT_NO_FATAL_FAILURE(Rebind(game, Fire, "FIRE", Key::F, "F"));
    ASSERT_TRUE(game.Tap(Key::Escape, OptionsMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Return, RowShows(Fire, "LEFT CTRL")));
    ASSERT_NO_FATAL_FAILURE(LeavePages(game));
    ASSERT_NO_FATAL_FAILURE(Play(game));
    EXPECT_TRUE(game.Ignores(Key::F, HasFullAmmo));
    ASSERT_NO_FATAL_FAILURE(ExpectFires(game, Key::LeftControl));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(home.Read(OptionsFile), kept);
}

TEST(ControlsPage, DefaultSettingsTakeEffectOnlyWhenApplied) {
    const PreparedHome home;
    home.Put(OptionsFile, "[Options]\r\nControlsDevice=\"joystick\"\r\n[ControlsKeyboard]\r\nFire=\"9\"\r\n");
    OpenedGame game({}, {}, &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Controls));
    ASSERT_TRUE(game.WaitForPicture(RowShows(Device, "JOYSTICK (OFF)")));
    const Sight defaults = All({RowShows(Device, "KEYBOARD"), RowShows(Fire, "LEFT CTRL")});
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Controls, ControlsDefaults, defaults));
    ASSERT_TRUE(game.Tap(Key::Escape, OptionsMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Return, RowShows(Device, "JOYSTICK (OFF)")));
    EXPECT_EQ(StoredOption(home, "ControlsKeyboard", "Fire"), "9");
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Controls, ControlsDefaults, defaults));
    ASSERT_NO_FATAL_FAILURE(
        ActivateRow(game, Page::Controls, ControlsApply, PageIs(Page::Controls, ControlsApply)));
    EXPECT_TRUE(Keeps(home, "ControlsKeyboard", "Fire", "224"));
    EXPECT_EQ(StoredOption(home, "Options", "ControlsDevice"), "keyboard");
}

TEST(GraphicsPage, VerticalSyncIsKeptOnceApplied) {
    const PreparedHome home;
    OpenedGame game({}, DrawnAsForPlayers(), &home);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Graphics));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Graphics, VSync, RowShows(VSync, "OFF")));
    ASSERT_TRUE(game.Tap(Key::Escape, OptionsMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Return, RowShows(VSync, "ON")));
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(VSync, "OFF")));
    EXPECT_EQ(StoredOption(home, "Graphics", "VSync"), "1") << "written without APPLY";
    ASSERT_NO_FATAL_FAILURE(
        ActivateRow(game, Page::Graphics, GraphicsApply, PageIs(Page::Graphics, GraphicsApply)));
    EXPECT_TRUE(Keeps(home, "Graphics", "VSync", "0"));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Graphics, GraphicsDefaults, RowShows(VSync, "ON")));
    EXPECT_EQ(StoredOption(home, "Graphics", "VSync"), "0");
}
