#pragma once

#include "tests/store/SaveTest.hpp"

/// A record of the save state as it stands in a whole file, so that one of its keys can be spoilt there.
struct SaveSpot {
    const char *Name;
    std::span<const SaveRow> Rows;
    const SaveList *List = nullptr; ///< whose one entry it is
};

/// The run, its player and the entry of each list.
inline constexpr std::array SaveSpots{SaveSpot{"RunState", RunRows}, SaveSpot{"Player", PlayerRows},
    SaveSpot{BulletList.Key, BulletRows, &BulletList},
    SaveSpot{EnemyBulletList.Key, EnemyBulletRows, &EnemyBulletList},
    SaveSpot{EnemyList.Key, EnemyRows, &EnemyList}, SaveSpot{ObstacleList.Key, ObstacleRows, &ObstacleList},
    SaveSpot{ItemList.Key, ItemRows, &ItemList}, SaveSpot{ExplosionList.Key, ExplosionRows, &ExplosionList}};

std::vector<StreamEntry> SampleEntries(const SaveSpot &Spot);

/// The sample's run with these entries in the place of the spot's.
std::vector<StreamEntry> RunWith(const SaveSpot &Spot, const std::vector<StreamEntry> &Entries);

/// Checks single keys while everything around them is the sample.
class SaveSpotTest : public SaveTest {
protected:
    /// Loads a run and expects Expected under one key and the sample under all others.
    void ExpectOne(
        const std::vector<StreamEntry> &Run, const SaveSpot &Spot, const SaveRow &Row, double Expected);

    /// For every key of every record, calls Entries(sample entries, row) for what stands in the record's
    /// place, and Expected(row) for what the key must then be.
    template <typename MakeEntries, typename Expect> void ForEveryKey(MakeEntries Entries, Expect Expected) {
        for (const SaveSpot &spot : SaveSpots) {
            const std::vector<StreamEntry> sample = SampleEntries(spot);
            for (const SaveRow &row : spot.Rows) {
                ExpectOne(RunWith(spot, Entries(sample, row)), spot, row,
                    AsHeld(row.Kind, row.IsDerived ? row.Sample : Expected(row)));
            }
        }
    }
};
