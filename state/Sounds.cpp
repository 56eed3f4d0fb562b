#include "state/Sounds.hpp"

#include "state/GameState.hpp"

void PushSound(GameState &State, SfxId Id) {
    SoundQueue &queue = State.PendingSounds;
    if (queue.Count == SoundQueue::Capacity) {
        return;
    }
    queue.Ids[queue.Count] = Id;
    ++queue.Count;
}
