#include "tests/store/SaveTest.hpp"

namespace {

using Lines = std::vector<std::string>;

class WriteSaveStateTest : public SaveTest {
protected:
    std::string Written() {
        EXPECT_TRUE(WriteSaveState(State));
        EXPECT_EQ(Names(), Lines{"SaveState.bin"});
        return Stored("SaveState.bin");
    }
};

TEST_F(WriteSaveStateTest, WritesAFreshFileToTheByte) {
    EXPECT_EQ(Hex(Written()), "0A "
                              "08 0D 00 00 00 46 6F 72 6D 61 74 56 65 72 73 69 6F 6E " // FormatVersion
                              "03 01 00 00 00 "
                              "08 09 00 00 00 48 69 67 68 53 63 6F 72 65 " // HighScore
                              "05 00 00 00 00 00 00 00 00 "
                              "08 0B 00 00 00 48 61 73 52 75 6E 53 74 61 74 65 " // HasRunState
                              "02 00 "
                              "08 08 00 00 00 52 75 6E 53 74 61 74 65 " // RunState
                              "0A 01 01 ");
}

TEST_F(WriteSaveStateTest, WritesTheHighScoreAndNothingOfARunThatIsOver) {
    State.HighScore = 0x0102030405060708;
    State.Score = 77;
    State.Enemies.emplace_back();
    const std::string bytes = Written();
    EXPECT_EQ(Hex(bytes.substr(38, 9)), "05 08 07 06 05 04 03 02 01 ");
    EXPECT_EQ(bytes.size(), 81U);
}

TEST_F(WriteSaveStateTest, WritesANegativeHighScoreAsZero) {
    const std::string fresh = Written();
    State.HighScore = -5;
    EXPECT_EQ(Hex(Written()), Hex(fresh));
}

/// The first listing of a run's bytes: the defaults, worked out by hand, without an entry in any list.
TEST_F(WriteSaveStateTest, WritesADefaultRunToTheByte) {
    State.HasRunState = true;
    const std::vector<StreamEntry> run{{"Score", "\x05" + std::string(8, '\0')}, {"Stage", Int32Token(1)},
        {"PreviousStage", Int32Token(1)}, {"WaterFlowDirection", Int32Token(1)},
        {"PreviousWaterFlowDirection", Int32Token(1)}, {"GameTime", DoubleToken(0)},
        {"RoadScroll", DoubleToken(0)}, {"CurrentScrollSpeed", DoubleToken(120)},
        {"StageTransition", DoubleToken(1)}, {"SpawnTimer", DoubleToken(0)},
        // 2.8 in single precision is 40333333, widened 40066666 60000000.
        {"ObstacleSpawnTimer", std::string("\x07\x00\x00\x00\x60\x66\x66\x06\x40", 9)},
        {"ItemSpawnTimer", DoubleToken(6)}, {"ReadyBanner", DoubleToken(0)},
        {"InvulnerabilityTimer", DoubleToken(0)}, {"LaneMoveCooldown", DoubleToken(0)},
        {"AmmoRegenPause", DoubleToken(0)}, {"AmmoMeter", DoubleToken(100)}, {"Bombs", Int32Token(3)},
        {"FirstAidKits", Int32Token(0)}, {"PlayerLane", Int32Token(4)}, {"SpecialActive", BoolToken(0)},
        {"SpecialTimer", DoubleToken(0)}, {"InvincibilityPowerTimer", DoubleToken(0)},
        {"DualWeaponPowerTimer", DoubleToken(0)},
        {"Player", ObjectBytes({{"X", DoubleToken(640)}, {"Y", DoubleToken(670)}, {"Radius", DoubleToken(12)},
                       {"Hp", Int32Token(100)}, {"MaxHp", Int32Token(100)}, {"Stocks", Int32Token(2)},
                       {"FireCooldown", DoubleToken(0)}})},
        {"Bullets", "\x09\x01"}, {"EnemyBullets", "\x09\x01"}, {"Enemies", "\x09\x01"},
        {"Obstacles", "\x09\x01"}, {"Items", "\x09\x01"}, {"Explosions", "\x09\x01"}};
    EXPECT_EQ(Hex(Written()), Hex(ObjectBytes({{"FormatVersion", Int32Token(1)}, {"HighScore", Int64Token(0)},
                                  {"HasRunState", BoolToken(1)}, {"RunState", ObjectBytes(run)}})));
}

std::string BulletBytes(double X, double Y, double Speed, double Radius) {
    return ObjectBytes({{"X", DoubleToken(X)}, {"Y", DoubleToken(Y)}, {"Speed", DoubleToken(Speed)},
        {"Radius", DoubleToken(Radius)}});
}

std::string ColorEntryBytes(int R, int G, int B, int A) {
    return ObjectBytes(
        {{"R", Int32Token(R)}, {"G", Int32Token(G)}, {"B", Int32Token(B)}, {"A", Int32Token(A)}});
}

TEST_F(WriteSaveStateTest, WritesEveryEntryOfTheListsInOrder) {
    State.HasRunState = true;
    const std::string empty = Written();
    State.Bullets = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    State.EnemyBullets = {{1, 2, 3, 4, 5}};
    State.Enemies = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, {11, 12, 13, 255}}};
    State.Obstacles = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 2}};
    State.Items = {{1, 2, 3, 4, 5, 3}};
    State.Explosions = {{1, 2, 3, 4, 5, {0, 128, 254, 255}}};
    const std::string enemyBullet = ObjectBytes({{"X", DoubleToken(1)}, {"Y", DoubleToken(2)},
        {"Speed", DoubleToken(3)}, {"Radius", DoubleToken(4)}, {"Damage", Int32Token(5)}});
    const std::string enemy = ObjectBytes({{"X", DoubleToken(1)}, {"Y", DoubleToken(2)},
        {"Speed", DoubleToken(3)}, {"Radius", DoubleToken(4)}, {"HitFlash", DoubleToken(5)},
        {"AiTimer", DoubleToken(6)}, {"FireCooldown", DoubleToken(7)}, {"Lane", Int32Token(8)},
        {"Hp", Int32Token(9)}, {"Score", Int32Token(10)}, {"Color", ColorEntryBytes(11, 12, 13, 255)}});
    const std::string obstacle = ObjectBytes(
        {{"X", DoubleToken(1)}, {"Y", DoubleToken(2)}, {"Speed", DoubleToken(3)}, {"Width", DoubleToken(4)},
            {"Height", DoubleToken(5)}, {"HitFlash", DoubleToken(6)}, {"Lane", Int32Token(7)},
            {"Hp", Int32Token(8)}, {"Score", Int32Token(9)}, {"Type", Int32Token(2)}});
    const std::string item =
        ObjectBytes({{"X", DoubleToken(1)}, {"Y", DoubleToken(2)}, {"Speed", DoubleToken(3)},
            {"Radius", DoubleToken(4)}, {"Lane", Int32Token(5)}, {"Type", Int32Token(3)}});
    const std::string explosion = ObjectBytes(
        {{"X", DoubleToken(1)}, {"Y", DoubleToken(2)}, {"Age", DoubleToken(3)}, {"Life", DoubleToken(4)},
            {"MaxRadius", DoubleToken(5)}, {"Color", ColorEntryBytes(0, 128, 254, 255)}});
    const std::string lists =
        EntryBytes({"Bullets", ArrayBytes({BulletBytes(1, 2, 3, 4), BulletBytes(5, 6, 7, 8)})}) +
        EntryBytes({"EnemyBullets", ArrayBytes({enemyBullet})}) +
        EntryBytes({"Enemies", ArrayBytes({enemy})}) + EntryBytes({"Obstacles", ArrayBytes({obstacle})}) +
        EntryBytes({"Items", ArrayBytes({item})}) + EntryBytes({"Explosions", ArrayBytes({explosion})}) +
        "\x01\x01";
    const std::string bytes = Written();
    ASSERT_GT(bytes.size(), lists.size());
    EXPECT_EQ(Hex(bytes.substr(bytes.size() - lists.size())), Hex(lists));
    const std::size_t listsAt = empty.find("Bullets") - 5;
    EXPECT_EQ(bytes.size(), listsAt + lists.size());
    EXPECT_EQ(bytes.substr(0, listsAt), empty.substr(0, listsAt));
}

