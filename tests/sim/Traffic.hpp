#pragma once

#include "sim/Lanes.hpp"
#include "tests/sim/Runs.hpp"

#include <algorithm>
#include <iterator>
#include <random>

// Things in a lane, and what a test asks of their lists.

/// A light enemy in a lane that neither thinks nor shoots for a long time.
inline Enemy EnemyInLane(std::int32_t Lane, float Y) {
    Enemy enemy = EnemyAt(LaneCenterX(Lane), Y);
    enemy.Lane = Lane;
    return enemy;
}

/// The same with two points and the larger circle.
inline Enemy HeavyInLane(std::int32_t Lane, float Y) {
    Enemy enemy = EnemyInLane(Lane, Y);
    enemy.Hp = 2;
    enemy.Radius = 9.5F;
    enemy.Score = 400;
    return enemy;
}

/// 40 by 14 logical pixels.
inline Obstacle ObstacleInLane(std::int32_t Lane, float Y) {
    Obstacle obstacle = ObstacleAt(LaneCenterX(Lane), Y);
    obstacle.Lane = Lane;
    return obstacle;
}

inline Item ItemInLane(std::int32_t Lane, float Y, std::int32_t Type = 0) {
    Item item = ItemAt(LaneCenterX(Lane), Y);
    item.Lane = Lane;
    item.Type = Type;
    return item;
}

/// A shot of the player that hangs in the air.
inline Bullet BulletAt(float X, float Y) {
    return {X, Y, 0.0F, 2.0F};
}

/// A light enemy's shot that hangs in the air.
inline EnemyBullet EnemyBulletAt(float X, float Y, std::int32_t Damage = 10) {
    return {X, Y, 0.0F, 2.0F, Damage};
}

/// An explosion of age 0.
inline Explosion NewExplosion(float X, float Y, float Life, float MaxRadius, struct Color Color) {
    return {X, Y, 0.0F, Life, MaxRadius, Color};
}

/// A generator that has given no number yet.
inline std::mt19937 FreshRng(std::uint32_t Seed) {
    return std::mt19937(Seed);
}

/// The y of every thing of a list, in order.
template <typename Thing> std::vector<float> HeightsOf(const std::vector<Thing> &Things) {
    std::vector<float> heights;
    std::ranges::transform(Things, std::back_inserter(heights), &Thing::Y);
    return heights;
}

/// The lane of every thing of a list, in order.
template <typename Thing> std::vector<std::int32_t> LanesOf(const std::vector<Thing> &Things) {
    std::vector<std::int32_t> lanes;
    std::ranges::transform(Things, std::back_inserter(lanes), &Thing::Lane);
    return lanes;
}

using Heights = std::vector<float>;
using LaneList = std::vector<std::int32_t>;
