#include "gfx/Entities.hpp"

#include "tests/gfx/GfxTest.hpp"

class ExplosionDraw : public GfxTest {
protected:
    Picture Draw(const Explosion &Burst) {
        GameState state = EmptyRoad();
        state.Explosions.push_back(Burst);
        DrawEntities(Renderer(), state);
        return Shown();
    }

    void ExpectDisc(const Explosion &Burst, int X, int Y, double Radius, std::uint32_t PackedColor) {
        Clear();
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        expected.Disc(X, Y, Radius, PackedColor);
        EXPECT_TRUE(expected.IsShownBy(Draw(Burst)));
    }

    /// The alpha that a burst is drawn with: what it leaves on a transparent canvas.
    std::uint32_t AlphaOf(float Age, float Life, std::uint8_t ColorAlpha) {
        Clear(0);
        return Draw({100.0F, 200.0F, Age, Life, 10.0F, {200, 100, 50, ColorAlpha}}).At(100, 200) >> 24U;
    }
};

TEST_F(ExplosionDraw, GrowsAndFades) {
    ExpectDisc({100.4F, 200.5F, 0.5F, 1.0F, 10.0F, {200, 100, 50, 200}}, 100, 201, 5.0, 0x643264C8);
    ExpectDisc({100.4F, 200.5F, 0.5F, 2.0F, 40.0F, {200, 100, 50, 200}}, 100, 201, 10.0, 0x963264C8);
}

TEST_F(ExplosionDraw, CutsTheFractionOfItsAlphaOff) {
    EXPECT_EQ(AlphaOf(0.0F, 1.0F, 255), 255U);
    EXPECT_EQ(AlphaOf(0.5F, 1.0F, 255), 127U); // 127.5
    EXPECT_EQ(AlphaOf(0.75F, 1.0F, 200), 50U);
    EXPECT_EQ(AlphaOf(0.75F, 1.0F, 199), 49U); // 49.75
    EXPECT_EQ(AlphaOf(1.0F, 1.0F, 255), 0U);
}

TEST_F(ExplosionDraw, IsAPointAtItsBirth) {
    ExpectDisc({100.0F, 200.0F, 0.0F, 1.0F, 10.0F, {200, 100, 50, 200}}, 100, 200, 0.0, 0xC83264C8);
    ExpectDisc({100.0F, 200.0F, -1.0F, 1.0F, 10.0F, {200, 100, 50, 200}}, 100, 200, 0.0, 0xC83264C8);
}

TEST_F(ExplosionDraw, IsGoneAtItsEnd) {
    for (const float age : {1.0F, 2.0F}) {
        Clear();
        const Picture shown = Draw({100.0F, 200.0F, age, 1.0F, 10.0F, {200, 100, 50, 200}});
        EXPECT_EQ(shown.BoundsOfAllBut(Backdrop).w, 0) << "age " << age;
    }
}

TEST_F(ExplosionDraw, WithoutALifeIsNewlyBorn) {
    ExpectDisc({100.0F, 200.0F, 0.0F, 0.0F, 10.0F, {200, 100, 50, 200}}, 100, 200, 0.0, 0xC83264C8);
    ExpectDisc({100.0F, 200.0F, 3.0F, 0.0F, 10.0F, {200, 100, 50, 200}}, 100, 200, 0.0, 0xC83264C8);
}
