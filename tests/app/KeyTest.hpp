#pragma once

#include "state/GameState.hpp"
#include "tests/support/Keys.hpp"
#include "tests/support/Sounds.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <vector>

/// What a key does to the record, done to a copy by hand.
using Change = std::function<void(GameState &Expected)>;

inline const Change Nothing = [](GameState &) {};

/// A game on a screen, in the middle of a run, in which no field stands at what a key would make it: a field
/// that a key sets or resets by mistake is seen. A sound of the run is already waiting.
GameState BusyGame(enum Screen Screen);

/// Appends a sound to those that wait, as every expected sound is.
void Hear(GameState &State, SfxId Id);

/// A test that presses keys on one record.
class KeyTest : public ::testing::Test {
protected:
    explicit KeyTest(enum Screen Screen) : State(BusyGame(Screen)) {}

    /// Presses a key of whichever device.
    void Press(std::int32_t Scancode);

    /// Presses each of Keys on a record of its own and expects Effect and nothing else. The record of the
    /// test stays as it is.
    void ExpectKeys(const Scancodes &Keys, const Change &Effect) const;

    /// Expects where each of Keys leads from each row of a menu, in order of the rows, with the sound of a
    /// move.
    template <typename Row>
    void ExpectRows(Row GameState::*Selection, const Scancodes &Keys, const std::vector<Row> &Next) {
        for (std::size_t row = 0; row < Next.size(); ++row) {
            State.*Selection = static_cast<Row>(row);
            ExpectKeys(Keys, [&](GameState &Expected) {
                Hear(Expected, SfxId::UiMove);
                Expected.*Selection = Next[row];
            });
        }
    }

    /// The sounds of the presses so far, without the one that waited before.
    Sounds Heard() const;

    GameState State;
};
