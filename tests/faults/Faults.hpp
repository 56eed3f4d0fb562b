#pragma once

#include "tests/faults/Children.hpp"
#include "tests/faults/FaultTable.hpp"

#include <string>
#include <string_view>
#include <vector>

/// A session of this kind in which no call fails, but those of the named function if one is named.
const SessionEnd &PlainSession(Launch Start, std::string_view Without = {});

/// How often a function was called in it.
int CallsOf(const SessionEnd &Plain, std::string_view Function);

/// Every fault there is to try: of a function that a session calls less than once a frame each call, of any
/// other the first, the last, and twenty between them.
std::vector<SessionPlan> AllFaults();

/// The faults to be tried now, as KESTREL_FAULTS says: "all", or the name of one; otherwise a fiftieth, drawn
/// by the number in KESTREL_FAULTS_SEED, or 1. Throws what is a std::logic_error for a name that no fault
/// has.
std::vector<SessionPlan> WantedFaults();

/// How many sessions are to be played at once: all that this machine can play, if all are wanted.
int SessionsAtOnce();

/// The name by which a fault is tried alone, such as "later:SDL_CreateTexture:1".
std::string NameOf(const SessionPlan &Fault);

/// False if the call that was to fail never came, in a session that has ended well, for a reason that is
/// none: the real time of the sounds decides how often it comes.
bool WasTried(const SessionPlan &Fault, const SessionEnd &End);

/// All that is wrong with the end of a session with a fault; empty if nothing is.
std::string Verdict(const SessionPlan &Fault, const SessionEnd &End);
