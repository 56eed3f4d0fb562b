#pragma once

#include "state/GameState.hpp"
#include "state/Limits.hpp"
#include "state/LogicalScreen.hpp"

#include <array>
#include <cstdint>
#include <limits>
#include <string_view>
#include <variant>

// The save state is one object of a value stream (store/ValueStream.hpp):
//
//   FormatVersion, HighScore, HasRunState,
//   RunState: an object, empty without a run, of
//       RunFields, Player: an object of PlayerFields,
//       and the lists of VisitSaveLists: each an array of objects of the list's fields
//
// Writing keeps this order, reading takes any. Both go by the same tables, so that they agree. Floats are
// Double tokens, switches Bool, the run's score and the high score Int64, other whole numbers Int32; a colour
// is an object of ColorChannels, each an Int32.

inline constexpr std::string_view FormatVersionKey = "FormatVersion";
inline constexpr std::string_view HighScoreKey = "HighScore";
inline constexpr std::string_view HasRunStateKey = "HasRunState";
inline constexpr std::string_view RunStateKey = "RunState";
inline constexpr std::string_view PlayerKey = "Player";

template <typename Record>
using SaveMember = std::variant<float Record::*, std::int32_t Record::*, std::int64_t Record::*,
    bool Record::*, Color Record::*>;

inline constexpr double NoLimit = std::numeric_limits<double>::infinity();

/// A field under its key, and the range that a number is brought into after reading, both ends included.
template <typename Record> struct SaveField {
    std::string_view Key;
    SaveMember<Record> Member;
    double Lowest = -NoLimit;
    double Highest = NoLimit;
};

/// The run without its player and its lists. A missing key leaves the initial value of the record's field.
inline constexpr auto RunFields = std::to_array<SaveField<GameState>>({
    {"Score", &GameState::Score, 0},
    {"Stage", &GameState::Stage, 1},
    {"PreviousStage", &GameState::PreviousStage, 1},
    {"WaterFlowDirection", &GameState::WaterFlowDirection}, // -1 or 1: see LoadSaveState
    {"PreviousWaterFlowDirection", &GameState::PreviousWaterFlowDirection},
    {"GameTime", &GameState::GameTime, 0},
    {"RoadScroll", &GameState::RoadScroll, 0},
    {"CurrentScrollSpeed", &GameState::CurrentScrollSpeed, 10},
    {"StageTransition", &GameState::StageTransition, 0, 1},
    {"SpawnTimer", &GameState::SpawnTimer, 0},
    {"ObstacleSpawnTimer", &GameState::ObstacleSpawnTimer, 0},
    {"ItemSpawnTimer", &GameState::ItemSpawnTimer, 0},
    {"ReadyBanner", &GameState::ReadyBanner, 0},
    {"InvulnerabilityTimer", &GameState::InvulnerabilityTimer, 0},
    {"LaneMoveCooldown", &GameState::LaneMoveCooldown, 0},
    {"AmmoRegenPause", &GameState::AmmoRegenPause, 0},
    {"AmmoMeter", &GameState::AmmoMeter, 0, static_cast<double>(MaxAmmo)},
    {"Bombs", &GameState::Bombs, 0, MaxBombs},
    {"FirstAidKits", &GameState::FirstAidKits, 0, MaxFirstAidKits},
    {"PlayerLane", &GameState::PlayerLane, 0, LaneCount - 1},
    {"SpecialActive", &GameState::SpecialActive},
    {"SpecialTimer", &GameState::SpecialTimer, 0},
    {"InvincibilityPowerTimer", &GameState::InvincibilityPowerTimer, 0},
    {"DualWeaponPowerTimer", &GameState::DualWeaponPowerTimer, 0},
});

inline constexpr auto PlayerFields = std::to_array<SaveField<Player>>({
    {"X", &Player::X}, // replaced by the centre of the lane
    {"Y", &Player::Y, 0, LogicalHeight},
    {"Radius", &Player::Radius},
    {"Hp", &Player::Hp, 0}, // and at most MaxHp
    {"MaxHp", &Player::MaxHp, 1},
    {"Stocks", &Player::Stocks, 0, MaxStocks},
    {"FireCooldown", &Player::FireCooldown, 0},
});

