#include "sim/Step.hpp"

#include "sim/Bomb.hpp"
#include "sim/Bullets.hpp"
#include "sim/Contacts.hpp"
#include "sim/Death.hpp"
#include "sim/Enemies.hpp"
#include "sim/EnemySpawn.hpp"
#include "sim/Explosions.hpp"
#include "sim/Fire.hpp"
#include "sim/ItemSpawn.hpp"
#include "sim/Items.hpp"
#include "sim/LaneMove.hpp"
#include "sim/ObstacleSpawn.hpp"
#include "sim/Obstacles.hpp"
#include "sim/Road.hpp"
#include "sim/ShotHits.hpp"
#include "sim/Stages.hpp"
#include "sim/Timers.hpp"
#include "state/GameState.hpp"
#include "state/SaveRequest.hpp"

#include <algorithm>
#include <cfloat>
#include <limits>

// Each operation on floats has to round to a float, or the same run comes out differently than elsewhere: the
// old floating-point unit of 32-bit x86 keeps more digits in between. cmake/Compile.cmake chooses the newer.
static_assert(FLT_EVAL_METHOD == 0, "floats must be evaluated as floats, on 32-bit x86 by SSE2");
static_assert(std::numeric_limits<float>::is_iec559, "floats must round as IEEE 754 says");

namespace {

constexpr float SaveDelaySeconds = 0.8F;

void ChangeStage(GameState &State) {
    // Also downwards: a loaded run whose stage does not fit its time is corrected.
    const std::int32_t newStage = StageAt(State.GameTime);
    if (newStage != State.Stage) {
        StartStage(State, newStage);
    }
}

void UpdateHighScoreAndRequestSave(GameState &State) {
    State.HasRunState = true;
    State.HighScore = std::max(State.HighScore, State.Score);
    RequestSave(State, SaveDelaySeconds);
}

} // namespace

void SimulationStep(GameState &State, float DeltaSeconds, const StepInput &StepInput) {
    const float dt = DeltaSeconds;
    if (State.PlayerDying) {
        DyingStep(State, dt);
        return;
    }
    MoveRoad(State, dt);
    RunTimers(State, dt);
    MoveLane(State, StepInput);
    FireGun(State, StepInput);
    ThrowBomb(State, StepInput);
    SpawnEnemy(State, dt);
    SpawnTimedItem(State, dt);
    SpawnObstacle(State, dt);
    MoveBullets(State, dt);
    MoveEnemies(State, dt);
    MoveObstacles(State, dt);
    MoveEnemyBullets(State, dt);
    HitTargets(State);
    // From here on a life may be lost, the last one too; the step is run to its end all the same.
    MeetEnemies(State);
    MeetEnemyBullets(State);
    MeetObstacles(State);
    MoveItems(State, dt);
    PickUpItems(State);
    AgeExplosions(State, dt);
    RefillAmmo(State, dt);
    ChangeStage(State);
    UpdateHighScoreAndRequestSave(State);
}
