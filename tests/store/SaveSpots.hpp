#pragma once

#include "tests/store/SaveTest.hpp"

/// A record of the save state as it stands in a whole file, so that one of its keys can be spoilt there.
template <typename Record> struct SaveSpot {
    std::string Name;
    std::vector<SaveRow<Record>> Rows;
    std::vector<StreamEntry> Sample;
    /// The run with these entries here.
    std::function<std::vector<StreamEntry>(std::vector<StreamEntry>)> RunWith;
    std::function<const Record &(const GameState &)> Get;
};

/// Calls Visit with the run, its player and the entry of each list.
template <typename Visitor> void VisitSpots(Visitor Visit) {
    const auto playerAndLists = [] {
        std::vector<StreamEntry> entries = SampleRun();
        entries.erase(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(RunRows.size()));
        return entries;
    };
    Visit(SaveSpot<GameState>{"RunState", RunRows, SampleEntries(RunRows),
        [playerAndLists](std::vector<StreamEntry> Entries) {
            std::ranges::copy(playerAndLists(), std::back_inserter(Entries));
            return Entries;
        },
        [](const GameState &State) -> const GameState & {
            return State;
        }});
    Visit(SaveSpot<Player>{"Player", PlayerRows, SampleEntries(PlayerRows),
        [](const std::vector<StreamEntry> &Entries) {
            return With(SampleRun(), "Player", ObjectBytes(Entries));
        },
        [](const GameState &State) -> const Player & {
            return State.Player;
        }});
    VisitLists([&Visit]<typename Record>(const SaveList<Record> &List) {
        Visit(SaveSpot<Record>{List.Key, List.Rows, SampleEntries(List),
            [key = List.Key](const std::vector<StreamEntry> &Entries) {
                return With(SampleRun(), key, ArrayBytes({ObjectBytes(Entries)}));
            },
            [member = List.List](const GameState &State) -> const Record & {
                return (State.*member).at(0);
            }});
    });
}

/// Checks single keys while everything around them is the sample.
class SaveSpotTest : public SaveTest {
protected:
    /// Whether a key says where another one of the file ends up.
    static bool Decides(const std::string &Key, const std::string &Spot, const std::string &OtherSpot,
        const std::string &Other) {
        if (Key == "PlayerLane") {
            return OtherSpot == "Player" && Other == "X";
        }
        return Spot == OtherSpot && ((Key == "Lane" && Other == "X") || (Key == "MaxHp" && Other == "Hp"));
    }

    /// Loads a run and expects Expected under one key and the sample under all others.
    void ExpectOne(const std::vector<StreamEntry> &Run, const std::string &Spot, const std::string &Key,
        double Expected) {
        LoadRun(Run);
        VisitSpots([&](const auto &Other) {
            for (const auto &row : Other.Rows) {
                const double found = row.Get(Other.Get(State));
                if (Other.Name == Spot && row.Key == Key) {
                    EXPECT_EQ(found, Expected) << Spot << "." << Key;
                } else if (!Decides(Key, Spot, Other.Name, row.Key)) {
                    EXPECT_EQ(found, AsHeld(row.Kind, row.Sample)) << Other.Name << "." << row.Key;
                }
            }
        });
    }

    /// For every key of every record, calls Entries(sample entries, row) for what stands in the record's
    /// place, and Expected(row) for what the key must then be.
    template <typename MakeEntries, typename Expect> void ForEveryKey(MakeEntries Entries, Expect Expected) {
        VisitSpots([&](const auto &Spot) {
            for (const auto &row : Spot.Rows) {
                SCOPED_TRACE(Spot.Name + "." + row.Key);
                const double expected = row.IsDerived ? row.Sample : Expected(row);
                ExpectOne(
                    Spot.RunWith(Entries(Spot.Sample, row)), Spot.Name, row.Key, AsHeld(row.Kind, expected));
            }
        });
    }
};
