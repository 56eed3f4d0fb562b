#pragma once

#include "state/GameState.hpp"

#include <vector>

using Sounds = std::vector<SfxId>;

/// The sounds that wait, in the order in which they were asked for.
inline Sounds SoundsOf(const GameState &State) {
    const SoundQueue &queue = State.PendingSounds;
    return {queue.Ids.begin(), queue.Ids.begin() + static_cast<std::ptrdiff_t>(queue.Count)};
}
