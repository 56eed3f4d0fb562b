#pragma once

#include "state/Sounds.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

/// How a sound is synthesised.
struct SfxRecipe {
    SfxId Id;
    const char *Name;
    std::int32_t Frequency; ///< Hz
    float Amplitude;        ///< 0 to 1
    std::int64_t Duration;  ///< milliseconds
};

inline constexpr std::size_t SfxCount = static_cast<std::size_t>(SfxId::Item) + 1;

/// In the order of the ids.
inline constexpr std::array<SfxRecipe, SfxCount> SfxRecipes{{
    {SfxId::UiMove, "UiMove", 900, 0.16F, 45},
    {SfxId::UiConfirm, "UiConfirm", 1220, 0.24F, 70},
    {SfxId::UiBack, "UiBack", 680, 0.22F, 85},
    {SfxId::PlayerFire, "PlayerFire", 1460, 0.20F, 45},
    {SfxId::PlayerBomb, "PlayerBomb", 190, 0.45F, 180},
    {SfxId::PlayerHeal, "PlayerHeal", 760, 0.24F, 130},
    {SfxId::PlayerHit, "PlayerHit", 240, 0.32F, 90},
    {SfxId::PlayerDeath, "PlayerDeath", 150, 0.48F, 260},
    {SfxId::EnemyDown, "EnemyDown", 420, 0.28F, 95},
    {SfxId::ObstacleDown, "ObstacleDown", 300, 0.26F, 90},
    {SfxId::Item, "Item", 1040, 0.24F, 110},
}};

/// A sound's place in the table; SfxCount or more for a byte that is no sound.
constexpr std::size_t SfxIndex(SfxId Id) {
    return static_cast<std::size_t>(Id);
}

static_assert(std::ranges::all_of(SfxRecipes,
                  [](const SfxRecipe &Recipe) {
                      return &Recipe == &SfxRecipes[SfxIndex(Recipe.Id)];
                  }),
    "the rows stand in the order of the ids");

/// A sound's word for the log, "Unknown" for a byte that is no sound.
constexpr const char *SfxName(SfxId Id) {
    return SfxIndex(Id) < SfxCount ? SfxRecipes[SfxIndex(Id)].Name : "Unknown";
}
