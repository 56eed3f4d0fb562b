#include "gfx/Help.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/ScreenTest.hpp"

#include <array>
#include <cmath>
#include <string>

namespace {

constexpr std::uint32_t TitleColor = 0xFFF0F0F0;
constexpr std::uint32_t BodyColor = 0xFFDCDCDC;
constexpr std::uint32_t NameColor = 0xFFB9B9B9;
constexpr std::uint32_t HintColor = 0xFFE1E1E1;

constexpr std::u32string_view MainMenuHint = U"ENTER OR ESC BACK TO MAIN MENU";
constexpr std::u32string_view PauseMenuHint = U"ENTER OR ESC BACK TO PAUSE MENU";

constexpr std::array MainMenuCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A OR B MAIN MENU"},
    DeviceCase{false, true, U"JOY BUTTON 0 OR BUTTON 3 MAIN MENU"},
    DeviceCase{true, true, U"PAD A OR B MAIN MENU   JOY BUTTON 0 OR BUTTON 3 MAIN MENU"},
};

constexpr std::array PauseMenuCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A OR B PAUSE MENU"},
    DeviceCase{false, true, U"JOY BUTTON 0 OR BUTTON 3 PAUSE MENU"},
    DeviceCase{true, true, U"PAD A OR B PAUSE MENU   JOY BUTTON 0 OR BUTTON 3 PAUSE MENU"},
};

/// What the page is to show; the items stand Step apart.
struct Told {
    int Width = ScreenWidth;
    double Step = 188.0; // (182 + 154) / 2 + 20
    std::u32string_view Hint = MainMenuHint;
    std::u32string_view DeviceLine{};
    std::array<std::u32string_view, 4> Names{U"FIRST AID", U"BOMB", U"INVINCIBILITY", U"DUAL WEAPON"};
    std::u32string_view Title = U"HELP";
    std::u32string_view Intro = U"SURVIVE THE ROAD AND CLEAR ENEMIES";
    std::u32string_view ItemsTitle = U"ITEMS";
    std::u32string_view BombTip = U"USE BOMBS TO CLEAR THE SCREEN";
    std::u32string_view FirstAidTip = U"USE FIRST AID WHEN NEEDED";
};

void ExpectHelp(ExpectedScreen &Expected, const Told &Told) {
    const double center = Told.Width / 2.0;
    Expected.Centered(Told.Title, center, 42, 6, TitleColor);
    Expected.Centered(Told.Intro, center, 124, 3, BodyColor);
    Expected.Centered(Told.ItemsTitle, center, 192, 4, BodyColor);
    constexpr std::array sprites{
        SpriteItemFirstAid, SpriteItemBomb, SpriteItemInvincibility, SpriteItemDualWeapon};
    constexpr std::array stepsFromCenter{-1.5, -0.5, 0.5, 1.5};
    for (std::size_t i = 0; i < sprites.size(); ++i) {
        const double x = center + stepsFromCenter[i] * Told.Step;
        Expected.Sprite(sprites[i], static_cast<int>(std::floor(x + 0.5)), 258, 24);
    }
    for (std::size_t i = 0; i < sprites.size(); ++i) {
        Expected.Centered(Told.Names[i], center + stepsFromCenter[i] * Told.Step, 280, 2, NameColor);
    }
    Expected.Centered(Told.BombTip, center, 348, 3, BodyColor);
    Expected.Centered(Told.FirstAidTip, center, 416, 3, BodyColor);
    Expected.Centered(Told.Hint, center, 470, 2, HintColor);
    Expected.Centered(Told.DeviceLine, center, 498, 2, HintColor);
}

} // namespace

class Help : public ScreenTest {
protected:
    Help() {
        State.Screen = ScreenHelp;
    }

    ::testing::AssertionResult Shows(const Told &Told, int Zoom = 1) {
        Clear();
        RenderHelp(Renderer(), State, Devices);
        ExpectedScreen expected(Told.Width, Zoom);
        ExpectHelp(expected, Told);
        return expected.IsShownBy(Shown());
    }

