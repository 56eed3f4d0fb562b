#include "sim/Bomb.hpp"

#include "sim/Bursts.hpp"
#include "sim/Score.hpp"
#include "state/GameState.hpp"

namespace {

constexpr std::int32_t BonusPoints = 25; ///< for each thing that the bomb takes, before stage scaling

/// Takes every thing of a list for its points and returns how many there were.
template <typename Thing> std::int64_t TakeAll(GameState &State, std::vector<Thing> &Things, Burst Occasion) {
    for (const Thing &thing : Things) {
        AddScore(State, ScoreForStage(thing.Score, State.Stage));
        AddBurst(State, Occasion, thing.X, thing.Y);
    }
    const auto count = static_cast<std::int64_t>(Things.size());
    Things.clear();
    return count;
}

} // namespace

void ThrowBomb(GameState &State, const StepInput &StepInput) {
    if (!StepInput.Bomb || State.Bombs <= 0 || State.SpecialActive) {
        return;
    }
    State.SpecialActive = true;
    --State.Bombs; // also on an empty road, and that is meant
    State.SpecialTimer = BombFlashSeconds;
    std::int64_t count = TakeAll(State, State.Enemies, Burst::BombedEnemy);
    count += TakeAll(State, State.Obstacles, Burst::BombedObstacle);
    State.EnemyBullets.clear();
    AddScore(State, count * ScoreForStage(BonusPoints, State.Stage));
    AddBurst(State, Burst::BombBlast, State.Player.X, State.Player.Y);
    PushSound(State, SfxId::PlayerBomb);
}
