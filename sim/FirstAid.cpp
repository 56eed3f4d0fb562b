#include "sim/FirstAid.hpp"

#include "sim/Bursts.hpp"
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
    player.Hp += std::min(FirstAidHp, player.MaxHp - player.Hp); // a file may hold any MaxHp: no sum above it
    --State.FirstAidKits;
    AddBurst(State, Burst::FirstAid, player.X, player.Y);
    PushSound(State, SfxId::PlayerHeal);
}
