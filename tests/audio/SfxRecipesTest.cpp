#include "audio/SfxRecipes.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <type_traits>

namespace {

struct ExpectedSound {
    int Id;
    const char *Name;
    int Frequency;
    float Amplitude;
    int Milliseconds;
};

constexpr std::array<ExpectedSound, 11> Sounds{{
    {0, "UiMove", 900, 0.16F, 45},
    {1, "UiConfirm", 1220, 0.24F, 70},
    {2, "UiBack", 680, 0.22F, 85},
    {3, "PlayerFire", 1460, 0.20F, 45},
    {4, "PlayerBomb", 190, 0.45F, 180},
    {5, "PlayerHeal", 760, 0.24F, 130},
    {6, "PlayerHit", 240, 0.32F, 90},
    {7, "PlayerDeath", 150, 0.48F, 260},
    {8, "EnemyDown", 420, 0.28F, 95},
    {9, "ObstacleDown", 300, 0.26F, 90},
    {10, "Item", 1040, 0.24F, 110},
}};

static_assert(sizeof(SfxId) == 1);
static_assert(std::is_same_v<decltype(SfxRecipe::Frequency), std::int32_t>);
static_assert(std::is_same_v<decltype(SfxRecipe::Amplitude), float>);
static_assert(std::is_same_v<decltype(SfxRecipe::Duration), std::int64_t>);

} // namespace

TEST(SfxRecipes, HaveElevenRowsInTheOrderOfTheIds) {
    ASSERT_EQ(SfxRecipes.size(), Sounds.size());
    for (const ExpectedSound &sound : Sounds) {
        const SfxRecipe &recipe = SfxRecipes.at(static_cast<std::size_t>(sound.Id));
        EXPECT_EQ(static_cast<int>(recipe.Id), sound.Id) << sound.Name;
        EXPECT_EQ(recipe.Frequency, sound.Frequency) << sound.Name;
        EXPECT_EQ(recipe.Amplitude, sound.Amplitude) << sound.Name;
        EXPECT_EQ(recipe.Duration, sound.Milliseconds) << sound.Name;
    }
}

TEST(SfxName, IsTheWordOfEachSound) {
    for (const ExpectedSound &sound : Sounds) {
        EXPECT_STREQ(SfxName(static_cast<SfxId>(sound.Id)), sound.Name);
    }
}

TEST(SfxName, IsUnknownForEveryIdAboveTen) {
    for (int id = 11; id <= 255; ++id) {
        EXPECT_STREQ(SfxName(static_cast<SfxId>(id)), "Unknown") << id;
    }
}
