#include "gfx/Entities.hpp"
#include "gfx/SpriteId.hpp"
#include "gfx/World.hpp"
#include "tests/gfx/ExpectedScenery.hpp"
#include "tests/gfx/GfxTest.hpp"

class DrawOrder : public GfxTest {
protected:
    /// One thing of every list and the player, each half over the one that is drawn before it.
    static GameState Heap() {
        GameState state = EmptyRoad(1);
        state.PlayerDying = false;
        state.Items.push_back({.X = 600.0F, .Y = 300.0F, .Type = 2});
        state.Obstacles.push_back({.X = 610.0F, .Y = 310.0F, .Type = 0});
        state.Bullets.push_back({.X = 612.0F, .Y = 312.0F});
        state.EnemyBullets.push_back({.X = 613.0F, .Y = 307.0F});
        state.Enemies.push_back({.X = 618.0F, .Y = 318.0F, .Hp = 2, .Color = {}});
        state.Explosions.push_back({620.0F, 320.0F, 0.5F, 1.0F, 40.0F, {255, 120, 40, 200}});
        state.Player.X = 628.0F;
        state.Player.Y = 330.0F;
        return state;
    }

    static void ExpectHeap(ExpectedPicture &Expected) {
        Expected.Sprite(SpriteItemInvincibility, 600.0F, 300.0F, 26, 26);
        Expected.Sprite(SpriteObstacleBarrier, 610.0F, 310.0F, 52, 18);
        Expected.Fill(611, 307, 3, 6, 0xFF48D0F0);
        Expected.Fill(612, 308, 1, 4, 0xFF84ECFF);
        Expected.Fill(612, 306, 3, 6, 0xFF4884FA);
        Expected.Fill(613, 307, 1, 4, 0xFF82CDFF);
        Expected.Sprite(SpriteEnemyTough, 618.0F, 318.0F, 26, 26);
        Expected.Disc(620, 320, 20.0, 0x642878FF);
        Expected.Sprite(SpritePlayer, 628.0F, 330.0F, 31, 31);
    }
};

TEST_F(DrawOrder, OfTheListsIsItemsObstaclesShotsEnemiesBurstsPlayer) {
    DrawEntities(Renderer(), Heap());
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectHeap(expected);
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(DrawOrder, PutsEverythingOverTheRoadAndItsMarkings) {
    RenderGameplay(Renderer(), Heap());
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    ExpectGround(expected, SpriteGroundEarth, 1280, 0, 720, 0);
    ExpectRoad(expected, SpriteRoadSurface, 1280, 0, 720, 0);
    ExpectMarkings(expected, 1280, -62);
    ExpectHeap(expected);
    EXPECT_TRUE(expected.IsShownBy(Shown(), {0, 240, 1280, 480})); // the figures beside the road are above
    EXPECT_TRUE(expected.IsShownBy(Shown(), {480, 0, 320, 240}));
}

TEST_F(DrawOrder, DrawsAnEntryOverThoseBeforeIt) {
    GameState state = EmptyRoad();
    for (int i = 0; i < 3; ++i) {
        const auto shift = static_cast<float>(i) * 8.0F;
        state.Items.push_back({.X = 100.0F + shift, .Y = 100.0F, .Type = i});
        state.Obstacles.push_back({.X = 200.0F + shift, .Y = 100.0F, .Type = i});
        state.Enemies.push_back({.X = 300.0F + shift, .Y = 100.0F, .Hp = i, .Color = {}});
        state.Bullets.push_back({.X = 400.0F + static_cast<float>(i), .Y = 100.0F});
        state.EnemyBullets.push_back({.X = 500.0F + static_cast<float>(i), .Y = 100.0F});
        state.Explosions.push_back({600.0F + shift, 100.0F, 0.5F, 1.0F, 20.0F, {255, 255, 255, 255}});
    }
    state.Explosions[1].Color = {255, 0, 0, 200};
    DrawEntities(Renderer(), state);

    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    constexpr std::int32_t items[] = {SpriteItemFirstAid, SpriteItemBomb, SpriteItemInvincibility};
    constexpr std::int32_t obstacles[] = {SpriteObstacleBarrier, SpriteObstacleLog, SpriteObstacleRock};
    constexpr std::int32_t enemies[] = {SpriteEnemy, SpriteEnemy, SpriteEnemyTough};
    constexpr std::uint32_t bursts[] = {0x7FFFFFFF, 0x640000FF, 0x7FFFFFFF};
    for (int i = 0; i < 3; ++i) {
        const auto shift = static_cast<float>(i) * 8.0F;
        expected.Sprite(items[i], 100.0F + shift, 100.0F, 26, 26);
        expected.Sprite(obstacles[i], 200.0F + shift, 100.0F, 52, 18);
        expected.Sprite(enemies[i], 300.0F + shift, 100.0F, 26, 26);
        expected.Fill(399 + i, 95, 3, 6, 0xFF48D0F0);
        expected.Fill(400 + i, 96, 1, 4, 0xFF84ECFF);
        expected.Fill(499 + i, 99, 3, 6, 0xFF4884FA);
        expected.Fill(500 + i, 100, 1, 4, 0xFF82CDFF);
        expected.Disc(600 + i * 8, 100, 10.0, bursts[i]);
    }
    EXPECT_TRUE(expected.IsShownBy(Shown()));
}

TEST_F(DrawOrder, LeavesNoModulationOrClippingBehind) {
    GameState state = Heap();
    state.Enemies[0].HitFlash = 0.12F;
    RenderGameplay(Renderer(), state);
    const Picture first = Shown();
    RenderGameplay(Renderer(), state);
    EXPECT_TRUE(first == Shown());
    EXPECT_FALSE(SDL_RenderClipEnabled(Renderer()));
}
