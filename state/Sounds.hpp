#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

struct GameState;

/// The volumes that the game starts with, in percent.
inline constexpr std::int32_t DefaultMasterVolume = 100;
inline constexpr std::int32_t DefaultMusicVolume = 50;
inline constexpr std::int32_t DefaultSfxVolume = 75;
inline constexpr std::int32_t MaxVolume = 100;

/// The synthesised sounds.
enum class SfxId : std::uint8_t {
    UiMove = 0,
    UiConfirm = 1,
    UiBack = 2,
    PlayerFire = 3,
    PlayerBomb = 4,
    PlayerHeal = 5,
    PlayerHit = 6,
    PlayerDeath = 7,
    EnemyDown = 8,
    ObstacleDown = 9,
    Item = 10,
};

/// The sounds asked for in this frame, in order: the first Count of Ids.
struct SoundQueue {
    static constexpr std::size_t Capacity = 64;

    std::array<SfxId, Capacity> Ids{};
    std::size_t Count = 0;

    bool operator==(const SoundQueue &) const = default;
};

/// Asks for a sound in this frame. A 65th request of a frame is dropped silently.
void PushSound(GameState &State, SfxId Id);
