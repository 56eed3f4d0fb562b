#include "gfx/SpriteId.hpp"
#include "gfx/World.hpp"
#include "tests/gfx/GfxTest.hpp"

#include <chrono>
#include <cmath>
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

template <auto Field> auto &InRun(GameState &State) {
    return State.*Field;
}

template <auto Field> auto &InPlayer(GameState &State) {
    return State.Player.*Field;
}

/// In the first entry of a list.
template <auto List, auto Field> auto &InFirst(GameState &State) {
    return (State.*List).front().*Field;
}

template <typename Number> struct RunField {
    const char *Name;
    Number &(*In)(GameState &);
};

constexpr RunField<float> RunFloats[] = {
    {"GameTime", InRun<&GameState::GameTime>},
    {"RoadScroll", InRun<&GameState::RoadScroll>},
    {"StageTransition", InRun<&GameState::StageTransition>},
    {"CurrentScrollSpeed", InRun<&GameState::CurrentScrollSpeed>},
    {"SpawnTimer", InRun<&GameState::SpawnTimer>},
    {"ObstacleSpawnTimer", InRun<&GameState::ObstacleSpawnTimer>},
    {"ItemSpawnTimer", InRun<&GameState::ItemSpawnTimer>},
    {"ReadyBanner", InRun<&GameState::ReadyBanner>},
    {"InvulnerabilityTimer", InRun<&GameState::InvulnerabilityTimer>},
    {"LaneMoveCooldown", InRun<&GameState::LaneMoveCooldown>},
    {"AmmoRegenPause", InRun<&GameState::AmmoRegenPause>},
    {"AmmoMeter", InRun<&GameState::AmmoMeter>},
    {"SpecialTimer", InRun<&GameState::SpecialTimer>},
    {"InvincibilityPowerTimer", InRun<&GameState::InvincibilityPowerTimer>},
    {"DualWeaponPowerTimer", InRun<&GameState::DualWeaponPowerTimer>},
    {"DeathTimer", InRun<&GameState::DeathTimer>},
    {"Player.X", InPlayer<&Player::X>},
    {"Player.Y", InPlayer<&Player::Y>},
    {"Player.Radius", InPlayer<&Player::Radius>},
    {"Player.FireCooldown", InPlayer<&Player::FireCooldown>},
};

constexpr RunField<float> ListFloats[] = {
    {"Items[0].X", InFirst<&GameState::Items, &Item::X>},
    {"Items[0].Y", InFirst<&GameState::Items, &Item::Y>},
    {"Items[0].Speed", InFirst<&GameState::Items, &Item::Speed>},
    {"Items[0].Radius", InFirst<&GameState::Items, &Item::Radius>},
    {"Obstacles[0].X", InFirst<&GameState::Obstacles, &Obstacle::X>},
    {"Obstacles[0].Y", InFirst<&GameState::Obstacles, &Obstacle::Y>},
    {"Obstacles[0].Speed", InFirst<&GameState::Obstacles, &Obstacle::Speed>},
    {"Obstacles[0].Width", InFirst<&GameState::Obstacles, &Obstacle::Width>},
    {"Obstacles[0].Height", InFirst<&GameState::Obstacles, &Obstacle::Height>},
    {"Obstacles[0].HitFlash", InFirst<&GameState::Obstacles, &Obstacle::HitFlash>},
    {"Bullets[0].X", InFirst<&GameState::Bullets, &Bullet::X>},
    {"Bullets[0].Y", InFirst<&GameState::Bullets, &Bullet::Y>},
    {"Bullets[0].Speed", InFirst<&GameState::Bullets, &Bullet::Speed>},
    {"Bullets[0].Radius", InFirst<&GameState::Bullets, &Bullet::Radius>},
    {"EnemyBullets[0].X", InFirst<&GameState::EnemyBullets, &EnemyBullet::X>},
    {"EnemyBullets[0].Y", InFirst<&GameState::EnemyBullets, &EnemyBullet::Y>},
    {"EnemyBullets[0].Speed", InFirst<&GameState::EnemyBullets, &EnemyBullet::Speed>},
    {"EnemyBullets[0].Radius", InFirst<&GameState::EnemyBullets, &EnemyBullet::Radius>},
    {"Enemies[0].X", InFirst<&GameState::Enemies, &Enemy::X>},
    {"Enemies[0].Y", InFirst<&GameState::Enemies, &Enemy::Y>},
    {"Enemies[0].Speed", InFirst<&GameState::Enemies, &Enemy::Speed>},
    {"Enemies[0].Radius", InFirst<&GameState::Enemies, &Enemy::Radius>},
    {"Enemies[0].HitFlash", InFirst<&GameState::Enemies, &Enemy::HitFlash>},
    {"Enemies[0].AiTimer", InFirst<&GameState::Enemies, &Enemy::AiTimer>},
    {"Enemies[0].FireCooldown", InFirst<&GameState::Enemies, &Enemy::FireCooldown>},
    {"Explosions[0].X", InFirst<&GameState::Explosions, &Explosion::X>},
    {"Explosions[0].Y", InFirst<&GameState::Explosions, &Explosion::Y>},
    {"Explosions[0].Age", InFirst<&GameState::Explosions, &Explosion::Age>},
    {"Explosions[0].Life", InFirst<&GameState::Explosions, &Explosion::Life>},
    {"Explosions[0].MaxRadius", InFirst<&GameState::Explosions, &Explosion::MaxRadius>},
};

