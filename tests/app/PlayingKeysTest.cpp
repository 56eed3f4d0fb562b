#include "sim/FirstAid.hpp"
#include "tests/app/KeyTest.hpp"

namespace {

class PlayingKeys : public KeyTest {
protected:
    PlayingKeys() : KeyTest(ScreenPlaying) {}

    void BindHealTo(std::int32_t Scancode) {
        State.KeyboardBindings[4] = Scancode;
    }
};

const Change Pause = [](GameState &Expected) {
    Hear(Expected, SfxId::UiBack);
    Expected.Screen = ScreenPaused;
    Expected.PauseSelection = 0;
};

const Change Heal = [](GameState &Expected) {
    UseFirstAid(Expected);
};

TEST_F(PlayingKeys, EscapePausesOnTheFirstRow) {
    ExpectKeys({EscapeKey}, Pause);
}

TEST_F(PlayingKeys, TheHealKeyUsesAKit) {
    ExpectKeys({SpaceBar}, Heal);
    Press(SpaceBar);
    EXPECT_EQ(State.Player.Hp, 75);
    EXPECT_EQ(State.FirstAidKits, 1);
    EXPECT_EQ(State.Explosions.size(), 2U);
    EXPECT_EQ(State.Screen, ScreenPlaying);
    EXPECT_EQ(Heard(), Sounds{SfxId::PlayerHeal});
}

TEST_F(PlayingKeys, EachPressOfTheHealKeyIsOneUse) {
    Press(SpaceBar);
    Press(SpaceBar);
    Press(SpaceBar); // no kit is left
    EXPECT_EQ(State.Player.Hp, 100);
    EXPECT_EQ(State.FirstAidKits, 0);
    EXPECT_EQ(Heard(), (Sounds{SfxId::PlayerHeal, SfxId::PlayerHeal}));
}

TEST_F(PlayingKeys, AtFullHpTheKitIsKeptInSilence) {
    State.Player.Hp = 100;
    ExpectKeys({SpaceBar}, Nothing);
}

TEST_F(PlayingKeys, WithoutAKitTheHealKeyIsSilent) {
    State.FirstAidKits = 0;
    ExpectKeys({SpaceBar}, Nothing);
}

TEST_F(PlayingKeys, WhileDyingNeitherKeyDoesAnything) {
    State.PlayerDying = true;
    ExpectKeys({EscapeKey, SpaceBar}, Nothing);
    BindHealTo(EscapeKey);
    ExpectKeys({EscapeKey}, Nothing);
}

TEST_F(PlayingKeys, TheHealKeyFollowsItsBinding) {
    for (const std::int32_t key : {1, 4, 40, 82, 98, 224, 511}) {
        BindHealTo(key);
        ExpectKeys({key}, Heal);
        ExpectKeys({SpaceBar}, Nothing);
    }
}

TEST_F(PlayingKeys, AnEscapeThatIsBoundToHealPausesAndDoesNotHeal) {
    BindHealTo(EscapeKey);
    ExpectKeys({EscapeKey}, Pause);
}

TEST_F(PlayingKeys, AnUnboundOrImpossibleHealKeyIsNeverPressed) {
    for (const std::int32_t key : {0, -1, 512, 100000}) {
        BindHealTo(key);
        ExpectKeys({key, SpaceBar}, Nothing);
    }
}

TEST_F(PlayingKeys, MenuKeysActOnlyIfTheyAreBound) {
    for (const Scancodes &keys : {UpKeys, DownKeys, LeftKeys, RightKeys, EnterKeys}) {
        ExpectKeys(keys, Nothing);
    }
    State.KeyboardBindings = {AKey, DKey, WKey, SKey, EnterKey};
    ExpectKeys({AKey, DKey, WKey, SKey, KeypadEnterKey}, Nothing); // steering, fire and bomb are polled
    ExpectKeys({EnterKey}, Heal);
}

TEST_F(PlayingKeys, EveryPauseBeginsOnTheFirstRow) {
    Press(EscapeKey);
    Press(DownKey);
    Press(DownKey);
    Press(EscapeKey);
    ASSERT_EQ(State.Screen, ScreenPlaying);
    ASSERT_EQ(State.PauseSelection, 2);
    Press(EscapeKey);
    EXPECT_EQ(State.Screen, ScreenPaused);
    EXPECT_EQ(State.PauseSelection, 0);
    EXPECT_EQ(Heard(), (Sounds{SfxId::UiBack, SfxId::UiMove, SfxId::UiMove, SfxId::UiBack, SfxId::UiBack}));
}

} // namespace
