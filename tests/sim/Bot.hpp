#pragma once

#include "sim/StepInput.hpp"
#include "state/GameState.hpp"

#include <cstdint>

/// Drives a run as a patient player would: keeps out of the way of what comes down, shoots at what is ahead,
/// and throws a bomb when it gets tight. After a stage of its choosing it lets go of the wheel, so that every
/// run ends.
class Bot {
public:
    explicit Bot(std::int32_t LastStage) : LastStageDriven(LastStage) {}

    StepInput Drive(const GameState &State) const;

    /// Whether it wants to use a first aid kit now.
    bool WantsFirstAid(const GameState &State) const;

private:
    std::int32_t LastStageDriven;
};
