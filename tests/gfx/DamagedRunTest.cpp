#include "gfx/SpriteId.hpp"
#include "gfx/World.hpp"
#include "tests/gfx/GfxTest.hpp"

#include <chrono>
#include <cmath>
#include <functional>
#include <limits>

// A damaged file may put any number into a run. Whatever stands there, drawing ends, soon, and what is sound
// shows.

namespace {

constexpr float Infinity = std::numeric_limits<float>::infinity();
const float BadFloats[] = {std::nanf(""), Infinity, -Infinity, std::numeric_limits<float>::max(),
    std::numeric_limits<float>::lowest(), 2147483648.0F, -2147483648.0F, 1e9F};
constexpr std::int32_t BadIntegers[] = {
    std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max(), 0, -1};

/// A run over water with a seam, and two of everything: the first of each is for damaging, the second is
/// sound.
GameState SoundRun() {
    GameState state = EmptyRoad(2);
    state.PlayerDying = false;
    state.PreviousStage = 8;
    state.StageTransition = 0.4F;
    state.Items = {{.X = 600.0F, .Y = 100.0F}, {.X = 700.0F, .Y = 500.0F}};
    state.Obstacles = {{.X = 600.0F, .Y = 200.0F, .HitFlash = 0.1F}, {.X = 700.0F, .Y = 540.0F}};
    state.Bullets = {{.X = 600.0F, .Y = 300.0F}, {.X = 760.0F, .Y = 500.0F}};
    state.EnemyBullets = {{.X = 600.0F, .Y = 350.0F}, {.X = 760.0F, .Y = 540.0F}};
    state.Enemies = {
        {.X = 600.0F, .Y = 250.0F, .HitFlash = 0.1F, .Color = {}}, {.X = 700.0F, .Y = 580.0F, .Color = {}}};
    state.Explosions = {{600.0F, 400.0F, 0.5F, 1.0F, 10.0F, {255, 0, 0, 200}},
        {560.0F, 580.0F, 0.0F, 1.0F, 10.0F, {0, 255, 0, 255}}};
    return state;
}

using FloatField = std::function<float &(GameState &)>;
using IntegerField = std::function<std::int32_t &(GameState &)>;

const FloatField RunFloats[] = {
    [](GameState &S) -> float & {
        return S.GameTime;
    },
    [](GameState &S) -> float & {
        return S.RoadScroll;
    },
    [](GameState &S) -> float & {
        return S.StageTransition;
    },
    [](GameState &S) -> float & {
        return S.CurrentScrollSpeed;
    },
    [](GameState &S) -> float & {
        return S.SpawnTimer;
    },
    [](GameState &S) -> float & {
        return S.ObstacleSpawnTimer;
    },
    [](GameState &S) -> float & {
        return S.ItemSpawnTimer;
    },
    [](GameState &S) -> float & {
        return S.ReadyBanner;
    },
    [](GameState &S) -> float & {
        return S.InvulnerabilityTimer;
    },
    [](GameState &S) -> float & {
        return S.LaneMoveCooldown;
    },
    [](GameState &S) -> float & {
        return S.AmmoRegenPause;
    },
    [](GameState &S) -> float & {
        return S.AmmoMeter;
    },
    [](GameState &S) -> float & {
        return S.SpecialTimer;
    },
    [](GameState &S) -> float & {
        return S.InvincibilityPowerTimer;
    },
    [](GameState &S) -> float & {
        return S.DualWeaponPowerTimer;
    },
    [](GameState &S) -> float & {
        return S.DeathTimer;
    },
    [](GameState &S) -> float & {
        return S.Player.X;
    },
    [](GameState &S) -> float & {
        return S.Player.Y;
    },
    [](GameState &S) -> float & {
        return S.Player.Radius;
    },
    [](GameState &S) -> float & {
        return S.Player.FireCooldown;
    },
};

const FloatField ListFloats[] = {
    [](GameState &S) -> float & {
        return S.Items[0].X;
    },
    [](GameState &S) -> float & {
        return S.Items[0].Y;
    },
    [](GameState &S) -> float & {
        return S.Items[0].Speed;
    },
    [](GameState &S) -> float & {
        return S.Items[0].Radius;
    },
    [](GameState &S) -> float & {
        return S.Obstacles[0].X;
    },
    [](GameState &S) -> float & {
        return S.Obstacles[0].Y;
    },
    [](GameState &S) -> float & {
        return S.Obstacles[0].Speed;
    },
    [](GameState &S) -> float & {
        return S.Obstacles[0].Width;
    },
    [](GameState &S) -> float & {
        return S.Obstacles[0].Height;
    },
    [](GameState &S) -> float & {
        return S.Obstacles[0].HitFlash;
    },
    [](GameState &S) -> float & {
        return S.Bullets[0].X;
    },
    [](GameState &S) -> float & {
        return S.Bullets[0].Y;
    },
    [](GameState &S) -> float & {
        return S.Bullets[0].Speed;
    },
    [](GameState &S) -> float & {
        return S.Bullets[0].Radius;
    },
    [](GameState &S) -> float & {
        return S.EnemyBullets[0].X;
    },
    [](GameState &S) -> float & {
        return S.EnemyBullets[0].Y;
    },
    [](GameState &S) -> float & {
        return S.EnemyBullets[0].Speed;
    },
    [](GameState &S) -> float & {
        return S.EnemyBullets[0].Radius;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].X;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].Y;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].Speed;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].Radius;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].HitFlash;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].AiTimer;
    },
    [](GameState &S) -> float & {
        return S.Enemies[0].FireCooldown;
    },
    [](GameState &S) -> float & {
        return S.Explosions[0].X;
    },
    [](GameState &S) -> float & {
        return S.Explosions[0].Y;
    },
    [](GameState &S) -> float & {
        return S.Explosions[0].Age;
    },
    [](GameState &S) -> float & {
        return S.Explosions[0].Life;
    },
    [](GameState &S) -> float & {
        return S.Explosions[0].MaxRadius;
    },
};

