#pragma once

#include "state/GameState.hpp"
#include "tests/store/StreamBytes.hpp"

#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
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
template <typename Record> struct SaveRow {
    const char *Key;
    SaveKind Kind;
    double Default;
    double Sample;
    double Least;
    double Most;
    std::function<double(const Record &)> Get;
    bool IsDerived = false; ///< replaced by where the lane is; Sample is that of the sample's lane
};

template <typename Record, typename Owner, typename Value>
std::function<double(const Record &)> Of(Value Owner::*Member) {
    return [Member](const Record &From) {
        return static_cast<double>(From.*Member);
    };
}

/// The token that the game writes for a value of this kind.
inline std::string TokenOf(SaveKind Kind, double Value) {
    switch (Kind) {
    case SaveKind::Whole:
        return Int32Token(static_cast<std::int32_t>(Value));
    case SaveKind::Long:
        return Int64Token(static_cast<std::int64_t>(Value));
    case SaveKind::Real:
        return DoubleToken(static_cast<double>(static_cast<float>(Value)));
    default:
        return BoolToken(Value != 0.0 ? 1 : 0);
    }
}

/// A value as a record holds it.
inline double AsHeld(SaveKind Kind, double Value) {
    return Kind == SaveKind::Real ? static_cast<double>(static_cast<float>(Value)) : Value;
}

inline const std::vector<SaveRow<GameState>> RunRows{
    {"Score", SaveKind::Long, 0, 123456789012.0, 0, Anything, Of<GameState>(&GameState::Score)},
    {"Stage", SaveKind::Whole, 1, 7, 1, Anything, Of<GameState>(&GameState::Stage)},
    {"PreviousStage", SaveKind::Whole, 1, 6, 1, Anything, Of<GameState>(&GameState::PreviousStage)},
    {"WaterFlowDirection", SaveKind::Whole, 1, -1, -1, 1, Of<GameState>(&GameState::WaterFlowDirection)},
    {"PreviousWaterFlowDirection", SaveKind::Whole, 1, -1, -1, 1,
        Of<GameState>(&GameState::PreviousWaterFlowDirection)},
    {"GameTime", SaveKind::Real, 0, 157.3, 0, Anything, Of<GameState>(&GameState::GameTime)},
    {"RoadScroll", SaveKind::Real, 0, 20123.7, 0, Anything, Of<GameState>(&GameState::RoadScroll)},
    {"CurrentScrollSpeed", SaveKind::Real, 120, 151.1, 10, Anything,
        Of<GameState>(&GameState::CurrentScrollSpeed)},
    {"StageTransition", SaveKind::Real, 1, 0.3, 0, 1, Of<GameState>(&GameState::StageTransition)},
    {"SpawnTimer", SaveKind::Real, 0, 0.7, 0, Anything, Of<GameState>(&GameState::SpawnTimer)},
    {"ObstacleSpawnTimer", SaveKind::Real, 2.8, 1.9, 0, Anything,
        Of<GameState>(&GameState::ObstacleSpawnTimer)},
    {"ItemSpawnTimer", SaveKind::Real, 6, 4.4, 0, Anything, Of<GameState>(&GameState::ItemSpawnTimer)},
    {"ReadyBanner", SaveKind::Real, 0, 1.2, 0, Anything, Of<GameState>(&GameState::ReadyBanner)},
    {"InvulnerabilityTimer", SaveKind::Real, 0, 0.9, 0, Anything,
        Of<GameState>(&GameState::InvulnerabilityTimer)},
    {"LaneMoveCooldown", SaveKind::Real, 0, 0.11, 0, Anything, Of<GameState>(&GameState::LaneMoveCooldown)},
    {"AmmoRegenPause", SaveKind::Real, 0, 0.21, 0, Anything, Of<GameState>(&GameState::AmmoRegenPause)},
    {"AmmoMeter", SaveKind::Real, 100, 61.6, 0, 100, Of<GameState>(&GameState::AmmoMeter)},
    {"Bombs", SaveKind::Whole, 3, 1, 0, 3, Of<GameState>(&GameState::Bombs)},
    {"FirstAidKits", SaveKind::Whole, 0, 2, 0, 3, Of<GameState>(&GameState::FirstAidKits)},
    {"PlayerLane", SaveKind::Whole, 4, 6, 0, 8, Of<GameState>(&GameState::PlayerLane)},
    {"SpecialActive", SaveKind::Flag, 0, 1, 0, 1, Of<GameState>(&GameState::SpecialActive)},
    {"SpecialTimer", SaveKind::Real, 0, 0.31, 0, Anything, Of<GameState>(&GameState::SpecialTimer)},
    {"InvincibilityPowerTimer", SaveKind::Real, 0, 3.3, 0, Anything,
        Of<GameState>(&GameState::InvincibilityPowerTimer)},
    {"DualWeaponPowerTimer", SaveKind::Real, 0, 5.7, 0, Anything,
        Of<GameState>(&GameState::DualWeaponPowerTimer)},
};

