#include "sim/FirstAid.hpp"
#include "sim/NewRun.hpp"
#include "sim/Step.hpp"
#include "tests/sim/Bot.hpp"
#include "tests/store/SaveTest.hpp"

#include <bit>

namespace {

class SaveRoundTrip : public SaveTest {
protected:
    static void ExpectSameBits(
        const GameState &Loaded, const GameState &Saved, std::span<const SaveRow> Rows, std::size_t Index) {
        for (const SaveRow &row : Rows) {
            EXPECT_EQ(std::bit_cast<std::uint64_t>(row.Get(Loaded, Index)),
                std::bit_cast<std::uint64_t>(row.Get(Saved, Index)))
                << row.Key << ' ' << Index << ": " << row.Get(Loaded, Index) << " for "
                << row.Get(Saved, Index);
        }
    }

    static void ExpectSameList(const GameState &Loaded, const GameState &Saved, const SaveList &List) {
        SCOPED_TRACE(List.Key);
        ASSERT_EQ(List.Size(Loaded), List.Size(Saved));
        for (std::size_t i = 0; i < List.Size(Saved); ++i) {
            ExpectSameBits(Loaded, Saved, List.Rows, i);
        }
    }

    /// The records whole, so that a field that the tables do not know is compared too.
    static void ExpectSameRecords(const GameState &Loaded, const GameState &Saved) {
        EXPECT_EQ(Loaded.Player, Saved.Player);
        EXPECT_EQ(Loaded.Bullets, Saved.Bullets);
        EXPECT_EQ(Loaded.EnemyBullets, Saved.EnemyBullets);
        EXPECT_EQ(Loaded.Enemies, Saved.Enemies);
        EXPECT_EQ(Loaded.Obstacles, Saved.Obstacles);
        EXPECT_EQ(Loaded.Items, Saved.Items);
        EXPECT_EQ(Loaded.Explosions, Saved.Explosions);
    }

    /// Writes a state, loads it into a fresh one, and compares all that a save state holds, floats to the
    /// bit.
    static void ExpectBack(const GameState &Saved) {
        ASSERT_TRUE(WriteSaveState(Saved));
        GameState loaded;
        ASSERT_TRUE(LoadSaveState(loaded));
        EXPECT_EQ(loaded.HighScore, Saved.HighScore);
        ASSERT_EQ(loaded.HasRunState, Saved.HasRunState);
        if (Saved.HasRunState) {
            ExpectSameBits(loaded, Saved, RunRows, 0);
            ExpectSameBits(loaded, Saved, PlayerRows, 0);
            for (const SaveList &list : SaveLists) {
                ExpectSameList(loaded, Saved, list);
            }
            ExpectSameRecords(loaded, Saved);
        }
    }

    /// Drives a run and checks every few frames.
    static void Drive(std::uint32_t Seed, std::int32_t LastStage) {
        GameState state;
        state.Rng.seed(Seed);
        StartNewRun(state);
        const Bot bot(LastStage);
        std::size_t most = 0;
        for (int frame = 0; frame < 40000 && state.Screen == ScreenPlaying; ++frame) {
            if (bot.WantsFirstAid(state)) {
                UseFirstAid(state);
            }
            SimulationStep(state, 0.0166F, bot.Drive(state));
            most = std::max(most, state.Enemies.size() + state.Obstacles.size());
            if (frame % 97 == 0) {
                ExpectBack(state);
            }
        }
        EXPECT_GT(most, 4U);
        ExpectBack(state);
        EXPECT_EQ(state.Screen, ScreenGameOver);
    }
};

TEST_F(SaveRoundTrip, GivesAFreshRecordBack) {
    ExpectBack(GameState());
}

TEST_F(SaveRoundTrip, GivesEveryMomentOfARunBack) {
    Drive(1, 3);
    Drive(20260101, 8);
}

TEST_F(SaveRoundTrip, GivesARunOnAnotherRoadBack) {
    LogicalWidth = 1728;
    Drive(7, 2);
}

TEST_F(SaveRoundTrip, GivesTheLargestNumbersBack) {
    GameState state;
    state.HasRunState = true;
    state.HighScore = std::numeric_limits<std::int64_t>::max();
    state.Score = std::numeric_limits<std::int64_t>::max();
    state.Stage = std::numeric_limits<std::int32_t>::max();
    state.RoadScroll = std::numeric_limits<float>::max();
    state.GameTime = std::numeric_limits<float>::denorm_min();
    state.Bullets = {{-0.0F, -std::numeric_limits<float>::max(), 16777217.0F, 1e-30F}};
    ASSERT_TRUE(WriteSaveState(state));
    ASSERT_TRUE(LoadSaveState(State));
    EXPECT_EQ(State.Score, state.Score);
    EXPECT_EQ(State.HighScore, state.HighScore);
    EXPECT_EQ(State.Stage, state.Stage);
    EXPECT_EQ(State.RoadScroll, state.RoadScroll);
    EXPECT_EQ(State.GameTime, state.GameTime);
    EXPECT_EQ(State.Bullets, state.Bullets);
}

TEST_F(SaveRoundTrip, SnapsThingsToTheirLanes) {
    GameState state;
    state.HasRunState = true;
    state.PlayerLane = 2;
    state.Player.X = 600.5F; // between two lanes
    state.Enemies.resize(1);
    state.Enemies[0].Lane = 8;
    state.Enemies[0].X = 1.0F;
    ASSERT_TRUE(WriteSaveState(state));
    ASSERT_TRUE(LoadSaveState(State));
    EXPECT_EQ(State.Player.X, 575.0F);
    EXPECT_EQ(State.Enemies.at(0).X, 770.0F);
}

TEST_F(SaveRoundTrip, SaysTheSameBytesAgain) {
    GameState state;
    state.Rng.seed(5);
    StartNewRun(state);
    for (int frame = 0; frame < 900; ++frame) {
        SimulationStep(state, 0.0166F, Bot(9).Drive(state));
    }
    ASSERT_TRUE(WriteSaveState(state));
    const std::string first = Stored("SaveState.bin");
    ASSERT_TRUE(LoadSaveState(State));
    ASSERT_TRUE(WriteSaveState(State));
    EXPECT_EQ(Hex(Stored("SaveState.bin")), Hex(first));
}

} // namespace
