#pragma once

#include <cstdint>

/// The sprites of the atlas, by their place in it.
enum SpriteId : std::int32_t {
    SpritePlayer = 0,
    SpritePlayerInvincible = 1,
    SpritePlayerDualWeapon = 2,
    SpritePlayerInvincibleDualWeapon = 3,
    SpriteEnemy = 4,
    SpriteEnemyTough = 5,
    SpriteObstacleBarrier = 6,
    SpriteObstacleLog = 7,
    SpriteObstacleRock = 8,
    SpriteItemFirstAid = 9,
    SpriteItemBomb = 10,
    SpriteItemInvincibility = 11,
    SpriteItemDualWeapon = 12,
    SpriteRoadSurface = 13,
    SpriteRoadBridge = 14,
    SpriteGroundEarth = 15,
    SpriteGroundWater = 16,
    SpriteGroundDirt = 17,
    SpriteGroundGrass = 18,
    SpriteRoadsideShrubDark = 19,
    SpriteRoadsideShrubBright = 20,
};

inline constexpr std::int32_t SpriteCount = SpriteRoadsideShrubBright + 1;