    void ExpectOnEveryScreen(const std::array<DeviceCase, 4> &Cases, std::u32string_view Hint) {
        for (const int width : TestedWidths) {
            OpenWidth(width);
            for (const DeviceCase &devices : Cases) {
                Plug(devices);
                const Told told{.Width = width, .Hint = Hint, .DeviceLine = devices.Line};
                EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
            }
        }
    }

    static void NameItems(const std::array<const char *, 4> &Names) {
        constexpr std::array keys{
            "Help.Item.FirstAid", "Help.Item.Bomb", "Help.Item.Invincibility", "Help.Item.DualWeapon"};
        for (std::size_t i = 0; i < keys.size(); ++i) {
            Localization.Texts[keys[i]] = Names[i];
        }
    }
};

TEST_F(Help, FromTheMainMenuLeadsBackThere) {
    ExpectOnEveryScreen(MainMenuCases, MainMenuHint);
}

TEST_F(Help, FromThePauseMenuLeadsBackThere) {
    State.HelpReturnScreen = ScreenPaused;
    ExpectOnEveryScreen(PauseMenuCases, PauseMenuHint);
}

TEST_F(Help, FromAnyOtherScreenNamesTheMainMenu) {
    Plug(true, false);
    for (const enum Screen from : {ScreenOptions, ScreenHelp, ScreenPlaying, ScreenCredits, ScreenGameOver}) {
        State.HelpReturnScreen = from;
        EXPECT_TRUE(Shows({.DeviceLine = MainMenuCases[1].Line})) << from;
    }
}

TEST_F(Help, HasNothingBelowItsHintWithoutADevice) {
    RenderHelp(Renderer(), State, Devices);
    const SDL_Rect bounds = Shown().BoundsOfAllBut(0xFF000000);
    EXPECT_EQ(bounds.y + bounds.h, 470 + 14); // the letters' ink is 7 squares high
}

TEST_F(Help, SpacesItsItemsByTheWidestPairOfNeighbours) {
    struct Case {
        std::array<const char *, 4> Names;
        std::array<std::u32string_view, 4> Letters;
        double Step;
    };
    const std::array cases{
        Case{{"ABCDEFGH", "ABCD", "AB", "AB"}, {U"ABCDEFGH", U"ABCD", U"AB", U"AB"}, 104.0},   // 112 and 56
        Case{{"AB", "ABCDEF", "ABCDEFG", "AB"}, {U"AB", U"ABCDEF", U"ABCDEFG", U"AB"}, 111.0}, // 84 and 98
        Case{{"ABC", "AB", "ABC", "ABCDEFGH"}, {U"ABC", U"AB", U"ABC", U"ABCDEFGH"}, 97.0},    // 42 and 112
        Case{{"A", "B", "C", "D"}, {U"A", U"B", U"C", U"D"}, 34.0},
    };
    for (const int width : {960, 1280}) {
        OpenWidth(width);
        for (const Case &items : cases) {
            NameItems(items.Names);
            EXPECT_TRUE(Shows({.Width = width, .Step = items.Step, .Names = items.Letters}))
                << width << " " << items.Step;
        }
    }
}

TEST_F(Help, SpacesNamesThatJustFitTheNarrowestScreenAsWanted) {
    OpenWidth(960);
    const std::string name = "ABCDEFGHIJKLMNO"; // 210 wide: 230 wanted, (960 - 2 x 125) / 3 = 236.67 there
    NameItems({name.c_str(), name.c_str(), name.c_str(), name.c_str()});
    constexpr std::u32string_view letters = U"ABCDEFGHIJKLMNO";
    EXPECT_TRUE(Shows({.Width = 960, .Step = 230.0, .Names = {letters, letters, letters, letters}}));
}

TEST_F(Help, LetsNamesOverlapRatherThanLeaveTheScreen) {
    OpenWidth(960);
    const std::string name = "ABCDEFGHIJKLMNOPQRSTUVWXYZ12345"; // 434 wide: (960 - 2 x 237) / 3 of room
    NameItems({name.c_str(), name.c_str(), name.c_str(), name.c_str()});
    constexpr std::u32string_view letters = U"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345";
    EXPECT_TRUE(Shows({.Width = 960, .Step = 162.0, .Names = {letters, letters, letters, letters}}));
    const Picture shown = Shown();
    for (const int x : {19, 940}) { // the margin of 20 stays free
        for (int y = 246; y < 300; ++y) {
            ASSERT_EQ(shown.At(x, y), 0xFF000000) << x << ", " << y;
        }
    }
    OpenWidth(2560);
    EXPECT_TRUE(Shows({.Width = 2560, .Step = 454.0, .Names = {letters, letters, letters, letters}}));
}

