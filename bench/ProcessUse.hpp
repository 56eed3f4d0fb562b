#pragma once

#include <chrono>
#include <sys/types.h>

// What a running program takes of the machine. All throw std::runtime_error if there is no such program.

/// The share of one core, in percent, that the program and all its threads take over that time: in itself and
/// in the system on its behalf.
double ProcessorShare(pid_t Id, std::chrono::seconds Time);

/// Memory in MiB: all that the program has in memory, shared libraries included, and of it what the program
/// has written and shares with no other.
struct MemoryUse {
    double Resident = 0.0;
    double Private = 0.0;
};
MemoryUse MemoryOf(pid_t Id);