// At a logical width of 1280 the lanes' centres are 510, 543, 575, 608, 640, 673, 705, 738 and 770.

inline const std::vector<SaveRow<Player>> PlayerRows{
    {"X", SaveKind::Real, 640, 705, -Anything, Anything, Of<Player>(&Player::X), true},
    {"Y", SaveKind::Real, 670, 655.5, 0, 720, Of<Player>(&Player::Y)},
    {"Radius", SaveKind::Real, 12, 11.25, -Anything, Anything, Of<Player>(&Player::Radius)},
    {"Hp", SaveKind::Whole, 100, 64, 0, 140, Of<Player>(&Player::Hp)}, // at most the sample of MaxHp
    {"MaxHp", SaveKind::Whole, 100, 140, 1, Anything, Of<Player>(&Player::MaxHp)},
    {"Stocks", SaveKind::Whole, 2, 4, 0, 5, Of<Player>(&Player::Stocks)},
    {"FireCooldown", SaveKind::Real, 0, 0.07, 0, Anything, Of<Player>(&Player::FireCooldown)},
};

/// A list and its one entry of the sample.
template <typename Record> struct SaveList {
    const char *Key;
    std::vector<Record> GameState::*List;
    std::vector<SaveRow<Record>> Rows;
    std::string DefaultColor; ///< four bytes; empty where the record has no colour
};

inline const SaveList<Bullet> BulletList{"Bullets", &GameState::Bullets,
    {
        {"X", SaveKind::Real, 0, 611.1, -Anything, Anything, Of<Bullet>(&Bullet::X)},
        {"Y", SaveKind::Real, 0, 300.3, -Anything, Anything, Of<Bullet>(&Bullet::Y)},
        {"Speed", SaveKind::Real, 0, 555.5, -Anything, Anything, Of<Bullet>(&Bullet::Speed)},
        {"Radius", SaveKind::Real, 2, 3.25, -Anything, Anything, Of<Bullet>(&Bullet::Radius)},
    },
    ""};

inline const SaveList<EnemyBullet> EnemyBulletList{"EnemyBullets", &GameState::EnemyBullets,
    {
        {"X", SaveKind::Real, 0, 612.2, -Anything, Anything, Of<EnemyBullet>(&EnemyBullet::X)},
        {"Y", SaveKind::Real, 0, 301.4, -Anything, Anything, Of<EnemyBullet>(&EnemyBullet::Y)},
        {"Speed", SaveKind::Real, 190, 222.2, -Anything, Anything, Of<EnemyBullet>(&EnemyBullet::Speed)},
        {"Radius", SaveKind::Real, 2, 2.75, -Anything, Anything, Of<EnemyBullet>(&EnemyBullet::Radius)},
        {"Damage", SaveKind::Whole, 12, 15, -Anything, Anything, Of<EnemyBullet>(&EnemyBullet::Damage)},
    },
    ""};

