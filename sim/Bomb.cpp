#include "sim/Bomb.hpp"

#include "sim/Explosions.hpp"
#include "sim/Score.hpp"
#include "state/GameState.hpp"

#include <vector>

namespace {

/// For each thing that the bomb destroys, before stage scaling.
constexpr std::int32_t BonusPoints = 25;

template <typename Thing>
void DestroyAll(GameState &State, std::vector<Thing> &Things, const ExplosionLook &Look) {
    for (const Thing &thing : Things) {
        AddScore(State, thing.Score);
        AddScore(State, BonusPoints);
        AddExplosion(State, thing.X, thing.Y, Look);
    }
    Things.clear();
}

} // namespace

void ThrowBomb(GameState &State, const StepInput &StepInput) {
    if (!StepInput.Bomb || State.Bombs <= 0 || State.SpecialActive) {
        return;
    }
    State.SpecialActive = true;
    // NOT-BUGS: A bomb on an empty road is spent
    --State.Bombs;
    State.SpecialTimer = BombFlashSeconds;
    DestroyAll(State, State.Enemies, BombedEnemyLook);
    DestroyAll(State, State.Obstacles, BombedObstacleLook);
    State.EnemyBullets.clear();
    AddExplosion(State, State.Player.X, State.Player.Y, BombBlastLook);
    PushSound(State, SfxId::PlayerBomb);
}
