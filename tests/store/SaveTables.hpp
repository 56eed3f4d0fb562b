#pragma once

#include "state/GameState.hpp"
#include "tests/store/StreamBytes.hpp"

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What the save state holds, written down once more and apart from the game's own tables: the keys in the
// order of the file, what stands for a missing one, and the range of each.

enum class SaveKind : std::uint8_t {
    Whole, ///< Int32
    Long,  ///< Int64
    Real,  ///< Double
    Flag,  ///< Bool
};

inline constexpr double Anything = std::numeric_limits<double>::infinity();

/// One key of a record. Sample is a value that is no default and within the range.
struct SaveRow {
    const char *Key;
    SaveKind Kind;
    double Default;
    double Sample;
    double Least;
    double Most;
    double (*Get)(const GameState &State, std::size_t Index); ///< Index is the place in a list, else unused
    bool IsDerived = false; ///< replaced by where the lane is; Sample is that of the sample's lane
};

template <auto Member> double OfRun(const GameState &State, std::size_t /*Index*/) {
    return static_cast<double>(State.*Member);
}

template <auto Member> double OfPlayer(const GameState &State, std::size_t /*Index*/) {
    return static_cast<double>(State.Player.*Member);
}

template <auto List, auto Member> double OfEntry(const GameState &State, std::size_t Index) {
    return static_cast<double>((State.*List).at(Index).*Member);
}

/// The token that the game writes for a value of this kind.
std::string TokenOf(SaveKind Kind, double Value);

/// A value as a record holds it.
double AsHeld(SaveKind Kind, double Value);

inline constexpr auto RunRows = std::to_array<SaveRow>({
    {"Score", SaveKind::Long, 0, 123456789012.0, 0, Anything, OfRun<&GameState::Score>},
    {"Stage", SaveKind::Whole, 1, 7, 1, Anything, OfRun<&GameState::Stage>},
    {"PreviousStage", SaveKind::Whole, 1, 6, 1, Anything, OfRun<&GameState::PreviousStage>},
    {"WaterFlowDirection", SaveKind::Whole, 1, -1, -1, 1, OfRun<&GameState::WaterFlowDirection>},
    {"PreviousWaterFlowDirection", SaveKind::Whole, 1, -1, -1, 1,
        OfRun<&GameState::PreviousWaterFlowDirection>},
    {"GameTime", SaveKind::Real, 0, 157.3, 0, Anything, OfRun<&GameState::GameTime>},
    {"RoadScroll", SaveKind::Real, 0, 20123.7, 0, Anything, OfRun<&GameState::RoadScroll>},
    {"CurrentScrollSpeed", SaveKind::Real, 120, 151.1, 10, Anything, OfRun<&GameState::CurrentScrollSpeed>},
    {"StageTransition", SaveKind::Real, 1, 0.3, 0, 1, OfRun<&GameState::StageTransition>},
    {"SpawnTimer", SaveKind::Real, 0, 0.7, 0, Anything, OfRun<&GameState::SpawnTimer>},
    {"ObstacleSpawnTimer", SaveKind::Real, 2.8, 1.9, 0, Anything, OfRun<&GameState::ObstacleSpawnTimer>},
    {"ItemSpawnTimer", SaveKind::Real, 6, 4.4, 0, Anything, OfRun<&GameState::ItemSpawnTimer>},
    {"ReadyBanner", SaveKind::Real, 0, 1.2, 0, Anything, OfRun<&GameState::ReadyBanner>},
    {"InvulnerabilityTimer", SaveKind::Real, 0, 0.9, 0, Anything, OfRun<&GameState::InvulnerabilityTimer>},
    {"LaneMoveCooldown", SaveKind::Real, 0, 0.11, 0, Anything, OfRun<&GameState::LaneMoveCooldown>},
    {"AmmoRegenPause", SaveKind::Real, 0, 0.21, 0, Anything, OfRun<&GameState::AmmoRegenPause>},
    {"AmmoMeter", SaveKind::Real, 100, 61.6, 0, 100, OfRun<&GameState::AmmoMeter>},
    {"Bombs", SaveKind::Whole, 3, 1, 0, 3, OfRun<&GameState::Bombs>},
    {"FirstAidKits", SaveKind::Whole, 0, 2, 0, 3, OfRun<&GameState::FirstAidKits>},
    {"PlayerLane", SaveKind::Whole, 4, 6, 0, 8, OfRun<&GameState::PlayerLane>},
    {"SpecialActive", SaveKind::Flag, 0, 1, 0, 1, OfRun<&GameState::SpecialActive>},
    {"SpecialTimer", SaveKind::Real, 0, 0.31, 0, Anything, OfRun<&GameState::SpecialTimer>},
    {"InvincibilityPowerTimer", SaveKind::Real, 0, 3.3, 0, Anything,
        OfRun<&GameState::InvincibilityPowerTimer>},
    {"DualWeaponPowerTimer", SaveKind::Real, 0, 5.7, 0, Anything, OfRun<&GameState::DualWeaponPowerTimer>},
});

