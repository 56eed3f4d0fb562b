#include "gfx/Hud.hpp"

#include "gfx/SpriteId.hpp"
#include "gfx/World.hpp"
#include "tests/gfx/ExpectedGlyphs.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "text/Localization.hpp"

#include <utility>

namespace {

constexpr std::uint32_t BannerColor = 0xFFFFB41E;
constexpr std::uint32_t BlastColor = 0x8278F5FF;

} // namespace

/// Draws the overlays on an empty screen; words put into the table go again at the end.
class Overlay : public GfxTest {
protected:
    Overlay() {
        std::swap(OldTexts, Localization.Texts);
        State.ReadyBanner = 1.0F;
    }
    ~Overlay() override {
        std::swap(OldTexts, Localization.Texts);
    }

    ::testing::AssertionResult ShowsBanner(std::u32string_view Text, int X, int Width = ScreenWidth) {
        Clear();
        DrawGameplayOverlays(Renderer(), State);
        ExpectedPicture expected(Width, ScreenHeight);
        ExpectText(expected, Text, X, 340, 5, BannerColor);
        return expected.IsShownBy(Shown());
    }

    bool ShowsAnything() {
        Clear();
        DrawGameplayOverlays(Renderer(), State);
        return Shown().BoundsOfAllBut(Backdrop).w != 0;
    }

    void StartBlast(float X, float Y, float SpecialTimer) {
        State.ReadyBanner = 0.0F;
        State.SpecialActive = true;
        State.SpecialTimer = SpecialTimer;
        State.Player.X = X;
        State.Player.Y = Y;
    }

    ::testing::AssertionResult ShowsBlast(int CenterX, int CenterY, double Radius, int Width = ScreenWidth) {
        Clear();
        DrawGameplayOverlays(Renderer(), State);
        ExpectedPicture expected(Width, ScreenHeight);
        expected.Disc(CenterX, CenterY, Radius, BlastColor);
        return expected.IsShownBy(Shown());
    }

    GameState State = EmptyRoad();

private:
    decltype(LocalizationTable::Texts) OldTexts;
};

TEST_F(Overlay, BannerIsCentredOverTheRoad) {
    EXPECT_TRUE(ShowsBanner(U"READY", 552)); // from 640 - 87.5 on
}

TEST_F(Overlay, BannerIsCentredOverTheRoadOfEveryScreen) {
    for (const int width : {960, 1080, 1152, 1280, 1728, 2560}) {
        Open(width, width, ScreenHeight);
        EXPECT_TRUE(ShowsBanner(U"READY", width / 2 - 88, width)) << width;
    }
}

TEST_F(Overlay, BannerStartsAtAHalfPixelIfItsWidthIsOdd) {
    Open(1280, 2560, 1440);
    DrawGameplayOverlays(Renderer(), State);
    ExpectedPicture expected(1560, 800);
    ExpectText(expected, U"READY", 1105, 680, 10, BannerColor);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {1000, 640, 560, 160}));
}

TEST_F(Overlay, BannerStaysCentredInAnyLanguage) {
    Localization.Texts["Gameplay.Ready"] = "LOS";
    EXPECT_TRUE(ShowsBanner(U"LOS", 587)); // 105 wide
    Localization.Texts["Gameplay.Ready"] = "BEREIT MACHEN";
    EXPECT_TRUE(ShowsBanner(U"BEREIT MACHEN", 412));      // 455 wide
    Localization.Texts["Gameplay.Ready"] = "PR\xC3\x8AT"; // a letter that the font does not have
    EXPECT_TRUE(ShowsBanner(U"PR?T", 570));
    Localization.Texts["Gameplay.Ready"] = "";
    EXPECT_TRUE(ShowsBanner(U"READY", 552));
}

TEST_F(Overlay, BannerShowsOnlyWhileItsTimeIsAboveZero) {
    State.ReadyBanner = 0.001F;
    EXPECT_TRUE(ShowsAnything());
    State.ReadyBanner = 0.0F;
    EXPECT_FALSE(ShowsAnything());
    State.ReadyBanner = -1.0F;
    EXPECT_FALSE(ShowsAnything());
}

TEST_F(Overlay, BannerDoesNotFade) {
    State.ReadyBanner = 0.001F;
    EXPECT_TRUE(ShowsBanner(U"READY", 552));
}

TEST_F(Overlay, BlastGrowsFrom40To460) {
    StartBlast(640.0F, 400.0F, 0.65F);
    EXPECT_TRUE(ShowsBlast(640, 400, 40.0));
    StartBlast(640.0F, 400.0F, 0.325F);
    EXPECT_TRUE(ShowsBlast(640, 400, 250.0));
    StartBlast(640.0F, 400.0F, 0.0F);
    EXPECT_TRUE(ShowsBlast(640, 400, 460.0));
}

TEST_F(Overlay, BlastIsAroundTheCarsRoundedPlace) {
    StartBlast(600.5F, 299.4F, 0.65F);
    EXPECT_TRUE(ShowsBlast(601, 299, 40.0));
}

TEST_F(Overlay, BlastIsCutByTheEdgesOfTheScreen) {
    Open(960, 960, ScreenHeight);
    StartBlast(480.0F, 670.0F, 0.0F);
    EXPECT_TRUE(ShowsBlast(480, 670, 460.0, 960));
}

TEST_F(Overlay, BlastShowsOnlyWhileItIsActive) {
    StartBlast(640.0F, 400.0F, 0.3F);
    State.SpecialActive = false;
    EXPECT_FALSE(ShowsAnything());
}

TEST_F(Overlay, BlastShowsThoughTheCarIsGone) {
    StartBlast(640.0F, 400.0F, 0.65F);
    State.Screen = ScreenGameOver;
    State.PlayerDying = true;
    EXPECT_TRUE(ShowsBlast(640, 400, 40.0));
}

TEST_F(Overlay, BlastLetsTheWorldShowThrough) {
    StartBlast(640.0F, 400.0F, 0.65F);
    Clear(0xFF000000);
    DrawGameplayOverlays(Renderer(), State);
    const std::uint32_t shown = Shown().At(640, 400); // 130 of 255 parts
    EXPECT_NEAR(static_cast<int>(shown & 0xFFU), 0xFF * 130 / 255.0, 2);
    EXPECT_NEAR(static_cast<int>(shown >> 8U & 0xFFU), 0xF5 * 130 / 255.0, 2);
    EXPECT_NEAR(static_cast<int>(shown >> 16U & 0xFFU), 0x78 * 130 / 255.0, 2);
}

TEST_F(Overlay, BlastLiesOverTheBanner) {
    StartBlast(640.0F, 400.0F, 0.325F);
    State.ReadyBanner = 1.0F;
    DrawGameplayOverlays(Renderer(), State);
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectText(expected, U"READY", 552, 340, 5, BannerColor);
    expected.Disc(640, 400, 250.0, BlastColor);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(Overlay, BlastIsTheLastThingOfTheSceneOverTheHudToo) {
    GameState still = State;
    still.ReadyBanner = 1.0F;
    still.PlayerDying = false;
    still.Player.X = 900.0F;
    still.Player.Y = 250.0F;
    still.FirstAidKits = 3;
    RenderGameplay(Renderer(), still);
    const Picture before = Shown();

    still.SpecialActive = true;
    still.SpecialTimer = 0.0F;
    Clear();
    RenderGameplay(Renderer(), still);
    ExpectedPicture expected(before);
    expected.Disc(900, 250, 460.0, BlastColor);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}
