#pragma once

#include "tests/faults/Session.hpp"

#include <optional>
#include <string>
#include <vector>

inline constexpr unsigned SessionPatience = 60;

/// What a session left, and what its process said.
struct SessionEnd {
    SessionReport Report;
    int Status = 0;                   ///< of the process, as waitpid tells it
    std::vector<std::string> Lines;   ///< on standard error
    std::vector<std::string> Printed; ///< on standard output
    std::optional<std::string> Options;
    std::optional<std::string> Save;
};

/// Plays each session in a process and a home of its own, several at once, with leaks looked for at its end
/// where the build can. What takes longer than Patience, in seconds, is ended. The ends have the order of the
/// plans.
std::vector<SessionEnd> PlayAll(
    const std::vector<SessionPlan> &Plans, int AtOnce, unsigned Patience = SessionPatience);

/// Whether this build can look for leaks.
bool LooksForLeaks();

/// The files that stand in the home before a later launch.
std::string OlderOptions();
std::string OlderSave();
