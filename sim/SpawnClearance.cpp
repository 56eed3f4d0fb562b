#include "sim/SpawnClearance.hpp"

#include "sim/Geometry.hpp"
#include "state/GameState.hpp"

#include <algorithm>
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

Obstacle Widened(Obstacle Obstacle) {
    Obstacle.Width += 2.0F * SpawnMargin;
    Obstacle.Height += 2.0F * SpawnMargin;
    return Obstacle;
}

template <typename Thing> bool IsClear(const GameState &State, const Thing &New) {
    const auto isTooClose = [place = Widened(New)](const auto &Other) {
        return Touches(Widened(Other), place);
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