TEST_F(Help, TakesItsRoomFromTheWidestNameOfAll) {
    OpenWidth(960);
    // 560, 14, 14 and 14 wide: 307 wanted, margins of 300, so 120 of room.
    NameItems({"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345678901234", "A", "B", "C"});
    EXPECT_TRUE(Shows({.Width = 960,
        .Step = 120.0,
        .Names = {U"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345678901234", U"A", U"B", U"C"}}));
}

TEST_F(Help, KeepsItsItems32ApartWhereThereIsNoRoom) {
    OpenWidth(960);
    // 910 wide: margins of 475, so 3.33 of room.
    const std::string name = "ABCDEFGHIJKLMNOPQRSTUVWXYZ123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ1234";
    constexpr std::u32string_view letters =
        U"ABCDEFGHIJKLMNOPQRSTUVWXYZ123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ1234";
    ASSERT_EQ(CellWidth(letters, 2), 910);
    NameItems({name.c_str(), "A", "B", "C"});
    EXPECT_TRUE(Shows({.Width = 960, .Step = 32.0, .Names = {letters, U"A", U"B", U"C"}}));
}

TEST_F(Help, CountsHalfASpriteAsTheLeastMargin) {
    OpenWidth(163); // narrower than any screen of the game: (163 - 2 x 32) / 3 of room, 34 wanted
    NameItems({"A", "B", "C", "D"});
    RenderHelp(Renderer(), State, Devices);
    ExpectedScreen expected(163);
    ExpectHelp(expected, {.Width = 163, .Step = 33.0, .Names = {U"A", U"B", U"C", U"D"}});
    EXPECT_TRUE(expected.IsShownBy(Shown(), 240, 300));
}

TEST_F(Help, StandsAtHalfPixelsWhereItsTextsAreOdd) {
    OpenWidth(960, 2);
    EXPECT_TRUE(Shows({.Width = 960}, 2)); // the tips, 609 and 525 wide
    NameItems({"AB", "ABCDEF", "ABCDEFG", "AB"});
    // 111 apart: the sprites' places are rounded to whole logical pixels, the names' are not.
    EXPECT_TRUE(Shows({.Width = 960, .Step = 111.0, .Names = {U"AB", U"ABCDEF", U"ABCDEFG", U"AB"}}, 2));
}

TEST_F(Help, TakesEachOfItsTextsFromTheTableInEveryFrame) {
    Plug(true, false);
    ASSERT_TRUE(Shows({.DeviceLine = MainMenuCases[1].Line}));
    Localization.Texts = {{"Help.Title", "T"}, {"Help.Intro", "I"}, {"Help.Items.Title", "J"},
        {"Help.Item.FirstAid", "1"}, {"Help.Item.Bomb", "2"}, {"Help.Item.Invincibility", "3"},
        {"Help.Item.DualWeapon", "4"}, {"Help.Tip.Bombs", "B"}, {"Help.Tip.FirstAid", "F"},
        {"Help.Hint.BackToPauseMenu", "P"}, {"Help.Hint.BackToMainMenu", "M"},
        {"Controller.Hint.MainMenu", "M2"}, {"Controller.Hint.PauseMenu", "P3"},
        {"Controller.Hint.Select", "X"}, {"Controller.Hint.Back", "Y"}};
    Told told{.Step = 34.0,
        .Hint = U"M",
        .DeviceLine = U"PAD A OR B M2",
        .Names = {U"1", U"2", U"3", U"4"},
        .Title = U"T",
        .Intro = U"I",
        .ItemsTitle = U"J",
        .BombTip = U"B",
        .FirstAidTip = U"F"};
    EXPECT_TRUE(Shows(told));
    State.HelpReturnScreen = ScreenPaused;
    told.Hint = U"P";
    told.DeviceLine = U"PAD A OR B P3";
    EXPECT_TRUE(Shows(told));
}
