#include "tests/store/SaveSpots.hpp"

#include <cstddef>

std::vector<StreamEntry> SampleEntries(const SaveSpot &Spot) {
    return Spot.List != nullptr ? SampleEntries(*Spot.List) : SampleEntries(Spot.Rows);
}

std::vector<StreamEntry> RunWith(const SaveSpot &Spot, const std::vector<StreamEntry> &Entries) {
    if (Spot.List != nullptr) {
        return With(SampleRun(), Spot.Name, ArrayBytes({ObjectBytes(Entries)}));
    }
    if (Spot.Rows.data() == PlayerRows.data()) {
        return With(SampleRun(), Spot.Name, ObjectBytes(Entries));
    }
    std::vector<StreamEntry> run = SampleRun();
    run.erase(run.begin(), run.begin() + static_cast<std::ptrdiff_t>(RunRows.size()));
    run.insert(run.begin(), Entries.begin(), Entries.end());
    return run;
}

namespace {

/// Whether a key says where another one of the file ends up.
bool Decides(
    std::string_view Key, std::string_view Spot, std::string_view Other, std::string_view OtherSpot) {
    if (Key == "PlayerLane") {
        return OtherSpot == "Player" && Other == "X";
    }
    return Spot == OtherSpot && ((Key == "Lane" && Other == "X") || (Key == "MaxHp" && Other == "Hp"));
}

} // namespace

void SaveSpotTest::ExpectOne(
    const std::vector<StreamEntry> &Run, const SaveSpot &Spot, const SaveRow &Row, double Expected) {
    SCOPED_TRACE(std::string(Spot.Name) + "." + Row.Key);
    LoadRun(Run);
    for (const SaveSpot &other : SaveSpots) {
        for (const SaveRow &row : other.Rows) {
            const double found = row.Get(State, 0);
            if (&row == &Row) {
                EXPECT_EQ(found, Expected) << Spot.Name << "." << Row.Key;
            } else if (!Decides(Row.Key, Spot.Name, row.Key, other.Name)) {
                EXPECT_EQ(found, AsHeld(row.Kind, row.Sample)) << other.Name << "." << row.Key;
            }
        }
    }
}
