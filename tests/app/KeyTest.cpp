#include "tests/app/KeyTest.hpp"

#include "app/KeyHandler.hpp"
#include "sim/NewRun.hpp"
#include "tests/support/SameState.hpp"

namespace {

constexpr SfxId SoundThatWaits = SfxId::PlayerFire;

void PutMenusElsewhere(GameState &State) {
    State.MainMenuSelection = 3;
    State.PauseSelection = 2;
    State.CreditsScroll = 77.5F;
    State.OptionsReturnScreen = State.Screen == ScreenMainMenu ? ScreenPaused : ScreenMainMenu;
    State.HelpReturnScreen = State.OptionsReturnScreen;
    State.OptionsPage = OptionsPageAudio;
    State.OptionsMainSelection = 2;
    State.ControlsSelection = 4;
    State.GraphicsSelection = 3;
    State.AudioSelection = 8;
}

void PutEditsElsewhere(GameState &State) {
    State.CaptureActive = true;
    State.CaptureKind = CaptureKindJoystick;
    State.CaptureKeyboardRow = 3;
    State.CaptureGamepadRow = 4;
    State.CaptureJoystickRow = 2;
    State.PendingKeyboard = {11, 12, 13, 14, 15};
    State.PendingGamepad = {4, 5, 6, 7, 8};
    State.PendingJoystick = {9, 8, 7, 6, 5};
    State.PendingControlsDevice = ControlsDeviceGamepad;
    State.PendingControlsValid = true;
    State.GraphicsSnapshot = {1024, 768, AspectClassic4x3, 85, false, false};
    State.GraphicsSnapshotValid = true;
    State.PendingMasterVolume = 35;
    State.PendingMusicVolume = 40;
    State.PendingSfxVolume = 45;
    State.PendingMusicEnabled = false;
    State.PendingSfxEnabled = false;
    State.PendingLanguage = "de";
    State.PendingAudioValid = true;
}

void PutRunInTheMiddle(GameState &State) {
    State.Score = 1234;
    State.HighScore = 98765;
    State.Stage = 3;
    State.PreviousStage = 2;
    State.GameTime = 61.5F;
    State.RoadScroll = 9000.5F;
    State.CurrentScrollSpeed = 150.0F;
    State.StageTransition = 0.5F;
    State.SpawnTimer = 0.7F;
    State.ObstacleSpawnTimer = 1.1F;
    State.ItemSpawnTimer = 3.3F;
    State.ReadyBanner = 0.4F;
    State.InvulnerabilityTimer = 0.6F;
    State.LaneMoveCooldown = 0.1F;
    State.AmmoRegenPause = 0.2F;
    State.AmmoMeter = 55.0F;
    State.Bombs = 1;
    State.FirstAidKits = 2;
    State.PlayerLane = 6;
    State.SpecialActive = true;
    State.SpecialTimer = 0.3F;
    State.InvincibilityPowerTimer = 2.0F;
    State.DualWeaponPowerTimer = 4.0F;
    State.Player.X = 711.0F;
    State.Player.Hp = 40;
    State.Player.Stocks = 4;
    State.Player.FireCooldown = 0.05F;
}

void FillRoad(GameState &State) {
    State.Bullets.emplace_back();
    State.EnemyBullets.emplace_back();
    State.Enemies.emplace_back();
    State.Obstacles.emplace_back();
    State.Items.emplace_back();
    State.Explosions.emplace_back();
}

} // namespace

GameState BusyGame(enum Screen Screen) {
    GameState state;
    StartNewRun(state);
    state.Screen = Screen;
    PutMenusElsewhere(state);
    PutEditsElsewhere(state);
    PutRunInTheMiddle(state);
    FillRoad(state);
    state.HasRunState = Screen != ScreenGameOver;
    state.SaveRequested = false;
    state.SaveDelay = 0.25F;
    Hear(state, SoundThatWaits);
    return state;
}

void Hear(GameState &State, SfxId Id) {
    State.PendingSounds.Ids.at(State.PendingSounds.Count++) = Id;
}

void KeyTest::Press(std::int32_t Scancode) {
    DispatchKey(State, nullptr, nullptr, Scancode);
}

void KeyTest::ExpectKeys(const Scancodes &Keys, const Change &Effect) const {
    for (const std::int32_t key : Keys) {
        GameState pressed = State;
        GameState expected = State;
        DispatchKey(pressed, nullptr, nullptr, key);
        Effect(expected);
        EXPECT_TRUE(SameState(pressed, expected)) << "scancode " << key;
    }
}

Sounds KeyTest::Heard() const {
    Sounds sounds = SoundsOf(State);
    EXPECT_FALSE(sounds.empty());
    EXPECT_EQ(sounds.front(), SoundThatWaits);
    sounds.erase(sounds.begin());
    return sounds;
}
