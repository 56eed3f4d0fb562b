#pragma once

#include "state/Color.hpp"
#include "state/Limits.hpp"

#include <cstdint>

// The moving things of a run. Positions are centres in logical pixels, speeds logical pixels a second, times
// seconds. Where a record has a Lane, the lane is the truth and X is derived from it.

struct Player {
    float X = 640.0F;
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
    float HitFlash = 0.0F;     ///< seconds of hit flash left
    float AiTimer = 0.0F;      ///< seconds until the next lane decision
    float FireCooldown = 0.0F; ///< seconds until the next shot
    std::int32_t Lane = 4;
    std::int32_t Hp = 1;
    std::int32_t Score = 200; ///< points before stage scaling
    struct Color Color;

    bool operator==(const Enemy &) const = default;
};

struct Obstacle {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 120.0F;
    float Width = 40.0F;
    float Height = 14.0F;
    float HitFlash = 0.0F;
    std::int32_t Lane = 4;
    std::int32_t Hp = 2;
    std::int32_t Score = 120; ///< points before stage scaling
    std::int32_t Type = 0;    ///< 0 barrier, 1 log, 2 rock

    bool operator==(const Obstacle &) const = default;
};

struct Item {
    float X = 0.0F;
    float Y = 0.0F;
    float Speed = 90.0F;
    float Radius = 10.0F;
    std::int32_t Lane = 4;
    std::int32_t Type = 0; ///< 0 first aid kit, 1 bomb, 2 invincibility, 3 dual weapon

    bool operator==(const Item &) const = default;
};

/// A burst, for the eye only.
struct Explosion {
    float X = 0.0F;
    float Y = 0.0F;
    float Age = 0.0F;
    float Life = 0.0F;
    float MaxRadius = 0.0F;
    struct Color Color;

    bool operator==(const Explosion &) const = default;
};
