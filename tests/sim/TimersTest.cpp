#include "sim/Timers.hpp"
#include "sim/Step.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

void SetTimers(GameState &State, float Seconds) {
    State.Player.FireCooldown = Seconds;
    State.InvulnerabilityTimer = Seconds;
    State.LaneMoveCooldown = Seconds;
    State.AmmoRegenPause = Seconds;
    State.InvincibilityPowerTimer = Seconds;
    State.DualWeaponPowerTimer = Seconds;
    State.ReadyBanner = Seconds;
}

std::array<float, 7> TimersOf(const GameState &State) {
    return {State.Player.FireCooldown, State.InvulnerabilityTimer, State.LaneMoveCooldown,
        State.AmmoRegenPause, State.InvincibilityPowerTimer, State.DualWeaponPowerTimer, State.ReadyBanner};
}

void ExpectTimers(const GameState &State, float Seconds) {
    std::array<float, 7> expected{};
    expected.fill(Seconds);
    EXPECT_EQ(TimersOf(State), expected);
}

} // namespace

TEST(CountDown, StopsAtExactlyZero) {
    float timer = 0.75F;
    CountDown(timer, 0.5F);
    EXPECT_EQ(timer, 0.25F);
    CountDown(timer, 0.25F);
    EXPECT_EQ(timer, 0.0F);
    CountDown(timer, 0.25F);
    EXPECT_EQ(timer, 0.0F);
}

TEST(Timers, AllSevenFallWithTheFrame) {
    GameState state = QuietRun();
    SetTimers(state, 0.5F);
    SimulationStep(state, 0.125F, HeldNothing);
    ExpectTimers(state, 0.375F);
}

TEST(Timers, AllSevenStopAtZero) {
    GameState state = QuietRun();
    SetTimers(state, 0.0625F);
    SimulationStep(state, 0.125F, HeldNothing);
    ExpectTimers(state, 0.0F);
    SimulationStep(state, 0.125F, HeldNothing);
    ExpectTimers(state, 0.0F);
}

TEST(Timers, TheBombsFlashRunsOut) {
    GameState state = QuietRun();
    state.SpecialActive = true;
    state.SpecialTimer = 0.25F;
    SimulationStep(state, 0.1875F, HeldNothing);
    EXPECT_TRUE(state.SpecialActive);
    EXPECT_EQ(state.SpecialTimer, 0.0625F);
    SimulationStep(state, 0.1875F, HeldNothing);
    EXPECT_FALSE(state.SpecialActive);
    EXPECT_EQ(state.SpecialTimer, 0.0F);
}

TEST(Timers, TheBombsFlashEndsAtExactlyZero) {
    GameState state = QuietRun();
    state.SpecialActive = true;
    state.SpecialTimer = 0.25F;
    SimulationStep(state, 0.25F, HeldNothing);
    EXPECT_FALSE(state.SpecialActive);
    EXPECT_EQ(state.SpecialTimer, 0.0F);
}

TEST(Timers, AFlashWithoutTimeEndsWithTheNextFrame) {
    GameState state = QuietRun();
    state.SpecialActive = true; // as a file may say
    state.SpecialTimer = 0.0F;
    SimulationStep(state, 0.0F, HeldNothing);
    EXPECT_FALSE(state.SpecialActive);
}

TEST(Timers, TheFlashTimerStandsWhileNoBombIsActive) {
    GameState state = QuietRun();
    state.SpecialActive = false;
    state.SpecialTimer = 0.25F;
    SimulationStep(state, 0.125F, HeldNothing);
    EXPECT_FALSE(state.SpecialActive);
    EXPECT_EQ(state.SpecialTimer, 0.25F);
}

TEST(Timers, TheReadyBannerBlocksNothing) {
    GameState state = QuietRun();
    state.ReadyBanner = 2.0F;
    SimulationStep(state, 0.0F, {false, true, true, true});
    EXPECT_EQ(state.PlayerLane, 5);
    EXPECT_EQ(state.Bullets.size(), 1U);
    EXPECT_EQ(state.Bombs, 2);
}
