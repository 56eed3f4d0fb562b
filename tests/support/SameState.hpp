#pragma once

#include <gtest/gtest.h>

struct GameState;

/// Whether the whole records are alike. If they are not, the message names each field that differs, with what
/// it is and what was expected; a NaN is alike to nothing.
::testing::AssertionResult SameState(const GameState &Found, const GameState &Expected);
