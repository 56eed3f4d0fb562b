#include "tests/sim/Bot.hpp"

#include "sim/Lanes.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr float Lookahead = 170.0F; ///< logical pixels ahead of the car
constexpr float TightDanger = 60.0F;

/// How dangerous a thing at (X, Y) is for a car at CarX: more, the nearer it is ahead.
float DangerOf(const Player &Player, float CarX, float X, float Y, float HalfWidth) {
    const float ahead = Player.Y - Y;
    const bool beside = std::abs(X - CarX) > HalfWidth + Player.Radius + 2.0F;
    if (beside || ahead > Lookahead || ahead < -45.0F) {
        return 0.0F;
    }
    return 200.0F - ahead;
}

float DangerAt(const GameState &State, std::int32_t Lane) {
    const float x = LaneCenterX(Lane);
    float danger = 0.0F;
    for (const Enemy &enemy : State.Enemies) {
        danger += DangerOf(State.Player, x, enemy.X, enemy.Y, enemy.Radius);
    }
    for (const Obstacle &obstacle : State.Obstacles) {
        danger += DangerOf(State.Player, x, obstacle.X, obstacle.Y, obstacle.Width / 2.0F);
    }
    for (const EnemyBullet &bullet : State.EnemyBullets) {
        danger += DangerOf(State.Player, x, bullet.X, bullet.Y, bullet.Radius) * 0.5F;
    }
    for (const Item &item : State.Items) {
        danger -= DangerOf(State.Player, x, item.X, item.Y, item.Radius) * 0.2F;
    }
    return danger + 0.5F * static_cast<float>(std::abs(Lane - MiddleLane));
}

/// -1, 0 or +1: the way to the least dangerous of the lanes nearby.
std::int32_t SafestWay(const GameState &State) {
    const float here = DangerAt(State, State.PlayerLane);
    std::int32_t way = 0;
    float least = here;
    for (const std::int32_t step : {-1, 1, -2, 2}) {
        const std::int32_t lane = State.PlayerLane + step;
        if (lane < 0 || lane >= LaneCount) {
            continue;
        }
        const float danger = DangerAt(State, lane) + 3.0F * static_cast<float>(std::abs(step));
        if (danger < least) {
            least = danger;
            way = step < 0 ? -1 : 1;
        }
    }
    return way;
}

bool HasTarget(const GameState &State) {
    return std::ranges::any_of(State.Enemies, [&State](const Enemy &Enemy) {
        return Enemy.Y < State.Player.Y && std::abs(Enemy.X - State.Player.X) < 20.0F;
    });
}

} // namespace

StepInput Bot::Drive(const GameState &State) const {
    if (State.Stage > LastStageDriven) {
        return {};
    }
    const std::int32_t way = SafestWay(State);
    const bool tight = DangerAt(State, State.PlayerLane) > TightDanger + 200.0F && State.Enemies.size() > 3;
    return {way<0, way> 0, HasTarget(State), tight};
}

bool Bot::WantsFirstAid(const GameState &State) const {
    return State.Player.Hp <= 65 && State.Stage <= LastStageDriven;
}
