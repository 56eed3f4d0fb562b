#include "sim/Difficulty.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

struct WorkedStage {
    std::int32_t Stage;
    float EnemyFactor;
    float ObstacleFactor;
    float LightSpeed;
    float HeavySpeed;
    float ObstacleSpeedThen;
    float ItemSpeedThen;
    float ShotSpeed;
    float Reload;
};

constexpr std::array<WorkedStage, 5> WorkedStages{{
    {1, 1.0F, 3.04F, 130.0F, 95.0F, 95.0F, 87.0F, 176.0F, 1.0F},
    {3, 0.91F, 2.72F, 142.0F, 105.0F, 101.0F, 97.0F, 188.0F, 0.95F},
    {6, 0.775F, 2.24F, 160.0F, 120.0F, 110.0F, 112.0F, 206.0F, 0.88F},
    {10, 0.595F, 1.6F, 184.0F, 140.0F, 122.0F, 132.0F, 230.0F, 0.88F},
    {14, 0.45F, 1.45F, 208.0F, 160.0F, 134.0F, 152.0F, 254.0F, 0.88F},
}};

constexpr float Close = 0.00001F;

} // namespace

TEST(Difficulty, TheIntervalsShortenAsWorkedOut) {
    for (const WorkedStage &row : WorkedStages) {
        SCOPED_TRACE("stage " + std::to_string(row.Stage));
        EXPECT_NEAR(EnemyIntervalFactor(row.Stage), row.EnemyFactor, Close);
        EXPECT_NEAR(ObstacleIntervalFactor(row.Stage), row.ObstacleFactor, Close);
        EXPECT_NEAR(ReloadFactor(row.Stage), row.Reload, Close);
    }
}

TEST(Difficulty, TheSpeedsRiseAsWorkedOut) {
    for (const WorkedStage &row : WorkedStages) {
        SCOPED_TRACE("stage " + std::to_string(row.Stage));
        EXPECT_EQ(LightEnemySpeed(row.Stage), row.LightSpeed);
        EXPECT_EQ(HeavyEnemySpeed(row.Stage), row.HeavySpeed);
        EXPECT_EQ(ObstacleSpeed(row.Stage), row.ObstacleSpeedThen);
        EXPECT_EQ(ItemSpeed(row.Stage), row.ItemSpeedThen);
        EXPECT_EQ(EnemyShotSpeed(row.Stage), row.ShotSpeed);
    }
}

TEST(Difficulty, TheEnemyIntervalStopsShorteningAtStageFourteen) {
    EXPECT_NEAR(EnemyIntervalFactor(2), 0.955F, Close);
    EXPECT_NEAR(EnemyIntervalFactor(13), 0.46F, Close);
    EXPECT_EQ(EnemyIntervalFactor(14), 0.45F);
    EXPECT_EQ(EnemyIntervalFactor(15), 0.45F);
    EXPECT_EQ(EnemyIntervalFactor(1000), 0.45F);
}

TEST(Difficulty, TheObstacleIntervalStopsShorteningAtStageEleven) {
    EXPECT_NEAR(ObstacleIntervalFactor(2), 2.88F, Close);
    EXPECT_NEAR(ObstacleIntervalFactor(10), 1.6F, Close);
    EXPECT_EQ(ObstacleIntervalFactor(11), 1.45F);
    EXPECT_EQ(ObstacleIntervalFactor(12), 1.45F);
    EXPECT_EQ(ObstacleIntervalFactor(1000), 1.45F);
}

TEST(Difficulty, TheReloadStopsShorteningAtStageSix) {
    EXPECT_NEAR(ReloadFactor(2), 0.975F, Close);
    EXPECT_NEAR(ReloadFactor(5), 0.9F, Close);
    EXPECT_EQ(ReloadFactor(6), 0.88F);
    EXPECT_EQ(ReloadFactor(7), 0.88F);
    EXPECT_EQ(ReloadFactor(1000), 0.88F);
}

TEST(Difficulty, TheSpeedsNeverStopRising) {
    EXPECT_EQ(LightEnemySpeed(101), 730.0F);
    EXPECT_EQ(HeavyEnemySpeed(101), 595.0F);
    EXPECT_EQ(ObstacleSpeed(101), 395.0F);
    EXPECT_EQ(ItemSpeed(101), 587.0F);
    EXPECT_EQ(EnemyShotSpeed(101), 776.0F);
}
