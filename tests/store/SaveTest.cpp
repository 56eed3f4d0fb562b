#include "tests/store/SaveTest.hpp"

bool SaveTest::Load(const std::string &Bytes) {
    Store("SaveState.bin", Bytes);
    State = {};
    return LoadSaveState(State);
}

void SaveTest::LoadRun(const std::vector<StreamEntry> &Run) {
    EXPECT_TRUE(Load(SaveBytes(Run)));
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.HighScore, SampleHighScore);
    EXPECT_EQ(Names(), std::vector<std::string>{"SaveState.bin"});
}

void SaveTest::ExpectSample(std::span<const SaveRow> Rows, std::size_t Index, std::string_view But) const {
    for (const SaveRow &row : Rows) {
        if (row.Key != But) {
            EXPECT_EQ(row.Get(State, Index), AsHeld(row.Kind, row.Sample)) << row.Key;
        }
    }
}

void SaveTest::ExpectSampleList(const SaveList &List, std::string_view But) const {
    ASSERT_EQ(List.Size(State), 1U) << List.Key;
    SCOPED_TRACE(List.Key);
    ExpectSample(List.Rows, 0, But);
    if (List.ColorAt != nullptr && But != "Color") {
        EXPECT_EQ(Hex(BytesOf(List.ColorAt(State, 0))), Hex(SampleColor));
    }
}

void SaveTest::ExpectSampleRun() const {
    ExpectSample(RunRows);
    ExpectSample(PlayerRows);
    for (const SaveList &list : SaveLists) {
        ExpectSampleList(list);
    }
}
