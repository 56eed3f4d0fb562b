#include "gfx/Hud.hpp"

#include "gfx/SpriteId.hpp"
#include "gfx/World.hpp"
#include "tests/gfx/ExpectedGlyphs.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "text/Localization.hpp"

#include <limits>
#include <utility>

namespace {

constexpr std::uint32_t TextColor = 0xFFEBEBEB;
constexpr std::uint32_t HealthBack = 0xFF28461C;
constexpr std::uint32_t HealthFill = 0xFF82E65F;
constexpr std::uint32_t AmmoBack = 0xFF193C3C;
constexpr std::uint32_t AmmoFill = 0xFF50DCF0;

/// What the HUD tells of a run, and where its right panel lies on the screen.
struct Told {
    std::u32string_view Stage = U"1";
    std::u32string_view Score = U"00000000";
    std::u32string_view HighScore = U"00000000";
    std::u32string_view Health = U"HEALTH";
    std::u32string_view Ammo = U"AMMO";
    std::u32string_view Stocks = U"x2";
    int PanelX = 1008; // 1280 - 24 - (126 + 12 + 110)
    int BarX = 1146;   // 1280 - 24 - 110
    int HealthWidth = 110;
    int AmmoWidth = 110;
    int Bombs = 3;
    int FirstAidKits = 0;
};

void ExpectHudText(ExpectedPicture &Expected, std::u32string_view Text, int X, int Y) {
    ExpectText(Expected, Text, X, Y, 3, TextColor);
}

void ExpectHud(ExpectedPicture &Expected, const Told &Told) {
    ExpectHudText(Expected, U"STAGE", 24, 18);
    ExpectHudText(Expected, Told.Stage, 24, 50);
    ExpectHudText(Expected, U"SCORE", 24, 92);
    ExpectHudText(Expected, Told.Score, 24, 122);
    ExpectHudText(Expected, U"HIGH SCORE", 24, 160);
    ExpectHudText(Expected, Told.HighScore, 24, 190);

    ExpectHudText(Expected, Told.Health, Told.PanelX, 28);
    ExpectHudText(Expected, Told.Ammo, Told.PanelX, 62);
    Expected.Fill(Told.BarX, 34, 110, 10, HealthBack);
    Expected.Fill(Told.BarX, 34, Told.HealthWidth, 10, HealthFill);
    Expected.Fill(Told.BarX, 68, 110, 10, AmmoBack);
    Expected.Fill(Told.BarX, 68, Told.AmmoWidth, 10, AmmoFill);

    // 15.6 right of the panel's edge and at 111.6, both rounded; 31.2 wide and high, rounded.
    Expected.Sprite(SpritePlayer, static_cast<float>(Told.PanelX + 16), 112.0F, 31, 31);
    ExpectHudText(Expected, Told.Stocks, Told.PanelX + 39, 99); // the fraction is cut off
    for (int i = 0; i < Told.Bombs; ++i) {
        Expected.Sprite(SpriteItemBomb, static_cast<float>(Told.PanelX + 13 + 30 * i), 150.0F, 26, 26);
    }
    for (int i = 0; i < Told.FirstAidKits; ++i) {
        Expected.Sprite(SpriteItemFirstAid, static_cast<float>(Told.PanelX + 13 + 30 * i), 180.0F, 26, 26);
    }
}

} // namespace

/// Draws the HUD on an empty screen; words put into the table go again at the end.
class Hud : public GfxTest {
protected:
    Hud() {
        std::swap(OldTexts, Localization.Texts);
    }
    ~Hud() override {
        std::swap(OldTexts, Localization.Texts);
    }

    ::testing::AssertionResult Shows(const Told &Told, int Width = ScreenWidth) {
        Clear();
        DrawHud(Renderer(), State);
        ExpectedPicture expected(Width, ScreenHeight);
        ExpectHud(expected, Told);
        return expected.IsShownBy(Shown());
    }

    /// How many pixels of a row between two columns are of a colour.
    static int CountInRow(const Picture &Shown, int Y, int Left, int Right, std::uint32_t PackedColor) {
        int count = 0;
        for (int x = Left; x < Right; ++x) {
            count += Shown.At(x, Y) == PackedColor ? 1 : 0;
        }
        return count;
    }

    GameState State = EmptyRoad();

private:
    decltype(LocalizationTable::Texts) OldTexts;
};

