#include "sim/NewRun.hpp"

#include "sim/Lanes.hpp"
#include "sim/Random.hpp"
#include "sim/Stages.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"
#include "state/SaveRequest.hpp"

namespace {

constexpr float ReadyBannerSeconds = 2.0F;

void ResetRoad(GameState &State) {
    State.Stage = 1;
    State.PreviousStage = 1;
    State.WaterFlowDirection = RandomFlowDirection(State);
    State.PreviousWaterFlowDirection = State.WaterFlowDirection;
    State.GameTime = 0.0F;
    State.RoadScroll = 0.0F;
    State.CurrentScrollSpeed = TargetScrollSpeed(1);
    State.StageTransition = 1.0F;
    State.SpawnTimer = 0.0F; // the first enemy comes on the first step
    State.ObstacleSpawnTimer = FirstObstacleSeconds;
    State.ItemSpawnTimer = FirstItemSeconds;
}

void ResetPlayer(GameState &State) {
    State.ReadyBanner = ReadyBannerSeconds;
    State.InvulnerabilityTimer = 0.0F;
    State.LaneMoveCooldown = 0.0F;
    State.AmmoRegenPause = 0.0F;
    State.AmmoMeter = MaxAmmo;
    State.Player = {.X = LaneCenterX(MiddleLane)};
    State.Bombs = StartBombs;
    State.FirstAidKits = StartFirstAidKits;
    State.PlayerLane = MiddleLane;
    State.SpecialActive = false;
    State.SpecialTimer = 0.0F;
    State.InvincibilityPowerTimer = 0.0F;
    State.DualWeaponPowerTimer = 0.0F;
    State.PlayerDying = false;
    State.DeathTimer = 0.0F;
}

void ResetMenus(GameState &State) {
    State.PauseSelection = 0;
    State.OptionsReturnScreen = ScreenMainMenu;
    State.HelpReturnScreen = ScreenMainMenu;
}

void ClearLists(GameState &State) {
    State.Bullets.clear();
    State.EnemyBullets.clear();
    State.Enemies.clear();
    State.Obstacles.clear();
    State.Items.clear();
    State.Explosions.clear();
}

} // namespace

void StartNewRun(GameState &State) {
    State.Score = 0;
    State.Screen = ScreenPlaying;
    ResetRoad(State);
    ResetPlayer(State);
    ResetMenus(State);
    ClearLists(State);
    State.HasRunState = true;
    State.PendingSounds.Count = 0;
    RequestSave(State, 0.0F);
}
