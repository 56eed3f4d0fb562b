#pragma once

#include "store/SaveState.hpp"
#include "tests/store/SaveTables.hpp"
#include "tests/store/StoreTest.hpp"
#include "tests/support/LogicalWidthScope.hpp"

/// Loads save states that were put together by hand, on a logical screen 1280 wide.
class SaveTest : public StoreTest {
protected:
    /// Loads these bytes into a fresh record.
    bool Load(const std::string &Bytes);
    void LoadRun(const std::vector<StreamEntry> &Run);

    /// What the run, the player or the entry at Index of a list holds is the sample's, beside one row which
    /// is left out of the comparison.
    void ExpectSample(std::span<const SaveRow> Rows, std::size_t Index = 0, std::string_view But = "") const;

    /// A list holds the sample's entry alone.
    void ExpectSampleList(const SaveList &List, std::string_view But = "") const;
    void ExpectSampleRun() const;

    LogicalWidthScope Width{1280};
    GameState State;
};