TEST_F(Hud, OfANewRunShowsItsNumbersAndThreeBombs) {
    EXPECT_TRUE(Shows({}));
}

TEST_F(Hud, HasNoBackgroundAndLeavesTheRoadFree) {
    DrawHud(Renderer(), State);
    const Picture shown = Shown();
    const ExpectedPicture nothing(ScreenWidth, ScreenHeight);
    EXPECT_TRUE(nothing.IsShownBy(shown, {480, 0, 320, ScreenHeight}));
    EXPECT_EQ(shown.At(20, 100), Backdrop);   // left of the numbers
    EXPECT_EQ(shown.At(24, 112), Backdrop);   // below the first letter
    EXPECT_EQ(shown.At(1140, 39), Backdrop);  // between label and bar
    EXPECT_EQ(shown.At(1258, 39), Backdrop);  // right of the bar
    EXPECT_EQ(shown.At(1018, 180), Backdrop); // where no first-aid kit is held
}

TEST_F(Hud, ShowsTheStageWithoutLeadingZeros) {
    State.Stage = 9;
    EXPECT_TRUE(Shows({.Stage = U"9"}));
    State.Stage = 10;
    EXPECT_TRUE(Shows({.Stage = U"10"}));
    State.Stage = 1203;
    EXPECT_TRUE(Shows({.Stage = U"1203"}));
}

TEST_F(Hud, PadsTheScoresToEightDigits) {
    State.Score = 123;
    State.HighScore = 98765;
    EXPECT_TRUE(Shows({.Score = U"00000123", .HighScore = U"00098765"}));
    State.Score = 12345678;
    State.HighScore = 99999999;
    EXPECT_TRUE(Shows({.Score = U"12345678", .HighScore = U"99999999"}));
}

TEST_F(Hud, ShowsAllDigitsOfALongerScore) {
    State.Score = 123456789;
    State.HighScore = std::numeric_limits<std::int64_t>::max();
    EXPECT_TRUE(Shows({.Score = U"123456789", .HighScore = U"9223372036854775807"}));
}

TEST_F(Hud, ShowsTheSpareLivesBehindAnX) {
    State.Player.Stocks = 0;
    EXPECT_TRUE(Shows({.Stocks = U"x0"}));
    State.Player.Stocks = 5;
    EXPECT_TRUE(Shows({.Stocks = U"x5"}));
    State.Player.Stocks = 12;
    EXPECT_TRUE(Shows({.Stocks = U"x12"}));
}

TEST_F(Hud, ShowsThePlainCarWhateverPowerIsActive) {
    State.InvincibilityPowerTimer = 3.0F;
    State.DualWeaponPowerTimer = 3.0F;
    State.InvulnerabilityTimer = 0.14F;
    EXPECT_TRUE(Shows({}));
}

TEST_F(Hud, FillsTheHealthBarByTheShareThatIsLeft) {
    State.Player.Hp = 100;
    EXPECT_TRUE(Shows({.HealthWidth = 110}));
    State.Player.Hp = 50;
    EXPECT_TRUE(Shows({.HealthWidth = 55}));
    State.Player.Hp = 10;
    EXPECT_TRUE(Shows({.HealthWidth = 11}));
    State.Player.Hp = 1;
    EXPECT_TRUE(Shows({.HealthWidth = 1}));
    State.Player.Hp = 50;
    State.Player.MaxHp = 200;
    EXPECT_TRUE(Shows({.HealthWidth = 27})); // 27.5
}

TEST_F(Hud, FillsTheAmmoBarByTheShareThatIsLeft) {
    State.AmmoMeter = 100.0F;
    EXPECT_TRUE(Shows({.AmmoWidth = 110}));
    State.AmmoMeter = 50.0F;
    EXPECT_TRUE(Shows({.AmmoWidth = 55}));
    State.AmmoMeter = 10.01F;
    EXPECT_TRUE(Shows({.AmmoWidth = 11}));
}

TEST_F(Hud, LeavesOnlyTheBackOfAnEmptyAmmoBar) {
    State.AmmoMeter = 0.0F;
    EXPECT_TRUE(Shows({.AmmoWidth = 0}));
}

TEST_F(Hud, LeavesOnlyTheBackOfAnEmptyHealthBar) {
    State.Player.Hp = 0;
    EXPECT_TRUE(Shows({.HealthWidth = 0}));
}

