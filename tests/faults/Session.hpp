#pragma once

#include "tests/faults/Hands.hpp"

#include <array>
#include <cstddef>
#include <filesystem>
#include <string_view>

/// How a session is played and which call fails in it.
struct SessionPlan {
    Launch Start = Launch::First;
    std::string_view Function{}; ///< of which one call fails; empty for none
    int Number = 0;              ///< which call, from 1
    std::string_view Without{};  ///< every call of this function fails as well; empty for none
    bool StorageIsLate = false;  ///< each storage is ready only when it is asked for the second time
    void (*Instead)() = nullptr; ///< what is done in place of all this
};

/// What the program is writing.
enum class Writing { Nothing, FirstOptions, Options, SaveState };

/// What is seen of a session. It lies in memory that the session's process shares.
struct SessionReport {
    static constexpr int DidNotEnd = -1;
    static constexpr std::size_t MostFunctions = 256;

    int Result = DidNotEnd;            ///< of the program
    bool FaultCame = false;            ///< whether it has come to the call that fails
    Writing During = Writing::Nothing; ///< what was being written then
    bool IsOfMusic = false;            ///< whether the music's track was last given something to play then
    bool WasMadeUpFor = false;         ///< whether that file was well written then or later
    int SaveWrites = 0;                ///< how often the save was or should have been written
    int FailedSave = 0;                ///< which of these the fault came in, from 1; 0 for none
    int MixedFiles = 0;                ///< how often a file was neither as before nor as it was to be
    int StrayFiles = 0;                ///< what was left beside the two files
    std::array<int, MostFunctions> Calls{}; ///< by WatchedEntries; counted where no call fails
};

/// Plays the whole program from start to end, as app/main.cpp does, on drivers that need no hardware and a
/// clock of its own. Home is where SDL keeps the user's files.
void PlaySession(const SessionPlan &Plan, const std::filesystem::path &Home, SessionReport &Report);
