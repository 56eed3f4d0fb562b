#pragma once

/// What is held in this frame, from all devices together: states, not presses.
struct StepInput {
    bool MoveLeft = false;
    bool MoveRight = false;
    bool Fire = false;
    bool Bomb = false;

    bool operator==(const StepInput &) const = default;
};
