#include "sim/FirstAid.hpp"
#include "tests/sim/Runs.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

GameState HurtRun(std::int32_t Hp, std::int32_t Kits) {
    GameState state = QuietRun();
    state.Player.Hp = Hp;
    state.FirstAidKits = Kits;
    return state;
}

void ExpectNothingHappened(const GameState &State, const GameState &Before) {
    EXPECT_EQ(State.Player, Before.Player);
    EXPECT_EQ(State.FirstAidKits, Before.FirstAidKits);
    EXPECT_TRUE(State.Explosions.empty());
    EXPECT_TRUE(SoundsOf(State).empty());
}

std::int32_t HpAfterKit(std::int32_t Hp) {
    GameState state = HurtRun(Hp, 1);
    UseFirstAid(state);
    return state.Player.Hp;
}

} // namespace

TEST(FirstAid, Heals35AndUsesAKit) {
    GameState state = HurtRun(50, 3);
    UseFirstAid(state);
    EXPECT_EQ(state.Player.Hp, 85);
    EXPECT_EQ(state.FirstAidKits, 2);
    EXPECT_EQ(state.Explosions,
        (std::vector<Explosion>{{640.0F, 670.0F, 0.0F, 0.35F, 22.0F, {0x6E, 0xF5, 0x96, 0xDC}}}));
    EXPECT_EQ(SoundsOf(state), (Sounds{SfxId::PlayerHeal}));
}

TEST(FirstAid, HealsAtMostToFullHealth) {
    EXPECT_EQ(HpAfterKit(64), 99);
    EXPECT_EQ(HpAfterKit(65), 100);
    EXPECT_EQ(HpAfterKit(66), 100);
    EXPECT_EQ(HpAfterKit(99), 100);
    EXPECT_EQ(HpAfterKit(0), 35);
}

TEST(FirstAid, KnowsAnotherFullHealth) {
    GameState state = HurtRun(100, 1);
    state.Player.MaxHp = 120;
    UseFirstAid(state);
    EXPECT_EQ(state.Player.Hp, 120);
}

TEST(FirstAid, DoesNotOverflowAtTheHealthOfAStrangeFile) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    GameState state = HurtRun(most - 10, 1);
    state.Player.MaxHp = most;
    UseFirstAid(state);
    EXPECT_EQ(state.Player.Hp, most);
}

TEST(FirstAid, IsNotWastedAtFullHealth) {
    GameState state = HurtRun(100, 3);
    const GameState before = state;
    UseFirstAid(state);
    ExpectNothingHappened(state, before);
}

TEST(FirstAid, NeedsAKit) {
    GameState state = HurtRun(10, 0);
    const GameState before = state;
    UseFirstAid(state);
    ExpectNothingHappened(state, before);
}

TEST(FirstAid, MayUseTheLastKit) {
    GameState state = HurtRun(10, 1);
    UseFirstAid(state);
    EXPECT_EQ(state.FirstAidKits, 0);
    EXPECT_EQ(state.Player.Hp, 45);
}

TEST(FirstAid, WorksOnThePlayingScreenOnly) {
    for (const enum Screen screen :
        {ScreenMainMenu, ScreenOptions, ScreenHelp, ScreenPaused, ScreenCredits, ScreenGameOver}) {
        GameState state = HurtRun(10, 3);
        state.Screen = screen;
        const GameState before = state;
        UseFirstAid(state);
        ExpectNothingHappened(state, before);
    }
}

TEST(FirstAid, ComesTooLateForTheDying) {
    GameState state = HurtRun(0, 3);
    state.PlayerDying = true;
    const GameState before = state;
    UseFirstAid(state);
    ExpectNothingHappened(state, before);
}
