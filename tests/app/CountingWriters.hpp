#pragma once

#include "app/Saving.hpp"

#include <functional>
#include <string>
#include <vector>

/// What the writers below were asked for. The game calls plain functions, so there is one record; each test
/// begins with a fresh one.
struct WriterRecord {
    int OptionsWrites = 0; ///< attempts, failed ones among them
    int SaveWrites = 0;
    int OptionsFailures = 0; ///< how many of the next attempts are to fail
    int SaveFailures = 0;
    std::function<void()> OnOptionsWrite; ///< if set, runs in each attempt
    std::function<void()> OnSaveWrite;
};

extern WriterRecord Written;

/// Writers that write nothing, count, and fail as often as the record says.
SaveWriters CountingWriters();
