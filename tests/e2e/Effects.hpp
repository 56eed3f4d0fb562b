#pragma once

#include "tests/e2e/Recording.hpp"

#include <gtest/gtest.h>
#include <vector>

// The game's short sounds as they must be heard.

struct Effect {
    const char *Name;
    int Frequency;   // Hz
    float Amplitude; // 0 to 1, before the volumes
    int Duration;    // milliseconds
};

inline constexpr Effect MoveSound{"UiMove", 900, 0.16F, 45};
inline constexpr Effect ConfirmSound{"UiConfirm", 1220, 0.24F, 70};
inline constexpr Effect BackSound{"UiBack", 680, 0.22F, 85};
inline constexpr Effect FireSound{"PlayerFire", 1460, 0.20F, 45};
inline constexpr Effect BombSound{"PlayerBomb", 190, 0.45F, 180};
inline constexpr Effect HealSound{"PlayerHeal", 760, 0.24F, 130};
inline constexpr Effect HitSound{"PlayerHit", 240, 0.32F, 90};
inline constexpr Effect DeathSound{"PlayerDeath", 150, 0.48F, 260};
inline constexpr Effect EnemySound{"EnemyDown", 420, 0.28F, 95};
inline constexpr Effect ObstacleSound{"ObstacleDown", 300, 0.26F, 90};
inline constexpr Effect ItemSound{"Item", 1040, 0.24F, 110};

// Whether these effects, begun together, and nothing else are what is heard in a stretch: their shape sample
// by sample, on both channels alike, and the pitch, loudness and length of a single one by measurement too.
// Gain is what the volumes make of it, 0 to 1. Prints what it measures.
testing::AssertionResult Holds(
    const Sound &Heard, const Stretch &Place, const std::vector<Effect> &Effects, float Gain);
