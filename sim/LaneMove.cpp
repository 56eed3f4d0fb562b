#include "sim/LaneMove.hpp"

#include "sim/Lanes.hpp"
#include "state/GameState.hpp"

namespace {

constexpr float LaneMoveSeconds = 0.09F;

} // namespace

void MoveLane(GameState &State, const StepInput &StepInput) {
    if (StepInput.MoveLeft == StepInput.MoveRight || State.LaneMoveCooldown > 0.0F) {
        return;
    }
    State.PlayerLane = ClampLane(State.PlayerLane + (StepInput.MoveLeft ? -1 : 1));
    // NOT-BUGS: A direction held at the road's edge keeps starting the pause between two moves
    State.LaneMoveCooldown = LaneMoveSeconds;
    State.Player.X = LaneCenterX(State.PlayerLane);
}
