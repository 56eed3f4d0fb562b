#pragma once

#include <cstdint>

struct GameState;

/// The occasions on which something bursts.
enum class Burst : std::uint8_t {
    BombedEnemy,
    BombedObstacle,
    BombBlast,
    FirstAid,
    ShotOnObstacle,
    DestroyedObstacle,
    ShotOnEnemy,
    DestroyedEnemy,
    Ram,
    EnemyShot,
    ObstacleCrash,
    PlayerDamage,
    Respawn,
    DyingPlayerFirst,
    DyingPlayerSecond,
};

/// Adds the explosion of an occasion at a point in logical pixels.
void AddBurst(GameState &State, Burst Occasion, float X, float Y);
