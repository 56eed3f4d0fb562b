#include "sim/Step.hpp"
#include "tests/store/SaveTest.hpp"
#include "tests/support/watch/SdlWatch.hpp"

namespace {

using Entries = std::vector<StreamEntry>;
using Lines = std::vector<std::string>;

/// A screenful of things that no loading of a save state may touch, and a run that it has to replace.
GameState BusyState() {
    GameState state;
    state.Score = 55;
    state.HighScore = 66;
    state.HasRunState = true;
    state.SaveRequested = true;
    state.SaveDelay = 0.5F;
    state.PlayerDying = true;
    state.DeathTimer = 0.4F;
    state.PauseSelection = 2;
    state.OptionsReturnScreen = ScreenPaused;
    state.HelpReturnScreen = ScreenPaused;
    state.Screen = ScreenGameOver;
    state.Bullets.resize(3);
    state.Enemies.resize(4);
    state.Explosions.resize(5);
    state.Language = "de";
    state.MusicVolume = 12;
    state.MainMenuSelection = 3;
    state.Rng.seed(99);
    return state;
}

class LoadSaveStateTest : public SaveTest {
protected:
    /// Loads a root object with these entries into a busy record.
    bool LoadOver(const Entries &Root) {
        Store("SaveState.bin", ObjectBytes(Root));
        State = BusyState();
        return LoadSaveState(State);
    }

    void ExpectNothingLoaded() {
        EXPECT_EQ(State.HighScore, 0);
        EXPECT_FALSE(State.HasRunState);
        EXPECT_FALSE(State.SaveRequested);
        EXPECT_EQ(State.SaveDelay, 0.0F);
        EXPECT_EQ(State.Screen, ScreenGameOver);
        EXPECT_EQ(State.Enemies.size(), 4U);
    }

