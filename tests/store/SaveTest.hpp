#pragma once

#include "store/SaveState.hpp"
#include "tests/store/SaveTables.hpp"
#include "tests/store/StoreTest.hpp"
#include "tests/support/LogicalWidthScope.hpp"

/// Loads save states that were put together by hand, on a logical screen 1280 wide.
class SaveTest : public StoreTest {
protected:
    /// Loads these bytes into a fresh record.
    bool Load(const std::string &Bytes) {
        Store("SaveState.bin", Bytes);
        State = {};
        return LoadSaveState(State);
    }
    void LoadRun(const std::vector<StreamEntry> &Run) {
        EXPECT_TRUE(Load(SaveBytes(Run)));
        EXPECT_TRUE(State.HasRunState);
        EXPECT_EQ(State.HighScore, SampleHighScore);
        EXPECT_EQ(Names(), std::vector<std::string>{"SaveState.bin"});
    }

    /// What the records hold beside one row, which is left out of the comparison.
    template <typename Record>
    static void ExpectSample(
        const std::vector<SaveRow<Record>> &Rows, const Record &Found, const std::string &But = "") {
        for (const SaveRow<Record> &row : Rows) {
            if (row.Key != But) {
                EXPECT_EQ(row.Get(Found), AsHeld(row.Kind, row.Sample)) << row.Key;
            }
        }
    }
    static std::string BytesOf(const Color &Color) {
        return {static_cast<char>(Color.R), static_cast<char>(Color.G), static_cast<char>(Color.B),
            static_cast<char>(Color.A)};
    }
    template <typename Record> static std::string ColorOf(const Record &Found) {
        if constexpr (requires { Found.Color; }) {
            return BytesOf(Found.Color);
        } else {
            return "";
        }
    }
    template <typename Record>
    void ExpectSampleList(const SaveList<Record> &List, const std::string &But = "") const {
        const std::vector<Record> &found = State.*List.List;
        ASSERT_EQ(found.size(), 1U) << List.Key;
        SCOPED_TRACE(List.Key);
        ExpectSample(List.Rows, found[0], But);
        if (But != "Color") {
            EXPECT_EQ(Hex(ColorOf(found[0])), Hex(List.DefaultColor.empty() ? "" : SampleColor));
        }
    }
    void ExpectSampleRun() const {
        ExpectSample(RunRows, State);
        ExpectSample(PlayerRows, State.Player);
        VisitLists([this](const auto &List) {
            ExpectSampleList(List);
        });
    }

    LogicalWidthScope Width{1280};
    GameState State;
};
