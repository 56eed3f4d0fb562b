#pragma once

#include "tests/faults/Session.hpp"

#include <optional>
#include <string>
#include <vector>

/// What a session left, and what its process said.
struct SessionEnd {
    SessionReport Report;
    int Status = 0;                 ///< of the process, as waitpid tells it
    std::vector<std::string> Lines; ///< on standard error
    std::optional<std::string> Options;
    std::optional<std::string> Save;
};

/// Plays each session in a process and a home of its own, several at once, with leaks looked for at its end
/// where the build can. What takes longer than a minute is ended. The ends have the order of the plans.
std::vector<SessionEnd> PlayAll(const std::vector<SessionPlan> &Plans, int AtOnce);

/// The files that stand in the home before a later launch.
std::string OlderOptions();
std::string OlderSave();
