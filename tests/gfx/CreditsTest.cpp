#include "gfx/Credits.hpp"

#include "tests/gfx/ScreenTest.hpp"

namespace {

constexpr std::uint32_t HeadingColor = 0xFFF5F5F5;
constexpr std::uint32_t NameColor = 0xFFB9B9B9;
constexpr std::u32string_view Name = U"Tomas \"Orrin\" Ardell";

struct Headings {
    std::u32string_view Programming = U"PROGRAMMED BY";
    std::u32string_view Gfx = U"GFX BY";
    std::u32string_view Sound = U"SFX & MUSIC BY";
};

void ExpectCredits(ExpectedScreen &Expected, int Width, double Base, const Headings &Told = {}) {
    const int center = Width / 2;
    Expected.Centered(Told.Programming, center, Base, 4, HeadingColor);
    Expected.Centered(Name, center, Base + 38, 4, NameColor);
    Expected.Centered(Told.Gfx, center, Base + 114, 4, HeadingColor);
    Expected.Centered(Name, center, Base + 152, 4, NameColor);
    Expected.Centered(Told.Sound, center, Base + 228, 4, HeadingColor);
    Expected.Centered(Name, center, Base + 266, 4, NameColor);
}

} // namespace

class Credits : public ScreenTest {
protected:
    ::testing::AssertionResult Shows(
        float Scroll, double Base, int Width = ScreenWidth, const Headings &Told = {}, int Zoom = 1) {
        State.CreditsScroll = Scroll;
        Clear();
        RenderCredits(Renderer(), State);
        ExpectedScreen expected(Width, Zoom);
        ExpectCredits(expected, Width, Base, Told);
        return expected.IsShownBy(Shown());
    }

    bool IsBlackAt(float Scroll) {
        State.CreditsScroll = Scroll;
        Clear();
        RenderCredits(Renderer(), State);
        return Shown().BoundsOfAllBut(0xFF000000).w == 0;
    }
};

TEST_F(Credits, StandBelowTheScreenAtFirst) {
    EXPECT_TRUE(IsBlackAt(0.0F));
    EXPECT_TRUE(IsBlackAt(40.0F)); // the first line's top is the screen's bottom
    EXPECT_FALSE(IsBlackAt(41.0F));
}

TEST_F(Credits, HaveSixLinesOnTheirWayUp) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        EXPECT_TRUE(Shows(500.0F, 260.0, width)) << width;
    }
}

TEST_F(Credits, EnterFromBelow) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        EXPECT_TRUE(Shows(300.0F, 460.0, width)) << width; // the last line, at 726, is still out of sight
    }
    EXPECT_TRUE(Shows(310.0F, 450.0, 2560)); // of the last line, the upper 4 pixels
}

TEST_F(Credits, LeaveAtTheTop) {
    EXPECT_TRUE(Shows(780.0F, -20.0));
    EXPECT_TRUE(Shows(1040.0F, -280.0)); // the lower 14 pixels of the last line
}

TEST_F(Credits, HaveLeftAtTheEndOfTheirScroll) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        EXPECT_FALSE(IsBlackAt(1053.0F)) << width;
        EXPECT_TRUE(IsBlackAt(1054.0F)) << width; // the last line's ink, 28 high, from -28 on
        EXPECT_TRUE(IsBlackAt(1089.9F)) << width;
        EXPECT_TRUE(IsBlackAt(1090.0F)) << width;
    }
}

TEST_F(Credits, MoveByFractionsOfALogicalPixel) {
    OpenWidth(960, 2);
    EXPECT_TRUE(Shows(500.5F, 259.5, 960, {}, 2));
    EXPECT_TRUE(Shows(500.75F, 259.25, 960, {}, 2));
}

TEST_F(Credits, TakeEachHeadingFromTheTableButNotTheName) {
    Localization.Texts = {{"Credits.ProgrammedBy", "CODE"}, {"Credits.GfxBy", "GRAFIK"},
        {"Credits.SfxMusicBy", "KL\xC3\x84NGE"}, {"Tomas \"Orrin\" Ardell", "NOBODY"}};
    EXPECT_TRUE(Shows(500.0F, 260.0, ScreenWidth, {U"CODE", U"GRAFIK", U"KL\u00C4NGE"}));
    EXPECT_EQ(Localization.Texts.size(), 4U); // no other word is asked for
}
