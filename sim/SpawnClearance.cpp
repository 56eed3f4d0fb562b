#include "sim/SpawnClearance.hpp"

#include "sim/Geometry.hpp"
#include "state/GameState.hpp"

#include <algorithm>

namespace {

constexpr float Margin = 4.0F; ///< added to every radius, and to both ends of a rectangle's sides

} // namespace

bool IsSpawnClear(const GameState &State, float X, float Y, float Radius) {
    const float reach = Radius + Margin;
    const auto touchesCircle = [&](const auto &Thing) {
        return CirclesTouch(Thing.X, Thing.Y, Thing.Radius + Margin, X, Y, reach);
    };
    const auto touchesRectangle = [&](const Obstacle &Thing) {
        return CircleHitsRect(
            X, Y, reach, Thing.X, Thing.Y, Thing.Width + 2.0F * Margin, Thing.Height + 2.0F * Margin);
    };
    return std::ranges::none_of(State.Enemies, touchesCircle) &&
           std::ranges::none_of(State.Obstacles, touchesRectangle) &&
           std::ranges::none_of(State.Items, touchesCircle);
}