    void ExpectHighScoreAlone(std::int64_t HighScore) const {
        EXPECT_EQ(State.HighScore, HighScore);
        EXPECT_FALSE(State.HasRunState);
        EXPECT_FALSE(State.SaveRequested);
        EXPECT_EQ(State.Screen, ScreenGameOver);
    }
};

const StreamEntry Version{"FormatVersion", Int32Token(1)};
const StreamEntry HighScore{"HighScore", Int64Token(777)};
const StreamEntry WithRun{"HasRunState", BoolToken(1)};
const StreamEntry WithoutRun{"HasRunState", BoolToken(0)};

StreamEntry SavedRun() {
    return {"RunState", ObjectBytes(SampleRun())};
}

TEST_F(LoadSaveStateTest, IsFalseWithoutAFile) {
    State = BusyState();
    EXPECT_FALSE(LoadSaveState(State));
    ExpectNothingLoaded();
    EXPECT_EQ(Watch.Delay.Count(), 0);
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(LoadSaveStateTest, IsFalseForAnEmptyFile) {
    Store("SaveState.bin", "");
    State = BusyState();
    EXPECT_FALSE(LoadSaveState(State));
    ExpectNothingLoaded();
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
}

TEST_F(LoadSaveStateTest, IsFalseUnlessTheFileBeginsWithAnObject) {
    const std::string save = SaveBytes(SampleRun());
    for (const std::string &first : {EndToken, BoolToken(1), Int32Token(1), UInt32Token(1), Int64Token(1),
             UInt64Token(1), DoubleToken(1), TextToken("x"), ArrayToken, std::string(1, '\0'),
             std::string("\x0B"), std::string("\xFF"), std::string("\xEF\xBB\xBF"), std::string("{")}) {
        Store("SaveState.bin", first + save);
        State = BusyState();
        EXPECT_FALSE(LoadSaveState(State)) << Hex(first);
        ExpectNothingLoaded();
        EXPECT_EQ(Names(), Lines{"SaveState.bin"});
    }
}

TEST_F(LoadSaveStateTest, SetsTheSavingAsideWhateverTheFileHolds) {
    EXPECT_TRUE(LoadOver({Version, HighScore, WithRun, SavedRun()}));
    EXPECT_FALSE(State.SaveRequested);
    EXPECT_EQ(State.SaveDelay, 0.0F);
}

TEST_F(LoadSaveStateTest, BringsARunToTheMainMenu) {
    EXPECT_TRUE(LoadOver({Version, HighScore, WithRun, SavedRun()}));
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.HighScore, 777);
    ExpectSampleRun();
    EXPECT_FALSE(State.PlayerDying);
    EXPECT_EQ(State.DeathTimer, 0.0F);
    EXPECT_EQ(State.PauseSelection, 0);
    EXPECT_EQ(State.OptionsReturnScreen, ScreenMainMenu);
    EXPECT_EQ(State.HelpReturnScreen, ScreenMainMenu);
    EXPECT_EQ(State.Screen, ScreenMainMenu);
}

TEST_F(LoadSaveStateTest, LeavesTheRestOfTheRecordAlone) {
    EXPECT_TRUE(LoadOver({Version, HighScore, WithRun, SavedRun()}));
    EXPECT_EQ(State.Language, "de");
    EXPECT_EQ(State.MusicVolume, 12);
    EXPECT_EQ(State.MainMenuSelection, 3U);
    EXPECT_EQ(State.Rng, std::mt19937(99));
}

TEST_F(LoadSaveStateTest, TakesAllOfARunFromTheDefaultsThatTheFileLacks) {
    EXPECT_TRUE(LoadOver({HighScore, WithRun, {"RunState", ObjectBytes({})}}));
    EXPECT_TRUE(State.HasRunState);
    for (const SaveRow &row : RunRows) {
        EXPECT_EQ(row.Get(State, 0), AsHeld(row.Kind, row.Default)) << row.Key;
    }
    for (const SaveRow &row : PlayerRows) {
        EXPECT_EQ(row.Get(State, 0), row.Default) << row.Key;
    }
    for (const SaveList &list : SaveLists) {
        EXPECT_EQ(list.Size(State), 0U) << list.Key;
    }
}

TEST_F(LoadSaveStateTest, KeepsTheHighScoreOfAFileWithoutARun) {
    EXPECT_TRUE(LoadOver({Version, HighScore, WithoutRun, {"RunState", ObjectBytes({})}}));
    ExpectHighScoreAlone(777);
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
}

TEST_F(LoadSaveStateTest, TakesNoRunThatTheFileDisowns) {
    EXPECT_TRUE(LoadOver({Version, HighScore, WithoutRun, SavedRun()}));
    ExpectHighScoreAlone(777);
    EXPECT_EQ(State.Score, 55);
    EXPECT_EQ(State.Enemies.size(), 4U);
    EXPECT_TRUE(LoadOver({Version, HighScore, SavedRun()}));
    ExpectHighScoreAlone(777);
}

TEST_F(LoadSaveStateTest, TakesNoRunThatTheFileLacks) {
    EXPECT_TRUE(LoadOver({Version, HighScore, WithRun}));
    ExpectHighScoreAlone(777);
    for (const std::string &wrong :
        {Int32Token(1), BoolToken(1), TextToken("run"), ArrayBytes({SavedRun().Value})}) {
        EXPECT_TRUE(LoadOver({Version, HighScore, WithRun, {"RunState", wrong}}));
        ExpectHighScoreAlone(777);
    }
}

TEST_F(LoadSaveStateTest, LosesARunThatIsFollowedByAWrongOne) {
    EXPECT_TRUE(LoadOver({HighScore, WithRun, SavedRun(), {"RunState", Int32Token(1)}}));
    ExpectHighScoreAlone(777);
    EXPECT_TRUE(LoadOver({HighScore, WithRun, {"RunState", Int32Token(1)}, SavedRun()}));
    EXPECT_TRUE(State.HasRunState);
    ExpectSampleRun();
}

TEST_F(LoadSaveStateTest, TakesTheLaterOfTwoRootKeys) {
    EXPECT_TRUE(LoadOver({HighScore, {"HighScore", Int64Token(5)}, WithRun, WithoutRun, SavedRun()}));
    ExpectHighScoreAlone(5);
    EXPECT_TRUE(LoadOver({HighScore, {"HighScore", Int64Token(5)}, WithoutRun, SavedRun(), WithRun}));
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.HighScore, 5);
}

TEST_F(LoadSaveStateTest, TakesAHighScoreOfWholeNumbersAlone) {
    const std::vector<std::pair<std::string, std::int64_t>> rows{{Int64Token(5), 5}, {Int64Token(-5), 0},
        {Int64Token(0x7FFFFFFFFFFFFFFF), 0x7FFFFFFFFFFFFFFF}, {UInt64Token(6), 6},
        {UInt64Token(0xFFFFFFFFFFFFFFFF), 0}, {Int32Token(7), 7}, {Int32Token(-7), 0},
        {UInt32Token(0xFFFFFFFF), 4294967295}, {DoubleToken(5), 0}, {BoolToken(1), 0}, {TextToken("5"), 0},
        {ArrayBytes({Int64Token(5)}), 0}, {ObjectBytes({{"HighScore", Int64Token(5)}}), 0}};
    for (const auto &[token, expected] : rows) {
        EXPECT_TRUE(LoadOver({{"HighScore", token}, WithoutRun}));
        ExpectHighScoreAlone(expected);
    }
    EXPECT_TRUE(LoadOver({HighScore, {"HighScore", TextToken("5")}, {"HighScore", DoubleToken(5)}}));
    ExpectHighScoreAlone(777);
}

