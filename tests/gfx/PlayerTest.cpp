#include "gfx/Entities.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/GfxTest.hpp"

class PlayerDraw : public GfxTest {
protected:
    /// A run with the player's car on an empty road, at 641, 599.
    static GameState Driving() {
        GameState state = EmptyRoad();
        state.PlayerDying = false;
        state.Player.X = 640.5F;
        state.Player.Y = 599.4F;
        return state;
    }

    void ExpectCar(const GameState &State, std::int32_t Id, bool Halo) {
        ExpectedPicture expected(ScreenWidth, ScreenHeight);
        if (Halo) {
            expected.Disc(641, 599, 18.2, 0x6E96EBFF);
        }
        expected.Sprite(Id, 641.0F, 599.0F, 31, 31);
        Clear();
        DrawEntities(Renderer(), State);
        EXPECT_TRUE(expected.IsShownBy(Shown()));
    }

    bool IsShown(const GameState &State) {
        Clear();
        DrawEntities(Renderer(), State);
        return Shown().BoundsOfAllBut(Backdrop).w != 0;
    }

    bool IsShownWhileInvulnerable(float InvulnerabilityTimer) {
        GameState state = Driving();
        state.InvulnerabilityTimer = InvulnerabilityTimer;
        return IsShown(state);
    }
};

TEST_F(PlayerDraw, WithoutAPowerIsThePlainCar) {
    ExpectCar(Driving(), SpritePlayer, false);
}

TEST_F(PlayerDraw, WithTwoGunsShowsThem) {
    GameState state = Driving();
    state.DualWeaponPowerTimer = 0.001F;
    ExpectCar(state, SpritePlayerDualWeapon, false);
}

TEST_F(PlayerDraw, WhileInvincibleHasAHaloBeneath) {
    GameState state = Driving();
    state.InvincibilityPowerTimer = 0.001F;
    ExpectCar(state, SpritePlayerInvincible, true);
}

TEST_F(PlayerDraw, WithBothPowersShowsBothAndTheHalo) {
    GameState state = Driving();
    state.InvincibilityPowerTimer = 3.0F;
    state.DualWeaponPowerTimer = 3.0F;
    ExpectCar(state, SpritePlayerInvincibleDualWeapon, true);
}

TEST_F(PlayerDraw, IsHiddenWhileDying) {
    GameState state = Driving();
    state.InvincibilityPowerTimer = 3.0F;
    state.PlayerDying = true;
    EXPECT_FALSE(IsShown(state));
}

TEST_F(PlayerDraw, IsHiddenOnceTheGameIsOver) {
    GameState state = Driving();
    state.Screen = ScreenGameOver;
    EXPECT_FALSE(IsShown(state));
}

TEST_F(PlayerDraw, IsShownWhilePaused) {
    GameState state = Driving();
    state.Screen = ScreenPaused;
    EXPECT_TRUE(IsShown(state));
}

TEST_F(PlayerDraw, BlinksWhileInvulnerable) {
    EXPECT_TRUE(IsShownWhileInvulnerable(0.2F));   // 3
    EXPECT_FALSE(IsShownWhileInvulnerable(0.14F)); // 2.1
    EXPECT_TRUE(IsShownWhileInvulnerable(0.1F));   // 1.5
    EXPECT_FALSE(IsShownWhileInvulnerable(0.05F)); // 0.75
    EXPECT_FALSE(IsShownWhileInvulnerable(0.0001F));
    EXPECT_TRUE(IsShownWhileInvulnerable(1.0F));  // 15
    EXPECT_FALSE(IsShownWhileInvulnerable(2.0F)); // 30
}

TEST_F(PlayerDraw, DoesNotBlinkAtZeroOrBelow) {
    EXPECT_TRUE(IsShownWhileInvulnerable(0.0F));
    EXPECT_TRUE(IsShownWhileInvulnerable(-0.14F));
}

TEST_F(PlayerDraw, BlinksWithItsHalo) {
    GameState state = Driving();
    state.InvincibilityPowerTimer = 3.0F;
    state.InvulnerabilityTimer = 0.14F;
    EXPECT_FALSE(IsShown(state));
}