// At a logical width of 1280 the lanes' centres are 510, 543, 575, 608, 640, 673, 705, 738 and 770.

inline constexpr auto PlayerRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 640, 705, -Anything, Anything, OfPlayer<&Player::X>, true},
    {"Y", SaveKind::Real, 670, 655.5, 0, 720, OfPlayer<&Player::Y>},
    {"Radius", SaveKind::Real, 12, 11.25, -Anything, Anything, OfPlayer<&Player::Radius>},
    {"Hp", SaveKind::Whole, 100, 64, 0, 140, OfPlayer<&Player::Hp>}, // at most the sample of MaxHp
    {"MaxHp", SaveKind::Whole, 100, 140, 1, Anything, OfPlayer<&Player::MaxHp>},
    {"Stocks", SaveKind::Whole, 2, 4, 0, 5, OfPlayer<&Player::Stocks>},
    {"FireCooldown", SaveKind::Real, 0, 0.07, 0, Anything, OfPlayer<&Player::FireCooldown>},
});

inline constexpr auto BulletRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 0, 611.1, -Anything, Anything, OfEntry<&GameState::Bullets, &Bullet::X>},
    {"Y", SaveKind::Real, 0, 300.3, -Anything, Anything, OfEntry<&GameState::Bullets, &Bullet::Y>},
    {"Speed", SaveKind::Real, 0, 555.5, -Anything, Anything, OfEntry<&GameState::Bullets, &Bullet::Speed>},
    {"Radius", SaveKind::Real, 2, 3.25, -Anything, Anything, OfEntry<&GameState::Bullets, &Bullet::Radius>},
});

inline constexpr auto EnemyBulletRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 0, 612.2, -Anything, Anything, OfEntry<&GameState::EnemyBullets, &EnemyBullet::X>},
    {"Y", SaveKind::Real, 0, 301.4, -Anything, Anything, OfEntry<&GameState::EnemyBullets, &EnemyBullet::Y>},
    {"Speed", SaveKind::Real, 190, 222.2, -Anything, Anything,
        OfEntry<&GameState::EnemyBullets, &EnemyBullet::Speed>},
    {"Radius", SaveKind::Real, 2, 2.75, -Anything, Anything,
        OfEntry<&GameState::EnemyBullets, &EnemyBullet::Radius>},
    {"Damage", SaveKind::Whole, 12, 15, -Anything, Anything,
        OfEntry<&GameState::EnemyBullets, &EnemyBullet::Damage>},
});

inline constexpr auto EnemyRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 640, 543, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::X>, true},
    {"Y", SaveKind::Real, 0, 99.9, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::Y>},
    {"Speed", SaveKind::Real, 0, 88.8, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::Speed>},
    {"Radius", SaveKind::Real, 8, 9.5, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::Radius>},
    {"HitFlash", SaveKind::Real, 0, 0.05, -Anything, Anything,
        OfEntry<&GameState::Enemies, &Enemy::HitFlash>},
    {"AiTimer", SaveKind::Real, 0, 0.66, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::AiTimer>},
    {"FireCooldown", SaveKind::Real, 0, 1.77, -Anything, Anything,
        OfEntry<&GameState::Enemies, &Enemy::FireCooldown>},
    {"Lane", SaveKind::Whole, 4, 1, 0, 8, OfEntry<&GameState::Enemies, &Enemy::Lane>},
    {"Hp", SaveKind::Whole, 1, 3, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::Hp>},
    {"Score", SaveKind::Whole, 200, 250, -Anything, Anything, OfEntry<&GameState::Enemies, &Enemy::Score>},
});

inline constexpr auto ObstacleRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 640, 770, -Anything, Anything, OfEntry<&GameState::Obstacles, &Obstacle::X>, true},
    {"Y", SaveKind::Real, 0, 77.7, -Anything, Anything, OfEntry<&GameState::Obstacles, &Obstacle::Y>},
    {"Speed", SaveKind::Real, 120, 133.3, -Anything, Anything,
        OfEntry<&GameState::Obstacles, &Obstacle::Speed>},
    {"Width", SaveKind::Real, 40, 33.5, -Anything, Anything,
        OfEntry<&GameState::Obstacles, &Obstacle::Width>},
    {"Height", SaveKind::Real, 14, 12.5, -Anything, Anything,
        OfEntry<&GameState::Obstacles, &Obstacle::Height>},
    {"HitFlash", SaveKind::Real, 0, 0.02, -Anything, Anything,
        OfEntry<&GameState::Obstacles, &Obstacle::HitFlash>},
    {"Lane", SaveKind::Whole, 4, 8, 0, 8, OfEntry<&GameState::Obstacles, &Obstacle::Lane>},
    {"Hp", SaveKind::Whole, 2, 5, -Anything, Anything, OfEntry<&GameState::Obstacles, &Obstacle::Hp>},
    {"Score", SaveKind::Whole, 120, 90, -Anything, Anything,
        OfEntry<&GameState::Obstacles, &Obstacle::Score>},
    {"Type", SaveKind::Whole, 0, 2, 0, 2, OfEntry<&GameState::Obstacles, &Obstacle::Type>},
});

