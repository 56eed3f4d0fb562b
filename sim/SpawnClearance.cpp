#include "sim/SpawnClearance.hpp"

#include "sim/Geometry.hpp"
#include "state/GameState.hpp"

#include <algorithm>

bool IsSpawnClear(const GameState &State, float X, float Y, float Radius) {
    const float reach = Radius + SpawnMargin;
    const auto touchesCircle = [&](const auto &Thing) {
        return CirclesTouch(Thing.X, Thing.Y, Thing.Radius + SpawnMargin, X, Y, reach);
    };
    const auto touchesRectangle = [&](const Obstacle &Thing) {
        return CircleHitsRect(X, Y, reach, Thing.X, Thing.Y, Thing.Width + 2.0F * SpawnMargin,
            Thing.Height + 2.0F * SpawnMargin);
    };
    return std::ranges::none_of(State.Enemies, touchesCircle) &&
           std::ranges::none_of(State.Obstacles, touchesRectangle) &&
           std::ranges::none_of(State.Items, touchesCircle);
}
