#include "gfx/Entities.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/GfxTest.hpp"

#include <limits>

namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

struct SpriteOfValue {
    std::int32_t Value;
    std::int32_t Sprite;
};

} // namespace

/// Items, obstacles and enemies.
class RoadUser : public GfxTest {
protected:
    void ExpectFrame(const ExpectedPicture &Expected, const GameState &State) {
        Clear();
        DrawEntities(Renderer(), State);
        EXPECT_TRUE(Expected.IsShownBy(Shown()));
    }
};

TEST_F(RoadUser, ItemShowsItsType) {
    GameState state = EmptyRoad();
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    float x = 100.0F;
    for (const SpriteOfValue &row : {SpriteOfValue{0, SpriteItemFirstAid}, {1, SpriteItemBomb},
             {2, SpriteItemInvincibility}, {3, SpriteItemDualWeapon}, {4, SpriteItemFirstAid},
             {-1, SpriteItemFirstAid}, {Lowest, SpriteItemFirstAid}, {Highest, SpriteItemFirstAid}}) {
        state.Items.push_back({.X = x, .Y = 200.0F, .Type = row.Value});
        expected.Sprite(row.Sprite, x, 200.0F, 26, 26);
        x += 40.0F;
    }
    ExpectFrame(expected, state);
}

TEST_F(RoadUser, ObstacleShowsItsTypeAndSize) {
    GameState state = EmptyRoad();
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    float x = 100.0F;
    for (const SpriteOfValue &row :
        {SpriteOfValue{0, SpriteObstacleBarrier}, {1, SpriteObstacleLog}, {2, SpriteObstacleRock},
            {3, SpriteObstacleBarrier}, {-1, SpriteObstacleBarrier}, {Highest, SpriteObstacleBarrier}}) {
        state.Obstacles.push_back({.X = x, .Y = 200.0F, .Type = row.Value});
        expected.Sprite(row.Sprite, x, 200.0F, 52, 18); // 40 x 1.3 and 14 x 1.3 = 18.2
        x += 60.0F;
    }
    state.Obstacles.push_back({.X = 100.0F, .Y = 300.0F, .Width = 21.0F, .Height = 30.0F, .Type = 2});
    expected.Sprite(SpriteObstacleRock, 100.0F, 300.0F, 27, 39); // 27.3 and 39
    ExpectFrame(expected, state);
}

TEST_F(RoadUser, EnemyShowsWhetherItTakesMoreThanOneHit) {
    GameState state = EmptyRoad();
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    float x = 100.0F;
    for (const SpriteOfValue &row :
        {SpriteOfValue{1, SpriteEnemy}, {2, SpriteEnemyTough}, {3, SpriteEnemyTough}, {0, SpriteEnemy},
            {-5, SpriteEnemy}, {Lowest, SpriteEnemy}, {Highest, SpriteEnemyTough}}) {
        state.Enemies.push_back({.X = x, .Y = 200.0F, .Hp = row.Value, .Color = {1, 2, 3, 4}});
        expected.Sprite(row.Sprite, x, 200.0F, 26, 26);
        x += 40.0F;
    }
    ExpectFrame(expected, state);
}

TEST_F(RoadUser, StandsOnWholePixelsRoundedHalfAwayFromZero) {
    GameState state = EmptyRoad();
    state.Items.push_back({.X = 100.5F, .Y = 200.49F});
    state.Obstacles.push_back({.X = 200.5F, .Y = 200.49F});
    state.Enemies.push_back({.X = 300.49F, .Y = 200.5F, .Color = {}});
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Sprite(SpriteItemFirstAid, 101.0F, 200.0F, 26, 26);
    expected.Sprite(SpriteObstacleBarrier, 201.0F, 200.0F, 52, 18);
    expected.Sprite(SpriteEnemy, 300.0F, 201.0F, 26, 26);
    ExpectFrame(expected, state);
}

TEST_F(RoadUser, HitFlashReddensObstaclesAndEnemies) {
    struct Flash {
        float HitFlash;
        int Alpha;
    };
    GameState state = EmptyRoad();
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    float x = 100.0F;
    for (const Flash &flash : {Flash{0.12F, 240}, {0.06F, 180}, {0.03F, 150}, {0.5F, 240}, {0.001F, 121}}) {
        state.Obstacles.push_back({.X = x, .Y = 200.0F, .HitFlash = flash.HitFlash, .Type = 1});
        expected.FlashedSprite(SpriteObstacleLog, x, 200.0F, 52, 18, flash.Alpha);
        state.Enemies.push_back({.X = x, .Y = 300.0F, .HitFlash = flash.HitFlash, .Hp = 2, .Color = {}});
        expected.FlashedSprite(SpriteEnemyTough, x, 300.0F, 26, 26, flash.Alpha);
        x += 80.0F;
    }
    ExpectFrame(expected, state);
}

TEST_F(RoadUser, ShowsNoFlashAtZeroOrBelow) {
    GameState state = EmptyRoad();
    state.Enemies.push_back({.X = 100.0F, .Y = 200.0F, .HitFlash = 0.0F, .Color = {}});
    state.Enemies.push_back({.X = 200.0F, .Y = 200.0F, .HitFlash = -1.0F, .Color = {}});
    ExpectedPicture expected(ScreenWidth, ScreenHeight);
    expected.Sprite(SpriteEnemy, 100.0F, 200.0F, 26, 26);
    expected.Sprite(SpriteEnemy, 200.0F, 200.0F, 26, 26);
    ExpectFrame(expected, state);
}
