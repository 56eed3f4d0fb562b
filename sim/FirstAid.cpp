#include "sim/FirstAid.hpp"

#include "sim/Explosions.hpp"
#include "state/GameState.hpp"

#include <algorithm>

namespace {

constexpr std::int32_t FirstAidHp = 35;

} // namespace

void UseFirstAid(GameState &State) {
    Player &player = State.Player;
    if (State.Screen != ScreenPlaying || State.PlayerDying) {
        return;
    }
    if (State.FirstAidKits < 1 || player.Hp >= player.MaxHp) {
        return;
    }
    // Nothing is added past MaxHp, which in a damaged file may be the largest number.
    player.Hp += std::min(FirstAidHp, player.MaxHp - player.Hp);
    --State.FirstAidKits;
    AddExplosion(State, player.X, player.Y, FirstAidLook);
    PushSound(State, SfxId::PlayerHeal);
}
