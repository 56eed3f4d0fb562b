#include "bench/BusyRoad.hpp"
#include "state/GameState.hpp"
#include "store/SaveState.hpp"
#include "tests/support/TemporaryHome.hpp"

#include <SDL3/SDL.h>
#include <benchmark/benchmark.h>

#include <string>

// Saving a run on a full road, which happens inside a frame, beside one call that writes the same bytes.

namespace {

void SaveBusyRun(benchmark::State &Bench) {
    const TemporaryHome home;
    const GameState state = BusyRoad();
    for (auto iteration : Bench) {
        if (!WriteSaveState(state)) {
            Bench.SkipWithError("the save state was not written");
            return;
        }
    }
}

void WriteSameBytes(benchmark::State &Bench) {
    const TemporaryHome home;
    WriteSaveState(BusyRoad());
    const std::string path = home.FilePath(SaveStateFileName).string();
    std::size_t size = 0;
    void *const bytes = SDL_LoadFile(path.c_str(), &size);
    if (bytes == nullptr) {
        Bench.SkipWithError("the save state was not written");
        return;
    }
    for (auto iteration : Bench) {
        SDL_SaveFile(path.c_str(), bytes, size);
    }
    Bench.counters["bytes"] = static_cast<double>(size);
    SDL_free(bytes);
}

BENCHMARK(SaveBusyRun)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteSameBytes)->Unit(benchmark::kMicrosecond);

} // namespace