const IntegerField Integers[] = {
    [](GameState &S) -> std::int32_t & {
        return S.Stage;
    },
    [](GameState &S) -> std::int32_t & {
        return S.PreviousStage;
    },
    [](GameState &S) -> std::int32_t & {
        return S.WaterFlowDirection;
    },
    [](GameState &S) -> std::int32_t & {
        return S.PreviousWaterFlowDirection;
    },
    [](GameState &S) -> std::int32_t & {
        return S.PlayerLane;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Bombs;
    },
    [](GameState &S) -> std::int32_t & {
        return S.FirstAidKits;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Player.Hp;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Player.MaxHp;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Player.Stocks;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Items[0].Type;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Items[0].Lane;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Obstacles[0].Type;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Obstacles[0].Hp;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Enemies[0].Hp;
    },
    [](GameState &S) -> std::int32_t & {
        return S.Enemies[0].Lane;
    },
    [](GameState &S) -> std::int32_t & {
        return S.EnemyBullets[0].Damage;
    },
};

} // namespace

class DamagedRun : public GfxTest {
protected:
    DamagedRun() {
        SoundThings.Sprite(SpriteItemFirstAid, 700.0F, 500.0F, 26, 26);
        SoundThings.Sprite(SpriteEnemy, 700.0F, 580.0F, 26, 26);
    }

    /// Draws a run, which must not take long.
    void DrawPromptly(const GameState &State) {
        Clear();
        const auto start = std::chrono::steady_clock::now();
        RenderGameplay(Renderer(), State);
        SDL_FlushRenderer(Renderer());
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    }

    /// The sound things of every list show.
    void ExpectSoundThings(const Picture &Shown) const {
        EXPECT_TRUE(SoundThings.IsShownBy(Shown, {692, 492, 16, 16})); // inside the item's box
        EXPECT_TRUE(SoundThings.IsShownBy(Shown, {694, 574, 12, 12})); // inside the enemy's car
        EXPECT_EQ(Shown.At(760, 496), 0xFF84ECFFU);                    // the player's shot
        EXPECT_EQ(Shown.At(760, 541), 0xFF82CDFFU);                    // the enemy's shot
        EXPECT_EQ(Shown.At(560, 580), 0xFF00FF00U);                    // the burst
    }

private:
    ExpectedPicture SoundThings{ScreenWidth, ScreenHeight};
};

TEST_F(DamagedRun, IsSoundWithoutDamage) {
    DrawPromptly(SoundRun());
    ExpectSoundThings(Shown());
}

TEST_F(DamagedRun, IsDrawnWithAnyFloatInTheRun) {
    for (const FloatField &field : RunFloats) {
        for (const float bad : BadFloats) {
            GameState state = SoundRun();
            field(state) = bad;
            SCOPED_TRACE(::testing::Message() << "field " << &field - RunFloats << " is " << bad);
            DrawPromptly(state);
            ExpectSoundThings(Shown());
        }
    }
}

TEST_F(DamagedRun, IsDrawnWithAnyFloatInTheLists) {
    for (const FloatField &field : ListFloats) {
        for (const float bad : BadFloats) {
            GameState state = SoundRun();
            field(state) = bad;
            SCOPED_TRACE(::testing::Message() << "field " << &field - ListFloats << " is " << bad);
            DrawPromptly(state);
        }
    }
    DrawPromptly(SoundRun());
    ExpectSoundThings(Shown());
}

TEST_F(DamagedRun, IsDrawnWithAnyWholeNumber) {
    for (const IntegerField &field : Integers) {
        for (const std::int32_t bad : BadIntegers) {
            GameState state = SoundRun();
            field(state) = bad;
            SCOPED_TRACE(::testing::Message() << "field " << &field - Integers << " is " << bad);
            DrawPromptly(state);
            ExpectSoundThings(Shown());
        }
    }
}