inline constexpr auto ItemRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 640, 510, -Anything, Anything, OfEntry<&GameState::Items, &Item::X>, true},
    {"Y", SaveKind::Real, 0, 44.4, -Anything, Anything, OfEntry<&GameState::Items, &Item::Y>},
    {"Speed", SaveKind::Real, 90, 95.5, -Anything, Anything, OfEntry<&GameState::Items, &Item::Speed>},
    {"Radius", SaveKind::Real, 10, 11.5, -Anything, Anything, OfEntry<&GameState::Items, &Item::Radius>},
    {"Lane", SaveKind::Whole, 4, 0, 0, 8, OfEntry<&GameState::Items, &Item::Lane>},
    {"Type", SaveKind::Whole, 0, 3, 0, 3, OfEntry<&GameState::Items, &Item::Type>},
});

inline constexpr auto ExplosionRows = std::to_array<SaveRow>({
    {"X", SaveKind::Real, 0, 613.3, -Anything, Anything, OfEntry<&GameState::Explosions, &Explosion::X>},
    {"Y", SaveKind::Real, 0, 302.5, -Anything, Anything, OfEntry<&GameState::Explosions, &Explosion::Y>},
    {"Age", SaveKind::Real, 0, 0.15, -Anything, Anything, OfEntry<&GameState::Explosions, &Explosion::Age>},
    {"Life", SaveKind::Real, 0.5, 0.85, -Anything, Anything,
        OfEntry<&GameState::Explosions, &Explosion::Life>},
    {"MaxRadius", SaveKind::Real, 20, 36.5, -Anything, Anything,
        OfEntry<&GameState::Explosions, &Explosion::MaxRadius>},
});

/// A list and its one entry of the sample.
struct SaveList {
    const char *Key;
    std::span<const SaveRow> Rows;
    std::size_t (*Size)(const GameState &State);
    Color (*ColorAt)(const GameState &State, std::size_t Index) = nullptr; ///< null where there is none
    std::string_view DefaultColor{};                                       ///< four bytes
};

template <auto List> std::size_t SizeOf(const GameState &State) {
    return (State.*List).size();
}

template <auto List> Color ColorOf(const GameState &State, std::size_t Index) {
    return (State.*List).at(Index).Color;
}

inline constexpr SaveList BulletList{"Bullets", BulletRows, SizeOf<&GameState::Bullets>};
inline constexpr SaveList EnemyBulletList{"EnemyBullets", EnemyBulletRows, SizeOf<&GameState::EnemyBullets>};
inline constexpr SaveList EnemyList{
    "Enemies", EnemyRows, SizeOf<&GameState::Enemies>, ColorOf<&GameState::Enemies>, "\xFF\xFF\xFF\xFF"};
inline constexpr SaveList ObstacleList{"Obstacles", ObstacleRows, SizeOf<&GameState::Obstacles>};
inline constexpr SaveList ItemList{"Items", ItemRows, SizeOf<&GameState::Items>};
inline constexpr SaveList ExplosionList{"Explosions", ExplosionRows, SizeOf<&GameState::Explosions>,
    ColorOf<&GameState::Explosions>, "\xFF\xDC\x64\xDC"};

/// In the file's order.
inline constexpr std::array SaveLists{
    BulletList, EnemyBulletList, EnemyList, ObstacleList, ItemList, ExplosionList};

inline constexpr std::string_view SampleColor = "\x12\x34\x56\x78";

/// A colour's channels, red first.
std::string BytesOf(const Color &Channels);

/// The value of a colour's key.
std::string ColorBytes(std::string_view Channels);

std::vector<StreamEntry> SampleEntries(std::span<const SaveRow> Rows);

/// With the colour, where the list has one.
std::vector<StreamEntry> SampleEntries(const SaveList &List);

/// A run in which nothing has its default, in the order of the file.
std::vector<StreamEntry> SampleRun();

inline constexpr std::int64_t SampleHighScore = 987654321098;

/// A whole file around a run.
std::string SaveBytes(const std::vector<StreamEntry> &Run);

/// The first entry of this key; throws std::out_of_range if there is none.
StreamEntry &Find(std::vector<StreamEntry> &Entries, std::string_view Key);

// The entries without a key, with another value in its place, and with a second one of the same key behind
// all.

std::vector<StreamEntry> Without(std::vector<StreamEntry> Entries, std::string_view Key);
std::vector<StreamEntry> With(std::vector<StreamEntry> Entries, std::string_view Key, std::string Value);
std::vector<StreamEntry> Doubled(std::vector<StreamEntry> Entries, std::string_view Key, std::string Value);