inline const SaveList<Enemy> EnemyList{"Enemies", &GameState::Enemies,
    {
        {"X", SaveKind::Real, 640, 543, -Anything, Anything, Of<Enemy>(&Enemy::X), true},
        {"Y", SaveKind::Real, 0, 99.9, -Anything, Anything, Of<Enemy>(&Enemy::Y)},
        {"Speed", SaveKind::Real, 0, 88.8, -Anything, Anything, Of<Enemy>(&Enemy::Speed)},
        {"Radius", SaveKind::Real, 8, 9.5, -Anything, Anything, Of<Enemy>(&Enemy::Radius)},
        {"HitFlash", SaveKind::Real, 0, 0.05, -Anything, Anything, Of<Enemy>(&Enemy::HitFlash)},
        {"AiTimer", SaveKind::Real, 0, 0.66, -Anything, Anything, Of<Enemy>(&Enemy::AiTimer)},
        {"FireCooldown", SaveKind::Real, 0, 1.77, -Anything, Anything, Of<Enemy>(&Enemy::FireCooldown)},
        {"Lane", SaveKind::Whole, 4, 1, 0, 8, Of<Enemy>(&Enemy::Lane)},
        {"Hp", SaveKind::Whole, 1, 3, -Anything, Anything, Of<Enemy>(&Enemy::Hp)},
        {"Score", SaveKind::Whole, 200, 250, -Anything, Anything, Of<Enemy>(&Enemy::Score)},
    },
    "\xFF\xFF\xFF\xFF"};

inline const SaveList<Obstacle> ObstacleList{"Obstacles", &GameState::Obstacles,
    {
        {"X", SaveKind::Real, 640, 770, -Anything, Anything, Of<Obstacle>(&Obstacle::X), true},
        {"Y", SaveKind::Real, 0, 77.7, -Anything, Anything, Of<Obstacle>(&Obstacle::Y)},
        {"Speed", SaveKind::Real, 120, 133.3, -Anything, Anything, Of<Obstacle>(&Obstacle::Speed)},
        {"Width", SaveKind::Real, 40, 33.5, -Anything, Anything, Of<Obstacle>(&Obstacle::Width)},
        {"Height", SaveKind::Real, 14, 12.5, -Anything, Anything, Of<Obstacle>(&Obstacle::Height)},
        {"HitFlash", SaveKind::Real, 0, 0.02, -Anything, Anything, Of<Obstacle>(&Obstacle::HitFlash)},
        {"Lane", SaveKind::Whole, 4, 8, 0, 8, Of<Obstacle>(&Obstacle::Lane)},
        {"Hp", SaveKind::Whole, 2, 5, -Anything, Anything, Of<Obstacle>(&Obstacle::Hp)},
        {"Score", SaveKind::Whole, 120, 90, -Anything, Anything, Of<Obstacle>(&Obstacle::Score)},
        {"Type", SaveKind::Whole, 0, 2, 0, 2, Of<Obstacle>(&Obstacle::Type)},
    },
    ""};

inline const SaveList<Item> ItemList{"Items", &GameState::Items,
    {
        {"X", SaveKind::Real, 640, 510, -Anything, Anything, Of<Item>(&Item::X), true},
        {"Y", SaveKind::Real, 0, 44.4, -Anything, Anything, Of<Item>(&Item::Y)},
        {"Speed", SaveKind::Real, 90, 95.5, -Anything, Anything, Of<Item>(&Item::Speed)},
        {"Radius", SaveKind::Real, 10, 11.5, -Anything, Anything, Of<Item>(&Item::Radius)},
        {"Lane", SaveKind::Whole, 4, 0, 0, 8, Of<Item>(&Item::Lane)},
        {"Type", SaveKind::Whole, 0, 3, 0, 3, Of<Item>(&Item::Type)},
    },
    ""};

