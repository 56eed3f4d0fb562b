#include "tests/store/SaveTest.hpp"

#include <chrono>
#include <cmath>
#include <random>

namespace {

using Entries = std::vector<StreamEntry>;

class DamagedSaveTest : public SaveTest {
protected:
    /// Loads damaged bytes: it must be quick, whatever comes of it, and leave nothing behind.
    bool LoadDamaged(const std::string &Bytes) {
        const auto start = std::chrono::steady_clock::now();
        const bool loaded = Load(Bytes);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
        EXPECT_EQ(loaded, !Bytes.empty() && Bytes[0] == '\x0A');
        EXPECT_FALSE(std::filesystem::exists(PathOf(".SaveState.bin.tmp")));
        ExpectInRange();
        return loaded;
    }

    void ExpectRows(std::span<const SaveRow> Rows, std::size_t Index = 0) const {
        for (const SaveRow &row : Rows) {
            const double value = row.Get(State, Index);
            EXPECT_TRUE(std::isfinite(value)) << row.Key;
            EXPECT_GE(value, row.Least) << row.Key;
            if (std::string(row.Key) != "Hp") {
                EXPECT_LE(value, row.Most) << row.Key;
            }
        }
    }

    /// Whatever was loaded can be played on.
    void ExpectInRange() const {
        EXPECT_GE(State.HighScore, 0);
        if (!State.HasRunState) {
            return;
        }
        ExpectRows(RunRows);
        ExpectRows(PlayerRows);
        EXPECT_LE(State.Player.Hp, State.Player.MaxHp);
        EXPECT_NE(State.WaterFlowDirection, 0);
        EXPECT_NE(State.PreviousWaterFlowDirection, 0);
        for (const SaveList &list : SaveLists) {
            for (std::size_t i = 0; i < list.Size(State); ++i) {
                ExpectRows(list.Rows, i);
            }
        }
    }

    static std::string Sample() {
        return SaveBytes(SampleRun());
    }
};

TEST_F(DamagedSaveTest, KeepsWhatStandsBeforeACut) {
    const std::string whole = Sample();
    const auto endOf = [&whole](const std::string &Bytes) {
        const std::size_t at = whole.find(Bytes);
        EXPECT_NE(at, std::string::npos);
        return at + Bytes.size();
    };
    const std::size_t highScoreEnd = endOf(EntryBytes({"HighScore", Int64Token(SampleHighScore)}));
    const std::size_t flagEnd = endOf(EntryBytes({"HasRunState", BoolToken(1)}));
    const std::size_t runBegin = endOf(EntryBytes({"RunState", ObjectToken}));
    ASSERT_LT(flagEnd, runBegin);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_EQ(LoadDamaged(whole.substr(0, length)), length > 0);
        EXPECT_EQ(State.HighScore, length >= highScoreEnd ? SampleHighScore : 0);
        ASSERT_EQ(State.HasRunState, length >= runBegin);
        if (!State.HasRunState) {
            continue;
        }
        std::size_t end = runBegin;
        for (const SaveRow &row : RunRows) {
            end += EntryBytes({row.Key, TokenOf(row.Kind, row.Sample)}).size();
            EXPECT_EQ(row.Get(State, 0), AsHeld(row.Kind, length >= end ? row.Sample : row.Default))
                << row.Key;
        }
        for (const SaveList &list : SaveLists) {
            const std::size_t begin = endOf(EntryBytes({list.Key, ArrayToken + ObjectToken}));
            EXPECT_EQ(list.Size(State), length >= begin ? 1U : 0U) << list.Key;
        }
    }
    ExpectSampleRun();
}

TEST_F(DamagedSaveTest, LoadsWithAnyByteChanged) {
    const std::string whole = Sample();
    constexpr int changes[] = {0x01, 0x80, 0x0B};
    for (std::size_t i = 0; i < whole.size(); ++i) {
        SCOPED_TRACE(i);
        std::string bytes = whole;
        bytes[i] = static_cast<char>(bytes[i] ^ changes[i % std::size(changes)]);
        LoadDamaged(bytes);
    }
}

