#include "sim/Bursts.hpp"

#include "sim/Explosions.hpp"

#include <array>
#include <cstddef>

namespace {

struct BurstRow {
    float Life;      ///< seconds
    float MaxRadius; ///< logical pixels
    struct Color Color;
};

constexpr std::array<BurstRow, 15> BurstTable{{
    {0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}}, // BombedEnemy
    {0.5F, 22.0F, {0xFF, 0xD2, 0x78, 0xEB}},  // BombedObstacle
    {0.7F, 200.0F, {0xFF, 0xF5, 0xB4, 0xAF}}, // BombBlast
    {0.35F, 22.0F, {0x6E, 0xF5, 0x96, 0xDC}}, // FirstAid
    {0.2F, 10.0F, {0xE6, 0xDC, 0xAA, 0xDC}},  // ShotOnObstacle
    {0.45F, 20.0F, {0xD7, 0xAA, 0x6E, 0xE1}}, // DestroyedObstacle
    {0.2F, 12.0F, {0xFA, 0xF0, 0xB4, 0xDC}},  // ShotOnEnemy
    {0.45F, 24.0F, {0xFF, 0xC8, 0x64, 0xE6}}, // DestroyedEnemy
    {0.35F, 21.0F, {0xFF, 0xC8, 0x78, 0xDC}}, // Ram
    {0.22F, 12.0F, {0xFF, 0xA5, 0x5F, 0xD7}}, // EnemyShot
    {0.4F, 20.0F, {0xE6, 0xBE, 0x78, 0xDC}},  // ObstacleCrash
    {0.5F, 22.0F, {0xFF, 0xAA, 0x6E, 0xE6}},  // PlayerDamage
    {0.8F, 35.0F, {0xFF, 0xE6, 0x78, 0xE6}},  // Respawn
    {0.65F, 64.0F, {0xFF, 0xB9, 0x5F, 0xE6}}, // DyingPlayerFirst
    {0.85F, 44.0F, {0xFF, 0xE6, 0x8C, 0xD2}}, // DyingPlayerSecond
}};

} // namespace

void AddBurst(GameState &State, Burst Occasion, float X, float Y) {
    const BurstRow &row = BurstTable[static_cast<std::size_t>(Occasion)];
    AddExplosion(State, X, Y, row.Life, row.MaxRadius, row.Color);
}
