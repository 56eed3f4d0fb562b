#pragma once

#include <exception>

/// Whether this is one of the failures that the INI library raises for a damaged file. Nothing in the game
/// catches them; every other exception is a finding.
bool IsExpected(const std::exception &Failure);

/// False if the action raised such a failure. Others pass through.
template <typename Action> bool Succeeds(Action Act) {
    try {
        Act();
        return true;
    } catch (const std::exception &failure) {
        if (!IsExpected(failure)) {
            throw;
        }
        return false;
    }
}