TEST_F(WriteSaveStateTest, GivesTheBytesOfALoadedFileBack) {
    const std::string bytes = SaveBytes(SampleRun());
    EXPECT_TRUE(Load(bytes));
    ExpectSampleRun();
    EXPECT_EQ(Hex(Written()), Hex(bytes));
}

TEST_F(WriteSaveStateTest, WritesWhatIsNotClampedAsItStands) {
    State.HasRunState = true;
    State.Score = -3;
    State.Player.Hp = -1;
    State.Bombs = 9;
    const std::string bytes = Written();
    EXPECT_NE(bytes.find(EntryBytes({"Score", Int64Token(-3)})), std::string::npos);
    EXPECT_NE(bytes.find(EntryBytes({"Hp", Int32Token(-1)})), std::string::npos);
    EXPECT_NE(bytes.find(EntryBytes({"Bombs", Int32Token(9)})), std::string::npos);
}

TEST_F(WriteSaveStateTest, KeepsOutWhatIsNoPartOfARun) {
    State.HasRunState = true;
    const std::string plain = Written();
    State.PlayerDying = true;
    State.DeathTimer = 0.5F;
    State.Screen = ScreenPaused;
    State.Language = "de";
    State.SaveRequested = true;
    State.SaveDelay = 0.3F;
    State.PendingSounds.Count = 3;
    EXPECT_EQ(Hex(Written()), Hex(plain));
}

TEST_F(WriteSaveStateTest, LeavesTheRecordAlone) {
    State.HasRunState = true;
    State.HighScore = -5;
    State.SaveRequested = true;
    State.SaveDelay = 0.3F;
    Written();
    EXPECT_EQ(State.HighScore, -5);
    EXPECT_TRUE(State.SaveRequested);
    EXPECT_EQ(State.SaveDelay, 0.3F);
}

TEST_F(WriteSaveStateTest, ReplacesALongerFile) {
    Store("SaveState.bin", std::string(100000, 'x'));
    EXPECT_EQ(Written().size(), 81U);
}

} // namespace