TEST_F(LoadSaveStateTest, TakesANumberForTheFlag) {
    const std::vector<std::pair<std::string, bool>> rows{{BoolToken(1), true}, {BoolToken(0), false},
        {Int32Token(2), true}, {Int32Token(0), false}, {DoubleToken(1), true}, {DoubleToken(0.2), false},
        {TextToken("1"), false}, {ArrayBytes({}), false}, {ObjectBytes({}), false}};
    for (const auto &[token, expected] : rows) {
        EXPECT_TRUE(LoadOver({{"HasRunState", token}, SavedRun()}));
        EXPECT_EQ(State.HasRunState, expected) << Hex(token);
    }
}

TEST_F(LoadSaveStateTest, NeverLooksAtTheVersion) {
    for (const std::string &version : {Int32Token(0), Int32Token(2), Int32Token(-1), TextToken("1"),
             ObjectBytes({}), ArrayBytes({SavedRun().Value})}) {
        EXPECT_TRUE(LoadOver({{"FormatVersion", version}, HighScore, WithRun, SavedRun()}));
        EXPECT_TRUE(State.HasRunState);
        ExpectSampleRun();
    }
    EXPECT_TRUE(LoadOver({HighScore, WithRun, SavedRun()}));
    EXPECT_TRUE(State.HasRunState);
}

TEST_F(LoadSaveStateTest, PassesOverUnknownRootKeys) {
    EXPECT_TRUE(LoadOver({{"Later", ObjectBytes({{"HighScore", Int64Token(1)}, SavedRun()})}, HighScore,
        {"Score", Int64Token(4)}, WithRun, {"Stage", Int32Token(9)}, SavedRun(), {"highscore", Int64Token(1)},
        {"HighScore ", Int64Token(1)}}));
    EXPECT_EQ(State.HighScore, 777);
    ExpectSampleRun();
}

TEST_F(LoadSaveStateTest, TakesNothingBehindTheObject) {
    Store("SaveState.bin", ObjectBytes({HighScore}) + ObjectBytes({{"HighScore", Int64Token(1)}}) + "\xFF");
    EXPECT_TRUE(LoadSaveState(State));
    EXPECT_EQ(State.HighScore, 777);
}

TEST_F(LoadSaveStateTest, TakesAnEmptyObject) {
    EXPECT_TRUE(LoadOver({}));
    ExpectHighScoreAlone(0);
}

TEST_F(LoadSaveStateTest, PutsThingsOnTheLanesOfTheRoadAsItIsNow) {
    LogicalWidth = 960; // 160 less on either side
    EXPECT_TRUE(Load(SaveBytes(SampleRun())));
    EXPECT_EQ(State.Player.X, 545.0F);
    EXPECT_EQ(State.Enemies.at(0).X, 383.0F);
    EXPECT_EQ(State.Obstacles.at(0).X, 610.0F);
    EXPECT_EQ(State.Items.at(0).X, 350.0F);
    EXPECT_EQ(State.Bullets.at(0).X, 611.1F);
    EXPECT_EQ(State.EnemyBullets.at(0).X, 612.2F);
    EXPECT_EQ(State.Explosions.at(0).X, 613.3F);
}

TEST_F(LoadSaveStateTest, TakesNoHeedOfTheXOfWhatBelongsToALane) {
    const std::string far = DoubleToken(-5000);
    Entries run = With(SampleRun(), "Player", ObjectBytes(With(SampleEntries(PlayerRows), "X", far)));
    run = With(run, "Enemies", ArrayBytes({ObjectBytes(With(SampleEntries(EnemyList), "X", far))}));
    run = With(run, "Obstacles", ArrayBytes({ObjectBytes(With(SampleEntries(ObstacleList), "X", far))}));
    run = With(run, "Items", ArrayBytes({ObjectBytes(With(SampleEntries(ItemList), "X", far))}));
    LoadRun(run);
    ExpectSampleRun();
}

TEST_F(LoadSaveStateTest, TakesNothingFromALeftStagingFile) {
    Store(".SaveState.bin.tmp", SaveBytes(SampleRun()));
    EXPECT_FALSE(LoadSaveState(State));
    EXPECT_EQ(State.HighScore, 0);
    EXPECT_EQ(Names(), Lines{});
    Store(".SaveState.bin.tmp", SaveBytes(SampleRun()));
    Store("SaveState.bin", ObjectBytes({HighScore}));
    EXPECT_TRUE(LoadSaveState(State));
    EXPECT_EQ(State.HighScore, 777);
    EXPECT_FALSE(State.HasRunState);
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
}

// Values that a damaged or foreign file may hold.

