#include "sim/Bomb.hpp"

#include "sim/Explosions.hpp"
#include "sim/Score.hpp"
#include "state/GameState.hpp"

namespace {

constexpr float FlashSeconds = 0.65F;
constexpr std::int32_t BonusPoints = 25; ///< for each thing that the bomb takes, before stage scaling

struct Burst {
    float Life;
    float MaxRadius;
    struct Color Color;
};

constexpr Burst EnemyBurst{0.55F, 26.0F, {0xFF, 0xE6, 0x78, 0xEB}};
constexpr Burst ObstacleBurst{0.5F, 22.0F, {0xFF, 0xD2, 0x78, 0xEB}};
constexpr Burst BlastBurst{0.7F, 200.0F, {0xFF, 0xF5, 0xB4, 0xAF}};

void AddBurst(GameState &State, float X, float Y, const Burst &Burst) {
    AddExplosion(State, X, Y, Burst.Life, Burst.MaxRadius, Burst.Color);
}

/// Takes every thing of a list for its points and returns how many there were.
template <typename Thing>
std::int64_t TakeAll(GameState &State, std::vector<Thing> &Things, const Burst &Burst) {
    for (const Thing &thing : Things) {
        AddScore(State, ScoreForStage(thing.Score, State.Stage));
        AddBurst(State, thing.X, thing.Y, Burst);
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
    --State.Bombs;
    State.SpecialTimer = FlashSeconds;
    std::int64_t count = TakeAll(State, State.Enemies, EnemyBurst);
    count += TakeAll(State, State.Obstacles, ObstacleBurst);
    State.EnemyBullets.clear();
    AddScore(State, count * ScoreForStage(BonusPoints, State.Stage));
    AddBurst(State, State.Player.X, State.Player.Y, BlastBurst);
    PushSound(State, SfxId::PlayerBomb);
}
