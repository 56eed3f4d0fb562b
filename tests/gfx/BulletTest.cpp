#include "gfx/Entities.hpp"

#include "tests/gfx/GfxTest.hpp"

class BulletDraw : public GfxTest {
protected:
    /// Expects one rectangle within another, in physical pixels, and nothing else.
    void ExpectShot(SDL_Rect Outer, std::uint32_t OuterColor, SDL_Rect Inner, std::uint32_t InnerColor) {
        const Picture shown = Shown();
        ExpectedPicture expected(shown.Width(), shown.Height());
        expected.Fill(Outer.x, Outer.y, Outer.w, Outer.h, OuterColor);
        expected.Fill(Inner.x, Inner.y, Inner.w, Inner.h, InnerColor);
        EXPECT_TRUE(expected.IsShownBy(shown));
    }

    void ExpectPlayersShot(SDL_Rect Outer, SDL_Rect Inner) {
        GameState state = EmptyRoad();
        state.Bullets.push_back({.X = 641.0F, .Y = 300.9F});
        DrawEntities(Renderer(), state);
        ExpectShot(Outer, 0xFF48D0F0, Inner, 0xFF84ECFF);
    }

    void ExpectEnemysShot(SDL_Rect Outer, SDL_Rect Inner) {
        GameState state = EmptyRoad();
        state.EnemyBullets.push_back({.X = 641.0F, .Y = 300.9F});
        DrawEntities(Renderer(), state);
        ExpectShot(Outer, 0xFF4884FA, Inner, 0xFF82CDFF);
    }
};

TEST_F(BulletDraw, OfThePlayerReachesUp) {
    ExpectPlayersShot({640, 296, 3, 6}, {641, 297, 1, 4});
}

TEST_F(BulletDraw, OfAnEnemyReachesDown) {
    ExpectEnemysShot({640, 300, 3, 6}, {641, 301, 1, 4});
}

TEST_F(BulletDraw, KeepsItsShapeAtHalfSize) {
    Open(1280, 640, 360);
    ExpectPlayersShot({320, 145, 3, 6}, {321, 146, 1, 4}); // from 642, 300 at a step of 2
}

TEST_F(BulletDraw, OfAnEnemyKeepsItsShapeAtHalfSize) {
    Open(1280, 640, 360);
    ExpectEnemysShot({320, 149, 3, 6}, {321, 150, 1, 4});
}

TEST_F(BulletDraw, GrowsWithTheSnapStep) {
    DrawBullet(Renderer(), 641.0F, 300.9F, 2, true, 0xFF010203, 0xFF040506);
    ExpectShot({640, 290, 6, 12}, 0xFF010203, {642, 292, 2, 8}, 0xFF040506);
    Clear();
    DrawBullet(Renderer(), 641.0F, 300.9F, 3, false, 0xFF010203, 0xFF040506);
    ExpectShot({639, 297, 9, 18}, 0xFF010203, {642, 300, 3, 12}, 0xFF040506);
}

TEST_F(BulletDraw, TakesAStepBelowOneAsOne) {
    DrawBullet(Renderer(), 641.0F, 300.9F, 0, true, 0xFF010203, 0xFF040506);
    ExpectShot({640, 296, 3, 6}, 0xFF010203, {641, 297, 1, 4}, 0xFF040506);
}