TEST_F(LoadSaveStateTest, MakesStageZeroTheFirst) {
    LoadRun(With(SampleRun(), "Stage", Int32Token(0)));
    EXPECT_EQ(State.Stage, 1);
}

TEST_F(LoadSaveStateTest, MakesNineBombsThree) {
    LoadRun(With(SampleRun(), "Bombs", Int32Token(9)));
    EXPECT_EQ(State.Bombs, 3);
}

TEST_F(LoadSaveStateTest, MakesNegativeStocksNone) {
    LoadRun(With(SampleRun(), "Player", ObjectBytes({{"Stocks", Int32Token(-1)}})));
    EXPECT_EQ(State.Player.Stocks, 0);
}

TEST_F(LoadSaveStateTest, MakesAnItemOfTypeSevenOneOfTypeThree) {
    LoadRun(With(SampleRun(), "Items", ArrayBytes({ObjectBytes({{"Type", Int32Token(7)}})})));
    EXPECT_EQ(State.Items.at(0).Type, 3);
}

TEST_F(LoadSaveStateTest, PutsAnEnemyWithoutALaneInTheMiddle) {
    LoadRun(
        With(SampleRun(), "Enemies", ArrayBytes({ObjectBytes(Without(SampleEntries(EnemyList), "Lane"))})));
    EXPECT_EQ(State.Enemies.at(0).Lane, 4);
    EXPECT_EQ(State.Enemies.at(0).X, 640.0F);
}

TEST_F(LoadSaveStateTest, CutsHpToMaxHpWhicheverComesFirst) {
    LoadRun(With(SampleRun(), "Player", ObjectBytes({{"Hp", Int32Token(90)}, {"MaxHp", Int32Token(50)}})));
    EXPECT_EQ(State.Player.Hp, 50);
    LoadRun(With(SampleRun(), "Player", ObjectBytes({{"MaxHp", Int32Token(50)}, {"Hp", Int32Token(90)}})));
    EXPECT_EQ(State.Player.Hp, 50);
    LoadRun(With(SampleRun(), "Player", ObjectBytes({{"MaxHp", Int32Token(-3)}, {"Hp", Int32Token(90)}})));
    EXPECT_EQ(State.Player.MaxHp, 1);
    EXPECT_EQ(State.Player.Hp, 1);
    LoadRun(With(SampleRun(), "Player", ObjectBytes({{"MaxHp", Int32Token(200)}, {"Hp", Int32Token(150)}})));
    EXPECT_EQ(State.Player.Hp, 150);
}

TEST_F(LoadSaveStateTest, LetsAStandingRoadEaseBackToItsSpeed) {
    LoadRun(With(With(With(SampleRun(), "CurrentScrollSpeed", DoubleToken(0)), "Stage", Int32Token(1)),
        "GameTime", DoubleToken(5)));
    EXPECT_EQ(State.CurrentScrollSpeed, 10.0F);
    State.Screen = ScreenPlaying;
    float before = State.CurrentScrollSpeed;
    for (int i = 0; i < 30; ++i) {
        SimulationStep(State, 0.016F, {});
        EXPECT_GT(State.CurrentScrollSpeed, before);
        EXPECT_LE(State.CurrentScrollSpeed, 120.0F);
        before = State.CurrentScrollSpeed;
    }
}

TEST_F(LoadSaveStateTest, LetsTheFirstStepCorrectAStageThatDoesNotFitTheTime) {
    LoadRun(With(With(SampleRun(), "Stage", Int32Token(9)), "GameTime", DoubleToken(60)));
    EXPECT_EQ(State.Stage, 9);
    State.Screen = ScreenPlaying;
    SimulationStep(State, 0.016F, {});
    EXPECT_EQ(State.Stage, 3);
}

TEST_F(LoadSaveStateTest, BringsADyingPlayerBackWithoutHpUntilTheNextHit) {
    State.HasRunState = true;
    State.PlayerDying = true;
    State.DeathTimer = 0.5F;
    State.Player.Hp = 0;
    State.Player.Stocks = 0;
    State.SpawnTimer = 1000.0F;
    State.ObstacleSpawnTimer = 1000.0F;
    State.ItemSpawnTimer = 1000.0F;
    EXPECT_TRUE(WriteSaveState(State));
    State = {};
    EXPECT_TRUE(LoadSaveState(State));
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.Player.Hp, 0);
    EXPECT_FALSE(State.PlayerDying);
    State.Screen = ScreenPlaying;
    for (int i = 0; i < 100; ++i) {
        SimulationStep(State, 0.033F, {});
    }
    EXPECT_FALSE(State.PlayerDying);
    State.EnemyBullets = {{State.Player.X, State.Player.Y, 0.0F, 2.0F, 12}};
    SimulationStep(State, 0.0F, {});
    EXPECT_TRUE(State.PlayerDying);
}

} // namespace