TEST_F(DamagedSaveTest, LoadsWithAnyByteMissingOrDoubled) {
    const std::string whole = Sample();
    for (std::size_t i = 0; i < whole.size(); ++i) {
        SCOPED_TRACE(i);
        LoadDamaged(whole.substr(0, i) + whole.substr(i + 1));
        LoadDamaged(whole.substr(0, i) + whole.substr(i, 1) + whole.substr(i));
    }
}

TEST_F(DamagedSaveTest, LoadsNoise) {
    std::mt19937 random(20260101);
    for (int i = 0; i < 500; ++i) {
        std::string bytes = i % 5 == 0 ? "" : ObjectToken;
        for (auto length = random() % 400; length > 0; --length) {
            // Half of it tags and short lengths, or it would be over at once.
            bytes += static_cast<char>(random() % 2 == 0 ? random() % 12 : random() % 256);
        }
        LoadDamaged(bytes);
    }
}

TEST_F(DamagedSaveTest, KeepsTheHighScoreBeforeADamagedRun) {
    const std::string head = ObjectToken + EntryBytes({"HighScore", Int64Token(777)}) +
                             EntryBytes({"HasRunState", BoolToken(1)}) + TextToken("RunState");
    const std::string opens(100000, '\x0A');
    const std::string arrays(100000, '\x09');
    const std::string endlessText = std::string("\x08\xFF\xFF\xFF\xFF", 5) + "x";
    const std::string player = ObjectToken + TextToken("Player");
    const std::string enemies = ObjectToken + TextToken("Enemies");
    for (const std::string &rest : {opens, arrays, endlessText, ObjectToken + endlessText, player + opens,
             player + arrays, player + endlessText, enemies + opens, enemies + arrays,
             enemies + ArrayToken + opens, enemies + ArrayToken + endlessText,
             enemies + ArrayToken + ObjectToken + TextToken("Color") + opens, std::string(100000, '\x01'),
             std::string(1000, '\0'), std::string("\x0B")}) {
        EXPECT_TRUE(LoadDamaged(head + rest));
        EXPECT_EQ(State.HighScore, 777);
    }
}

TEST_F(DamagedSaveTest, LeavesOutWhatStandsBehindTheThousandthEntryOfAList) {
    std::string enemies;
    for (int i = 0; i < 1500; ++i) {
        enemies += ObjectBytes({});
    }
    EXPECT_TRUE(LoadDamaged(ObjectBytes({{"HasRunState", BoolToken(1)},
        {"RunState", ObjectBytes({{"Enemies", ArrayToken + enemies + std::string("\x01")},
                         {"Score", Int64Token(5)}})}})));
    EXPECT_EQ(State.Enemies.size(), 1000U);
    EXPECT_EQ(State.Score, 5);
}

TEST_F(DamagedSaveTest, LoadsAHundredThousandOpens) {
    EXPECT_TRUE(LoadDamaged(std::string(100000, '\x0A')));
    EXPECT_FALSE(State.HasRunState);
    EXPECT_FALSE(LoadDamaged(std::string(100000, '\x09')));
}

TEST_F(DamagedSaveTest, GoesOnBehindDeepNestingThatIsClosed) {
    std::string deep = std::string(100000, '\x09') + std::string(100000, '\x01');
    EXPECT_TRUE(LoadDamaged(ObjectBytes({{"Unknown", deep}, {"HighScore", Int64Token(777)},
        {"HasRunState", BoolToken(1)},
        {"RunState",
            ObjectBytes({{"Enemies", ArrayBytes({deep, ObjectBytes({})})}, {"Stage", Int32Token(4)}})}})));
    EXPECT_EQ(State.HighScore, 777);
    EXPECT_EQ(State.Stage, 4);
    EXPECT_EQ(State.Enemies.size(), 1U);
}

} // namespace
