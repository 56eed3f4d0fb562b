#include "tests/e2e/PreparedRun.hpp"

#include "store/SaveState.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tools/desktop/FileText.hpp"

#include <stdexcept>
#include <string>

namespace {

constexpr float Never = 1000.0F;
constexpr float MiddleOfTheRoad = 640.0F;

std::string SavedText(const GameState &Run) {
    const TemporaryHome home;
    if (!WriteSaveState(Run)) {
        throw std::runtime_error("the run cannot be saved");
    }
    return TextOf(home.FilePath(SaveStateFileName)).value();
}

} // namespace

GameState QuietRun() {
    GameState run;
    run.HasRunState = true;
    run.SpawnTimer = Never;
    run.ObstacleSpawnTimer = Never;
    run.ItemSpawnTimer = Never;
    return run;
}

void ShootDownwards(GameState &Run) {
    Run.EnemyBullets.push_back(
        {.X = MiddleOfTheRoad, .Y = 350.0F, .Speed = 190.0F, .Radius = 2.0F, .Damage = 10});
}

void ShootEnemy(GameState &Run) {
    Run.Bullets.push_back({.X = MiddleOfTheRoad, .Y = 640.0F, .Speed = 430.0F, .Radius = 2.0F});
    Run.Enemies.push_back(
        {.Y = 40.0F, .Speed = 100.0F, .AiTimer = Never, .FireCooldown = Never, .Color = {}});
}

void PutRun(const PreparedHome &Home, const GameState &Run) {
    Home.Put(SaveStateFileName, SavedText(Run));
}