inline constexpr auto BulletFields = std::to_array<SaveField<Bullet>>({
    {"X", &Bullet::X},
    {"Y", &Bullet::Y},
    {"Speed", &Bullet::Speed},
    {"Radius", &Bullet::Radius},
});

inline constexpr auto EnemyBulletFields = std::to_array<SaveField<EnemyBullet>>({
    {"X", &EnemyBullet::X},
    {"Y", &EnemyBullet::Y},
    {"Speed", &EnemyBullet::Speed},
    {"Radius", &EnemyBullet::Radius},
    {"Damage", &EnemyBullet::Damage},
});

inline constexpr auto EnemyFields = std::to_array<SaveField<Enemy>>({
    {"X", &Enemy::X},
    {"Y", &Enemy::Y},
    {"Speed", &Enemy::Speed},
    {"Radius", &Enemy::Radius},
    {"HitFlash", &Enemy::HitFlash},
    {"AiTimer", &Enemy::AiTimer},
    {"FireCooldown", &Enemy::FireCooldown},
    {"Lane", &Enemy::Lane, 0, LaneCount - 1},
    {"Hp", &Enemy::Hp},
    {"Score", &Enemy::Score},
    {"Color", &Enemy::Color},
});

inline constexpr auto ObstacleFields = std::to_array<SaveField<Obstacle>>({
    {"X", &Obstacle::X},
    {"Y", &Obstacle::Y},
    {"Speed", &Obstacle::Speed},
    {"Width", &Obstacle::Width},
    {"Height", &Obstacle::Height},
    {"HitFlash", &Obstacle::HitFlash},
    {"Lane", &Obstacle::Lane, 0, LaneCount - 1},
    {"Hp", &Obstacle::Hp},
    {"Score", &Obstacle::Score},
    {"Type", &Obstacle::Type, ObstacleTypeBarrier, ObstacleTypeRock},
});

inline constexpr auto ItemFields = std::to_array<SaveField<Item>>({
    {"X", &Item::X},
    {"Y", &Item::Y},
    {"Speed", &Item::Speed},
    {"Radius", &Item::Radius},
    {"Lane", &Item::Lane, 0, LaneCount - 1},
    {"Type", &Item::Type, ItemTypeFirstAid, ItemTypeDualWeapon},
});

inline constexpr auto ExplosionFields = std::to_array<SaveField<Explosion>>({
    {"X", &Explosion::X},
    {"Y", &Explosion::Y},
    {"Age", &Explosion::Age},
    {"Life", &Explosion::Life},
    {"MaxRadius", &Explosion::MaxRadius},
    {"Color", &Explosion::Color},
});

// What a list's entry has where its keys are missing; enemies, obstacles and items have it as their initial
// values.

inline constexpr Bullet DefaultBullet{.Radius = 2.0F};
inline constexpr EnemyBullet DefaultEnemyBullet{.Speed = 190.0F, .Radius = 2.0F, .Damage = 12};
inline constexpr Enemy DefaultEnemy{};
inline constexpr Obstacle DefaultObstacle{};
inline constexpr Item DefaultItem{};
inline constexpr Explosion DefaultExplosion{
    .Life = 0.5F, .MaxRadius = 20.0F, .Color = {0xFF, 0xDC, 0x64, 0xDC}};

/// Calls Visit(key, pointer to the state's list, fields of an entry, default entry) for each list, in the
/// file's order.
template <typename Visitor> void VisitSaveLists(Visitor Visit) {
    Visit("Bullets", &GameState::Bullets, BulletFields, DefaultBullet);
    Visit("EnemyBullets", &GameState::EnemyBullets, EnemyBulletFields, DefaultEnemyBullet);
    Visit("Enemies", &GameState::Enemies, EnemyFields, DefaultEnemy);
    Visit("Obstacles", &GameState::Obstacles, ObstacleFields, DefaultObstacle);
    Visit("Items", &GameState::Items, ItemFields, DefaultItem);
    Visit("Explosions", &GameState::Explosions, ExplosionFields, DefaultExplosion);
}

struct ColorChannel {
    std::string_view Key;
    std::uint8_t Color::*Value;
};

inline constexpr auto ColorChannels = std::to_array<ColorChannel>({
    {"R", &Color::R},
    {"G", &Color::G},
    {"B", &Color::B},
    {"A", &Color::A},
});
