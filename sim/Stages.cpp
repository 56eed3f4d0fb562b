#include "sim/Stages.hpp"

#include "sim/Random.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"
#include "state/Numbers.hpp"

#include <algorithm>
#include <array>

namespace {

struct StageRow {
    float TargetSpeed;
    StageTheme Theme;
};

constexpr std::array<StageRow, 9> StageTable{{
    {FirstStageSpeed, StageThemeEarth},
    {120.0F, StageThemeWater},
    {136.0F, StageThemeWater},
    {122.0F, StageThemeDirt},
    {146.0F, StageThemeDirt},
    {128.0F, StageThemeDirt},
    {156.0F, StageThemeDirt},
    {136.0F, StageThemeGrass},
    {166.0F, StageThemeGrass},
}};

const StageRow &RowOf(std::int32_t Stage) {
    return StageTable[static_cast<std::size_t>(std::max(Stage, 1) - 1) % StageTable.size()];
}

/// Every stage that is a multiple of five gives a spare life. None was given before stage 1.
void AddSpareLives(GameState &State, std::int32_t NewStage, std::int32_t OldStage) {
    const std::int32_t extra = NewStage / 5 - std::max(OldStage, 0) / 5;
    if (extra > 0) {
        State.Player.Stocks = std::min(State.Player.Stocks + extra, MaxStocks);
    }
}

} // namespace

float TargetScrollSpeed(std::int32_t Stage) {
    return RowOf(Stage).TargetSpeed;
}

bool IsWaterStage(std::int32_t Stage) {
    return StageThemeOf(Stage) == StageThemeWater;
}

StageTheme StageThemeOf(std::int32_t Stage) {
    return RowOf(Stage).Theme;
}

std::int32_t StageAt(float GameTime) {
    constexpr std::int32_t lastQuotient = 2147483646; // one less than the largest stage number
    return std::max(std::min(TruncateToInt(GameTime / StageSeconds), lastQuotient) + 1, 1);
}

void StartStage(GameState &State, std::int32_t NewStage) {
    const std::int32_t oldStage = State.Stage;
    State.PreviousStage = oldStage;
    State.Stage = NewStage;
    State.StageTransition = 0.0F;
    State.PreviousWaterFlowDirection = State.WaterFlowDirection;
    AddSpareLives(State, NewStage, oldStage);
    // From one water stage to the next the flow stays.
    if (IsWaterStage(NewStage) && !IsWaterStage(oldStage)) {
        State.WaterFlowDirection = RandomFlowDirection(State);
    }
}