TEST_F(Hud, FillsTheBarsToFractionsOfALogicalPixel) {
    Open(1280, 2560, 1440);
    State.Player.Hp = 50;
    State.Player.MaxHp = 200; // 27.5 of 110
    State.AmmoMeter = 75.0F;  // 82.5 of 110
    DrawHud(Renderer(), State);
    const Picture shown = Shown();
    for (const int y : {68, 87}) {
        EXPECT_EQ(CountInRow(shown, y, 2280, 2560, HealthFill), 55);
        EXPECT_EQ(CountInRow(shown, y, 2280, 2560, HealthBack), 165);
    }
    for (const int y : {136, 155}) {
        EXPECT_EQ(CountInRow(shown, y, 2280, 2560, AmmoFill), 165);
        EXPECT_EQ(CountInRow(shown, y, 2280, 2560, AmmoBack), 55);
    }
    EXPECT_EQ(CountInRow(shown, 67, 2280, 2560, Backdrop), 280);
    EXPECT_EQ(CountInRow(shown, 88, 2280, 2560, Backdrop), 280);
}

TEST_F(Hud, DoesNotLimitTheFills) {
    State.Player.Hp = 110;
    State.AmmoMeter = 120.0F;
    EXPECT_TRUE(Shows({.HealthWidth = 121, .AmmoWidth = 132}));
}

TEST_F(Hud, ShowsAnIconForEachBombHeld) {
    for (const int held : {0, 1, 2, 3}) {
        State.Bombs = held;
        EXPECT_TRUE(Shows({.Bombs = held})) << held;
    }
}

TEST_F(Hud, ShowsAnIconForEachFirstAidKitHeld) {
    for (const int held : {0, 1, 2, 3}) {
        State.FirstAidKits = held;
        EXPECT_TRUE(Shows({.FirstAidKits = held})) << held;
    }
}

TEST_F(Hud, ShowsThreeIconsAtMost) {
    State.Bombs = 4;
    State.FirstAidKits = 100;
    EXPECT_TRUE(Shows({.Bombs = 3, .FirstAidKits = 3}));
}

TEST_F(Hud, ShowsNoIconForLessThanNone) {
    State.Bombs = -1;
    State.FirstAidKits = -100;
    EXPECT_TRUE(Shows({.Bombs = 0, .FirstAidKits = 0}));
}

TEST_F(Hud, StaysAtTheRightEdgeOfEveryScreen) {
    for (const int width : {960, 1280, 2560}) {
        Open(width, width, ScreenHeight);
        EXPECT_TRUE(Shows({.PanelX = width - 272, .BarX = width - 134}, width)) << width;
        const Picture shown = Shown();
        EXPECT_EQ(shown.At(width - 25, 39), HealthFill);
        EXPECT_EQ(shown.At(width - 24, 39), Backdrop);
        EXPECT_EQ(shown.At(width - 25, 73), AmmoFill);
        EXPECT_EQ(shown.At(width - 24, 73), Backdrop);
    }
}

TEST_F(Hud, MovesThePanelLeftForAWiderHealthLabel) {
    Localization.Texts["Hud.Health"] = "GESUNDHEIT"; // 210 wide
    EXPECT_TRUE(Shows({.Health = U"GESUNDHEIT", .PanelX = 924}));
}

TEST_F(Hud, MovesThePanelLeftForAWiderAmmoLabel) {
    Localization.Texts["Hud.Ammo"] = "MUNITION"; // 168 wide
    EXPECT_TRUE(Shows({.Ammo = U"MUNITION", .PanelX = 966}));
}

TEST_F(Hud, MovesThePanelRightForNarrowerLabels) {
    Localization.Texts["Hud.Health"] = "HP";
    EXPECT_TRUE(Shows({.Health = U"HP", .PanelX = 1050})); // AMMO is 84 wide
}

TEST_F(Hud, MeasuresLabelsByLettersAndNotByBytes) {
    Localization.Texts["Hud.Health"] = "\xC3\x89NERGIE"; // 147 wide
    EXPECT_TRUE(Shows({.Health = U"\u00C9NERGIE", .PanelX = 987}));
}

TEST_F(Hud, KeepsItsBarsInPlaceForALabelOnTheWidestAndTheNarrowestScreen) {
    Localization.Texts["Hud.Health"] = "GESUNDHEIT";
    for (const int width : {960, 2560}) {
        Open(width, width, ScreenHeight);
        EXPECT_TRUE(Shows({.Health = U"GESUNDHEIT", .PanelX = width - 356, .BarX = width - 134}, width))
            << width;
    }
}

