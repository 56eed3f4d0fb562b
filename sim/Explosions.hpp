#pragma once

#include "state/Color.hpp"

struct GameState;

/// How an explosion looks: it grows from nothing to MaxRadius and fades meanwhile.
struct ExplosionLook {
    float Life;      ///< seconds
    float MaxRadius; ///< logical pixels
    struct Color Color;
};

inline constexpr ExplosionLook BombedEnemyLook{0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}};
inline constexpr ExplosionLook BombedObstacleLook{0.5F, 22.0F, {0xFF, 0xD2, 0x78, 0xEB}};
inline constexpr ExplosionLook BombBlastLook{0.7F, 200.0F, {0xFF, 0xF5, 0xB4, 0xAF}};
inline constexpr ExplosionLook FirstAidLook{0.35F, 22.0F, {0x6E, 0xF5, 0x96, 0xDC}};
inline constexpr ExplosionLook ShotOnObstacleLook{0.2F, 10.0F, {0xE6, 0xDC, 0xAA, 0xDC}};
inline constexpr ExplosionLook DestroyedObstacleLook{0.45F, 20.0F, {0xD7, 0xAA, 0x6E, 0xE1}};
inline constexpr ExplosionLook ShotOnEnemyLook{0.2F, 12.0F, {0xFA, 0xF0, 0xB4, 0xDC}};
inline constexpr ExplosionLook DestroyedEnemyLook{0.45F, 24.0F, {0xFF, 0xC8, 0x64, 0xE6}};
inline constexpr ExplosionLook RamLook{0.35F, 21.0F, {0xFF, 0xC8, 0x78, 0xDC}};
inline constexpr ExplosionLook ShotOnPlayerLook{0.22F, 12.0F, {0xFF, 0xA5, 0x5F, 0xD7}};
inline constexpr ExplosionLook ObstacleCrashLook{0.4F, 20.0F, {0xE6, 0xBE, 0x78, 0xDC}};
inline constexpr ExplosionLook PlayerDamageLook{0.5F, 22.0F, {0xFF, 0xAA, 0x6E, 0xE6}};
inline constexpr ExplosionLook RespawnLook{0.8F, 35.0F, {0xFF, 0xE6, 0x78, 0xE6}};
inline constexpr ExplosionLook DyingPlayerFirstLook{0.65F, 64.0F, {0xFF, 0xB9, 0x5F, 0xE6}};
inline constexpr ExplosionLook DyingPlayerSecondLook{0.85F, 44.0F, {0xFF, 0xE6, 0x8C, 0xD2}};

/// Adds an explosion of age 0 at a point in logical pixels. Life and MaxRadius as in ExplosionLook.
void AddExplosion(GameState &State, float X, float Y, float Life, float MaxRadius, struct Color Color);
void AddExplosion(GameState &State, float X, float Y, const ExplosionLook &Look);

/// Ages every explosion by dt seconds and drops those whose age has reached their life.
void AgeExplosions(GameState &State, float dt);