inline const SaveList<Explosion> ExplosionList{"Explosions", &GameState::Explosions,
    {
        {"X", SaveKind::Real, 0, 613.3, -Anything, Anything, Of<Explosion>(&Explosion::X)},
        {"Y", SaveKind::Real, 0, 302.5, -Anything, Anything, Of<Explosion>(&Explosion::Y)},
        {"Age", SaveKind::Real, 0, 0.15, -Anything, Anything, Of<Explosion>(&Explosion::Age)},
        {"Life", SaveKind::Real, 0.5, 0.85, -Anything, Anything, Of<Explosion>(&Explosion::Life)},
        {"MaxRadius", SaveKind::Real, 20, 36.5, -Anything, Anything, Of<Explosion>(&Explosion::MaxRadius)},
    },
    "\xFF\xDC\x64\xDC"};

/// Calls Visit with each list, in the file's order.
template <typename Visitor> void VisitLists(Visitor Visit) {
    Visit(BulletList);
    Visit(EnemyBulletList);
    Visit(EnemyList);
    Visit(ObstacleList);
    Visit(ItemList);
    Visit(ExplosionList);
}

inline const std::string SampleColor = "\x12\x34\x56\x78";

inline std::string ColorBytes(const std::string &Channels) {
    std::vector<StreamEntry> entries;
    for (std::size_t i = 0; i < 4; ++i) {
        entries.push_back({std::string(1, "RGBA"[i]), Int32Token(static_cast<unsigned char>(Channels[i]))});
    }
    return ObjectBytes(entries);
}

template <typename Record> std::vector<StreamEntry> SampleEntries(const std::vector<SaveRow<Record>> &Rows) {
    std::vector<StreamEntry> entries;
    for (const SaveRow<Record> &row : Rows) {
        entries.push_back({row.Key, TokenOf(row.Kind, row.Sample)});
    }
    return entries;
}

template <typename Record> std::vector<StreamEntry> SampleEntries(const SaveList<Record> &List) {
    std::vector<StreamEntry> entries = SampleEntries(List.Rows);
    if (!List.DefaultColor.empty()) {
        entries.push_back({"Color", ColorBytes(SampleColor)});
    }
    return entries;
}

/// A run in which nothing has its default, in the order of the file.
inline std::vector<StreamEntry> SampleRun() {
    std::vector<StreamEntry> run = SampleEntries(RunRows);
    run.push_back({"Player", ObjectBytes(SampleEntries(PlayerRows))});
    VisitLists([&run](const auto &List) {
        run.push_back({List.Key, ArrayBytes({ObjectBytes(SampleEntries(List))})});
    });
    return run;
}

inline constexpr std::int64_t SampleHighScore = 987654321098;

/// A whole file around a run.
inline std::string SaveBytes(const std::vector<StreamEntry> &Run) {
    return ObjectBytes({{"FormatVersion", Int32Token(1)}, {"HighScore", Int64Token(SampleHighScore)},
        {"HasRunState", BoolToken(1)}, {"RunState", ObjectBytes(Run)}});
}

inline StreamEntry &Find(std::vector<StreamEntry> &Entries, const std::string &Key) {
    for (StreamEntry &entry : Entries) {
        if (entry.Key == Key) {
            return entry;
        }
    }
    throw std::out_of_range(Key);
}

inline std::vector<StreamEntry> Without(std::vector<StreamEntry> Entries, const std::string &Key) {
    std::erase_if(Entries, [&Key](const StreamEntry &Entry) {
        return Entry.Key == Key;
    });
    return Entries;
}

inline std::vector<StreamEntry> With(
    std::vector<StreamEntry> Entries, const std::string &Key, std::string Value) {
    Find(Entries, Key).Value = std::move(Value);
    return Entries;
}

inline std::vector<StreamEntry> Doubled(
    std::vector<StreamEntry> Entries, const std::string &Key, std::string Value) {
    Entries.push_back({Key, std::move(Value)});
    return Entries;
}
