#pragma once

#include "state/Color.hpp"
#include "state/Limits.hpp"
#include "state/LogicalScreen.hpp"

#include <cstdint>

// The moving things of a run. Positions are centres in logical pixels, times seconds, speeds logical pixels a
// second. Those of an Enemy, an Obstacle and an Item are taken times the road's speed scale, and never as
// slow as the road; that of an EnemyBullet comes on top of a share of the road's. Where a record has a Lane,
// that says where the thing is, and X follows from it.
//
// The initial values of an Enemy, an Obstacle and an Item stand in for keys that a saved one lacks. What
// enters the road gets its own where it is spawned, all but HitFlash.

/// How long a thing flashes that was shot, in seconds.
inline constexpr float HitFlashSeconds = 0.12F;

// The values of both enumerations stand in saved runs.

enum ObstacleType : std::int32_t {
    ObstacleTypeBarrier = 0,
    ObstacleTypeLog = 1,
    ObstacleTypeRock = 2,
};

enum ItemType : std::int32_t {
    ItemTypeFirstAid = 0,
    ItemTypeBomb = 1,
    ItemTypeInvincibility = 2,
    ItemTypeDualWeapon = 3,
};

struct Player {
    float X = static_cast<float>(DefaultLogicalWidth) / 2.0F;
    float Y = PlayerY;
    float Radius = PlayerRadius;
    std::int32_t Hp = StartHp;
    std::int32_t MaxHp = StartHp;
    std::int32_t Stocks = StartStocks; ///< spare lives, 0 to 5
    float FireCooldown = 0.0F;

    bool operator==(const Player &) const = default;
};

/// A shot of the player; it flies up.
struct Bullet {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 0.0F;
    float Radius = 0.0F;

    bool operator==(const Bullet &) const = default;
};

/// A shot of an enemy; it flies down.
struct EnemyBullet {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 0.0F;
    float Radius = 0.0F;
    std::int32_t Damage = 0;

    bool operator==(const EnemyBullet &) const = default;
};

struct Enemy {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 0.0F;
    float Radius = 8.0F;
    float HitFlash = 0.0F;     ///< seconds of hit flash left, from HitFlashSeconds down
    float AiTimer = 0.0F;      ///< seconds until the next lane decision
    float FireCooldown = 0.0F; ///< seconds until the next shot
    std::int32_t Lane = MiddleLane;
    std::int32_t Hp = 1;
    std::int32_t Score = 200; ///< points before stage scaling
    struct Color Color;       ///< not drawn: how an enemy looks goes by its Hp

    bool operator==(const Enemy &) const = default;
};

struct Obstacle {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 120.0F;
    float Width = 40.0F;
    float Height = 14.0F;
    float HitFlash = 0.0F; ///< seconds of hit flash left, from HitFlashSeconds down
    std::int32_t Lane = MiddleLane;
    std::int32_t Hp = 2;
    std::int32_t Score = 120;                ///< points before stage scaling
    std::int32_t Type = ObstacleTypeBarrier; ///< an ObstacleType

    bool operator==(const Obstacle &) const = default;
};

struct Item {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 90.0F;
    float Radius = 10.0F;
    std::int32_t Lane = MiddleLane;
    std::int32_t Type = ItemTypeFirstAid; ///< an ItemType

    bool operator==(const Item &) const = default;
};

/// A disc that grows and fades: an effect that is only seen. It ends when Age reaches Life.
struct Explosion {
    float X = 0.0F;
    float Y = 0.0F;
    float Age = 0.0F;
    float Life = 0.0F;
    float MaxRadius = 0.0F; ///< at the end of its life
    struct Color Color;

    bool operator==(const Explosion &) const = default;
};