TEST_F(Hud, FetchesItsWordsAnewInEveryFrame) {
    ASSERT_TRUE(Shows({}));
    Localization.Texts["Hud.Ammo"] = "AMMOS";
    EXPECT_TRUE(Shows({.Ammo = U"AMMOS"}));
    Localization.Texts.clear();
    EXPECT_TRUE(Shows({}));
}

TEST_F(Hud, TakesEachOfItsLabelsFromTheTable) {
    Localization.Texts = {{"Hud.Stage", "A1"}, {"Hud.Score", "B2"}, {"Hud.HighScore", "C3"},
        {"Hud.Health", "D4D4D4"}, {"Hud.Ammo", "E5"}, {"Gameplay.Ready", "F6"}};
    DrawHud(Renderer(), State);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectHudText(expected, U"A1", 24, 18);
    ExpectHudText(expected, U"B2", 24, 92);
    ExpectHudText(expected, U"C3", 24, 160);
    ExpectHudText(expected, U"D4D4D4", 1008, 28);
    ExpectHudText(expected, U"E5", 1008, 62);
    const Picture shown = Shown();
    for (const int y : {18, 92, 160}) {
        EXPECT_TRUE(expected.IsShownBy(shown, {0, y, 480, 24})) << y;
    }
    EXPECT_TRUE(expected.IsShownBy(shown, {1000, 18, 146, 78}));
    EXPECT_EQ(Localization.Texts.size(), 6U); // no other word is asked for
}

TEST_F(Hud, ShowsTheEnglishWordForAnEmptyLabel) {
    Localization.Texts["Hud.Health"] = "";
    EXPECT_TRUE(Shows({}));
}

TEST_F(Hud, LiesOverEverythingInTheWorld) {
    State.PlayerDying = false;
    State.Player.X = 100.0F; // onto the high score
    State.Player.Y = 200.0F;
    State.Enemies.push_back({.X = 1150.0F, .Y = 39.0F, .Color = {}});
    State.Explosions.push_back({60.0F, 60.0F, 0.5F, 1.0F, 60.0F, {255, 255, 255, 255}});
    RenderGameplay(Renderer(), State);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundEarth, ScreenWidth, 0, ScreenHeight, 0);
    ExpectRoad(expected, SpriteRoadSurface, ScreenWidth, 0, ScreenHeight, 0);
    ExpectMarkings(expected, ScreenWidth, -62);
    expected.Sprite(SpriteEnemy, 1150.0F, 39.0F, 26, 26);
    expected.Disc(60, 60, 30.0, 0x7FFFFFFF);
    expected.Sprite(SpritePlayer, 100.0F, 200.0F, 31, 31);
    ExpectHud(expected, {});
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Hud, StandsOnTheGameOverScreenWithoutTheCar) {
    State.Screen = ScreenGameOver;
    State.PlayerDying = false;
    State.Player.X = 640.0F;
    State.Player.Y = 600.0F;
    State.Player.Hp = 20;
    State.Player.Stocks = 0;
    State.Score = 4321;
    State.HighScore = 54321;
    State.Bombs = 1;
    State.FirstAidKits = 2;
    RenderGameplay(Renderer(), State);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundEarth, ScreenWidth, 0, ScreenHeight, 0);
    ExpectRoad(expected, SpriteRoadSurface, ScreenWidth, 0, ScreenHeight, 0);
    ExpectMarkings(expected, ScreenWidth, -62);
    ExpectHud(expected, {.Score = U"00004321",
                            .HighScore = U"00054321",
                            .Stocks = U"x0",
                            .HealthWidth = 22,
                            .Bombs = 1,
                            .FirstAidKits = 2});
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Hud, SnapsItsSpritesInASmallWindow) {
    Open(1280, 640, 360);
    DrawHud(Renderer(), State);
    ExpectedPicture expected(640, 360);
    // The car's middle is snapped to (1024, 112), its size to 32.
    expected.Sprite(SpritePlayer, 512.0F, 56.0F, 16, 16);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {500, 48, 23, 16}));
    expected.Fill(573, 17, 55, 5, HealthFill);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {570, 12, 70, 15}));
}
