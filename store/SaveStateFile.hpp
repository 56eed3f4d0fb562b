#pragma once

#include "store/SaveState.hpp"
#include "store/StagedFile.hpp"

constexpr StagedFile SaveStateFile{SaveStateFileName, ".SaveState.bin.tmp"};
