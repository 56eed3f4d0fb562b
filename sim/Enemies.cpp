#include "sim/Enemies.hpp"

#include "sim/Difficulty.hpp"
#include "sim/Geometry.hpp"
#include "sim/Lanes.hpp"
#include "sim/Obstacles.hpp"
#include "sim/Random.hpp"
#include "sim/Road.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory_resource>
#include <span>

namespace {

// What a draw in [0, 1) decides: to head for the player, to go either way, or, above both, to stay.
constexpr float ChaseBelow = 0.62F;
constexpr float WanderBelow = 0.87F;

constexpr float EnemyGap = 8.0F;  ///< between the circles of two enemies, in logical pixels
constexpr float EnemyLead = 6.0F; ///< pixels a second, for RollingDistance

// An enemy shoots between these heights, both ends excluded; all in logical pixels.
constexpr float ShootFromY = 14.0F;
constexpr float ShootToY = 650.0F;
constexpr float MuzzleDistance = 11.0F;

/// How an enemy thinks and shoots, by the hit points that it has now.
/// NOT-BUGS: A heavy enemy that was hit once behaves like a light one
struct Temper {
    float LeastThinkSeconds;
    float LeastReloadSeconds;
    float ShotRadius;
    std::int32_t ShotDamage;
};

// The most that a draw adds to the least seconds.
constexpr float ThinkSpread = 0.32F;
constexpr float ReloadSpread = 0.55F;

constexpr Temper LightTemper{0.28F, 1.18F, 2.0F, 10};
constexpr Temper HeavyTemper{0.2F, 0.9F, 2.2F, 12};
constexpr float HeavyMuzzleOffset = 4.0F;

bool IsHeavy(const Enemy &Enemy) {
    return Enemy.Hp > 1;
}

const Temper &TemperOf(const Enemy &Enemy) {
    return IsHeavy(Enemy) ? HeavyTemper : LightTemper;
}

/// An enemy as it stood before any of them moved.
struct Snapshot {
    std::int32_t Lane;
    float Y;
    float Radius;
};

constexpr std::size_t UsualEnemyLimit = 128; ///< more than a road holds, unless a file was damaged

/// One enemy's turn: the run, the enemies as they stood, and which of them it is.
struct Turn {
    GameState &State;
    std::span<const Snapshot> Others; ///< the enemy's own among them
    std::size_t Index;
    float dt;
};

std::int32_t DrawLaneStep(GameState &State, std::int32_t Lane) {
    const float r = RandomFloat(State, 0.0F, 1.0F);
    if (r < ChaseBelow) {
        return std::clamp(State.PlayerLane - Lane, -1, 1);
    }
    if (r < WanderBelow) {
        return RandomIndex(State, 2) == 1 ? 1 : -1;
    }
    return 0;
}

/// Whether another enemy stands beside this one, in the given lane.
bool IsEnemyBeside(const Turn &Turn, const Enemy &Enemy, std::int32_t Lane) {
    for (std::size_t j = 0; j < Turn.Others.size(); ++j) {
        const Snapshot &other = Turn.Others[j];
        if (j != Turn.Index && other.Lane == Lane &&
            std::abs(other.Y - Enemy.Y) < other.Radius + Enemy.Radius + EnemyGap) {
            return true;
        }
    }
    return false;
}

/// Whether an obstacle, where this step will take it, reaches into the given lane beside this enemy, where it
/// stands now.
bool IsObstacleBeside(const Turn &Turn, const Enemy &Enemy, std::int32_t Lane) {
    const float x = LaneCenterX(Lane);
    return std::ranges::any_of(Turn.State.Obstacles, [&](const Obstacle &Obstacle) {
        return CircleHitsRect(x, Enemy.Y, Enemy.Radius, Obstacle.X, PredictedY(Turn.State, Obstacle, Turn.dt),
            Obstacle.Width, Obstacle.Height);
    });
}

void Decide(const Turn &Turn, Enemy &Enemy) {
    const std::int32_t target = ClampLane(Enemy.Lane + DrawLaneStep(Turn.State, Enemy.Lane));
    if (target != Enemy.Lane && !IsEnemyBeside(Turn, Enemy, target) &&
        !IsObstacleBeside(Turn, Enemy, target)) {
        Enemy.Lane = target;
    }
    Enemy.AiTimer = RandomFloat(Turn.State, 0.0F, 1.0F) * ThinkSpread + TemperOf(Enemy).LeastThinkSeconds;
}

/// Halts behind an obstacle and rolls with it; one that is already passed does not hold back.
float StopBehindObstacles(const Turn &Turn, const Enemy &Enemy, float WantedY) {
    float wantedY = WantedY;
    for (const Obstacle &obstacle : Turn.State.Obstacles) {
        const float obstacleY = PredictedY(Turn.State, obstacle, Turn.dt);
        const float halfHeight = obstacle.Height / 2.0F;
        const bool notYetPassed = Enemy.Y - Enemy.Radius < obstacleY + halfHeight;
        if (notYetPassed && CircleHitsRect(Enemy.X, wantedY, Enemy.Radius, obstacle.X, obstacleY,
                                obstacle.Width, obstacle.Height)) {
            wantedY = std::min(wantedY, obstacleY - halfHeight - Enemy.Radius);
        }
    }
    return wantedY;
}

/// Keeps its distance from the enemies ahead in the lane that it is in now.
float QueueBehindEnemies(const Turn &Turn, const Enemy &Enemy, float WantedY) {
    float wantedY = WantedY;
    for (std::size_t j = 0; j < Turn.Others.size(); ++j) {
        const Snapshot &other = Turn.Others[j];
        if (j != Turn.Index && other.Lane == Enemy.Lane && other.Y > Enemy.Y) {
            wantedY = std::min(wantedY, other.Y - (Enemy.Radius + other.Radius + EnemyGap));
        }
    }
    return wantedY;
}

void Drive(const Turn &Turn, Enemy &Enemy) {
    float wantedY = Enemy.Y + RollingDistance(Turn.State, Enemy.Speed, EnemyLead, Turn.dt);
    wantedY = StopBehindObstacles(Turn, Enemy, wantedY);
    wantedY = QueueBehindEnemies(Turn, Enemy, wantedY);
    Enemy.Y = std::max(Enemy.Y, wantedY); // never backwards
}

void Shoot(GameState &State, Enemy &Enemy) {
    const bool isInRange = Enemy.Y > ShootFromY && Enemy.Y < ShootToY;
    if (Enemy.FireCooldown > 0.0F || !isInRange) {
        return;
    }
    const Temper &temper = TemperOf(Enemy);
    const auto addShot = [&](float X) {
        State.EnemyBullets.push_back(
            {X, Enemy.Y + MuzzleDistance, EnemyShotSpeed(State.Stage), temper.ShotRadius, temper.ShotDamage});
    };
    if (IsHeavy(Enemy)) {
        addShot(Enemy.X - HeavyMuzzleOffset);
        addShot(Enemy.X + HeavyMuzzleOffset);
    } else {
        addShot(Enemy.X);
    }
    Enemy.FireCooldown = (RandomFloat(State, 0.0F, 1.0F) * ReloadSpread + temper.LeastReloadSeconds) *
                         ReloadFactor(State.Stage);
}

void TakeTurn(const Turn &Turn, Enemy &Enemy) {
    CountDown(Enemy.HitFlash, Turn.dt);
    CountDown(Enemy.AiTimer, Turn.dt);
    CountDown(Enemy.FireCooldown, Turn.dt);
    if (Enemy.AiTimer <= 0.0F) {
        Decide(Turn, Enemy);
    }
    Enemy.X = LaneCenterX(Enemy.Lane);
    Drive(Turn, Enemy);
    Shoot(Turn.State, Enemy);
}

} // namespace

void MoveEnemies(GameState &State, float dt) {
    // On the stack, because a frame allocates no memory; only a crowd that no road holds is taken from the
    // heap.
    alignas(Snapshot) std::array<std::byte, UsualEnemyLimit * sizeof(Snapshot)> buffer;
    std::pmr::monotonic_buffer_resource memory(buffer.data(), buffer.size());
    std::pmr::vector<Snapshot> others(&memory);
    others.reserve(State.Enemies.size());
    for (const Enemy &enemy : State.Enemies) {
        others.push_back({enemy.Lane, enemy.Y, enemy.Radius});
    }
    for (std::size_t i = 0; i < State.Enemies.size(); ++i) {
        TakeTurn({State, others, i, dt}, State.Enemies[i]);
    }
}
