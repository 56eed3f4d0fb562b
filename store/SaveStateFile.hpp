#pragma once

#include "store/SaveState.hpp"
#include "store/StagedFile.hpp"

inline constexpr StagedFile SaveStateFile{SaveStateFileName, ".SaveState.bin.tmp"};