constexpr RunField<std::int32_t> Integers[] = {
    {"Stage", InRun<&GameState::Stage>},
    {"PreviousStage", InRun<&GameState::PreviousStage>},
    {"WaterFlowDirection", InRun<&GameState::WaterFlowDirection>},
    {"PreviousWaterFlowDirection", InRun<&GameState::PreviousWaterFlowDirection>},
    {"PlayerLane", InRun<&GameState::PlayerLane>},
    {"Bombs", InRun<&GameState::Bombs>},
    {"FirstAidKits", InRun<&GameState::FirstAidKits>},
    {"Player.Hp", InPlayer<&Player::Hp>},
    {"Player.MaxHp", InPlayer<&Player::MaxHp>},
    {"Player.Stocks", InPlayer<&Player::Stocks>},
    {"Items[0].Type", InFirst<&GameState::Items, &Item::Type>},
    {"Items[0].Lane", InFirst<&GameState::Items, &Item::Lane>},
    {"Obstacles[0].Type", InFirst<&GameState::Obstacles, &Obstacle::Type>},
    {"Obstacles[0].Hp", InFirst<&GameState::Obstacles, &Obstacle::Hp>},
    {"Enemies[0].Hp", InFirst<&GameState::Enemies, &Enemy::Hp>},
    {"Enemies[0].Lane", InFirst<&GameState::Enemies, &Enemy::Lane>},
    {"EnemyBullets[0].Damage", InFirst<&GameState::EnemyBullets, &EnemyBullet::Damage>},
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
    for (const RunField<float> &field : RunFloats) {
        for (const float bad : BadFloats) {
            GameState state = SoundRun();
            field.In(state) = bad;
            SCOPED_TRACE(::testing::Message() << field.Name << " is " << bad);
            DrawPromptly(state);
            ExpectSoundThings(Shown());
        }
    }
}

TEST_F(DamagedRun, IsDrawnWithAnyFloatInTheLists) {
    for (const RunField<float> &field : ListFloats) {
        for (const float bad : BadFloats) {
            GameState state = SoundRun();
            field.In(state) = bad;
            SCOPED_TRACE(::testing::Message() << field.Name << " is " << bad);
            DrawPromptly(state);
        }
    }
    DrawPromptly(SoundRun());
    ExpectSoundThings(Shown());
}

TEST_F(DamagedRun, IsDrawnWithAnyWholeNumber) {
    for (const RunField<std::int32_t> &field : Integers) {
        for (const std::int32_t bad : BadIntegers) {
            GameState state = SoundRun();
            field.In(state) = bad;
            SCOPED_TRACE(::testing::Message() << field.Name << " is " << bad);
            DrawPromptly(state);
            ExpectSoundThings(Shown());
        }
    }
}
