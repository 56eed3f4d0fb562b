#include "fuzz/support/Target.hpp"
#include "sim/Step.hpp"
#include "state/GameState.hpp"
#include "store/SaveState.hpp"
#include "store/ValueStream.hpp"

// The input as the save state: its tokens one by one, and as a run that is loaded, driven on for a frame and
// saved again.

namespace {

constexpr float FrameSeconds = 1.0F / 60.0F;

/// Reads tokens up to the first that is damaged, each as every type.
void WalkTokens(const std::string &Path) {
    ValueStreamReader reader;
    Demand(reader.Load(Path), "the stream was not loaded");
    for (ValueToken token = reader.NextToken(); token.Tag != ValueTag::None; token = reader.NextToken()) {
        std::string_view text;
        std::int32_t whole = 0;
        std::int64_t large = 0;
        float real = 0.0F;
        bool flag = false;
        TokenToKey(token, text);
        const bool isWhole = TokenToInt32(token, whole);
        Demand(!TokenToInt64(token, large) || isWhole, "a long number is not taken as a short one");
        Demand(!isWhole || (TokenToFloat(token, real) && TokenToBool(token, flag)),
            "a number is taken neither as a float nor as a switch");
    }
    Demand(reader.NextToken().Tag == ValueTag::None, "the reader recovered from damage");
}

bool IsWithin(std::int32_t Value, std::int32_t Lowest, std::int32_t Highest) {
    return Value >= Lowest && Value <= Highest;
}

void DemandRanges(const GameState &State) {
    Demand(State.HighScore >= 0 && State.Score >= 0, "a score is negative");
    Demand(State.Stage >= 1 && State.PreviousStage >= 1, "a stage is below 1");
    Demand(IsWithin(State.Bombs, 0, 3) && IsWithin(State.FirstAidKits, 0, 3), "too many bombs or kits");
    Demand(IsWithin(State.PlayerLane, 0, 8), "the player is on no lane");
    Demand(State.Player.MaxHp >= 1 && IsWithin(State.Player.Hp, 0, State.Player.MaxHp), "wrong health");
    Demand(IsWithin(State.Player.Stocks, 0, 5), "wrong number of lives");
    Demand(State.AmmoMeter >= 0.0F && State.AmmoMeter <= 100.0F, "wrong ammunition");
    Demand(State.CurrentScrollSpeed >= 10.0F, "the road stands");
    for (const Enemy &enemy : State.Enemies) {
        Demand(IsWithin(enemy.Lane, 0, 8), "an enemy is on no lane");
    }
    for (const Obstacle &obstacle : State.Obstacles) {
        Demand(IsWithin(obstacle.Lane, 0, 8) && IsWithin(obstacle.Type, 0, 2), "wrong obstacle");
    }
    for (const Item &item : State.Items) {
        Demand(IsWithin(item.Lane, 0, 8) && IsWithin(item.Type, 0, 3), "wrong item");
    }
}

/// What is loaded is saved and loaded without a change.
void DemandRoundTrip(const GameState &State, const std::filesystem::path &Path) {
    Demand(WriteSaveState(State), "the loaded state was not saved");
    const std::string saved = ReadBytes(Path);
    GameState again;
    Demand(LoadSaveState(again), "the saved state was not loaded");
    Demand(WriteSaveState(again), "the state loaded again was not saved");
    Demand(ReadBytes(Path) == saved, "the state changed on its way through the file");
}

/// One frame with the controls held that the length of the input picks.
void DriveOn(GameState &State, std::size_t Length) {
    const StepInput held{(Length & 1U) != 0, (Length & 2U) != 0, (Length & 4U) != 0, (Length & 8U) != 0};
    SimulationStep(State, FrameSeconds, held);
    Demand(WriteSaveState(State), "the driven run was not saved");
    GameState again;
    Demand(LoadSaveState(again), "the driven run was not loaded");
    DemandRanges(again);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Data, std::size_t Size) {
    const std::filesystem::path path = Home().FilePath(SaveStateFileName);
    WriteBytes(path, TextOf({Data, Size}));
    WalkTokens(path.string());
    GameState state;
    if (!LoadSaveState(state)) {
        Demand(!state.HasRunState && state.HighScore == 0, "a file that is no save left something behind");
        return 0;
    }
    DemandRanges(state);
    DemandRoundTrip(state, path);
    if (state.HasRunState) {
        DriveOn(state, Size);
    }
    return 0;
}
