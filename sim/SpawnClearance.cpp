#include "sim/SpawnClearance.hpp"

#include "sim/Geometry.hpp"
#include "state/GameState.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

struct Circle {
    float X;
    float Y;
    float Radius;
};

template <typename Thing> Circle Widened(const Thing &Round) {
    return {Round.X, Round.Y, Round.Radius + SpawnMargin};
}

/// The margin at both ends of a side.
constexpr float DoubleMargin = 2.0F * SpawnMargin;

Obstacle Widened(Obstacle Obstacle) {
    Obstacle.Width += DoubleMargin;
    Obstacle.Height += DoubleMargin;
    return Obstacle;
}

template <typename Thing, typename NewThing> bool IsTooClose(const Thing &Other, const NewThing &New) {
    return Touches(Widened(Other), Widened(New));
}

/// Two rectangles, by the distance of their centres and half the sum of their widened sides. For sizes that
/// only a damaged file holds another order of the terms would round to another answer.
bool IsTooClose(const Obstacle &Other, const Obstacle &New) {
    return std::abs(Other.X - New.X) <= (Other.Width + DoubleMargin + New.Width + DoubleMargin) / 2.0F &&
           std::abs(Other.Y - New.Y) <= (Other.Height + DoubleMargin + New.Height + DoubleMargin) / 2.0F;
}

template <typename Thing> bool IsClear(const GameState &State, const Thing &New) {
    const auto isTooClose = [&New](const auto &Other) {
        return IsTooClose(Other, New);
    };
    return std::ranges::none_of(State.Enemies, isTooClose) &&
           std::ranges::none_of(State.Obstacles, isTooClose) && std::ranges::none_of(State.Items, isTooClose);
}

template <typename Thing>
void AddInClearLane(const GameState &State, std::vector<Thing> &Things, const LaneOrder &Lanes, Thing &New) {
    for (const std::int32_t lane : Lanes) {
        New.Lane = lane;
        New.X = LaneCenterX(lane);
        if (IsClear(State, New)) {
            Things.push_back(New);
            return;
        }
    }
}

} // namespace

bool IsSpawnClear(const GameState &State, float X, float Y, float Radius) {
    return IsClear(State, Circle{X, Y, Radius});
}

void SpawnInClearLane(GameState &State, const LaneOrder &Lanes, Enemy New) {
    AddInClearLane(State, State.Enemies, Lanes, New);
}

void SpawnInClearLane(GameState &State, const LaneOrder &Lanes, Obstacle New) {
    AddInClearLane(State, State.Obstacles, Lanes, New);
}

void SpawnInClearLane(GameState &State, const LaneOrder &Lanes, Item New) {
    AddInClearLane(State, State.Items, Lanes, New);
}
