#include "bench/BusyRoad.hpp"
#include "state/GameState.hpp"
#include "store/PlainFile.hpp"
#include "store/SaveState.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tests/support/watch/SdlWatch.hpp"
#include "tools/support/Files.hpp"

#include <SDL3/SDL.h>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <ctime>
#include <string>

// Saving a run on a full road, which happens inside a frame, beside one call that writes the same bytes; and
// what it is made of: a plain file is written, read back, handed to the user's storage, which is opened for
// it, and removed.

namespace {

/// The bytes of a saved busy run, which lies in the home then; empty after an error of the benchmark.
std::string SavedBytes(benchmark::State &Bench, const TemporaryHome &Home) {
    if (!WriteSaveState(BusyRoad())) {
        Bench.SkipWithError("the save state was not written");
        return {};
    }
    return ReadBytes(Home.FilePath(SaveStateFileName));
}

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
    const std::string bytes = SavedBytes(Bench, home);
    const std::string path = home.FilePath(SaveStateFileName).string();
    for (auto iteration : Bench) {
        SDL_SaveFile(path.c_str(), bytes.data(), bytes.size());
    }
    Bench.counters["bytes"] = static_cast<double>(bytes.size());
}

/// The part of the staging file that is not the making of its bytes.
void WriteAndRemovePlainFile(benchmark::State &Bench) {
    const TemporaryHome home;
    const std::string bytes = SavedBytes(Bench, home);
    const std::string path = home.FilePath("Plain.tmp").string();
    for (auto iteration : Bench) {
        PlainFile file = OpenPlainFile(path, "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file.get());
        file.reset();
        std::remove(path.c_str());
    }
}

/// The processor time that this thread has used, in microseconds: what a disk takes is not the game's.
double ThreadMicroseconds() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e6 + static_cast<double>(used.tv_nsec) * 1e-3;
}

/// Adds the processor time of its scope to a sum.
class TimedScope {
public:
    explicit TimedScope(double &Added) : Sum(Added) {}
    ~TimedScope() {
        Sum += ThreadMicroseconds() - Start;
    }
    TimedScope(const TimedScope &) = delete;
    TimedScope &operator=(const TimedScope &) = delete;

private:
    double &Sum;
    double Start = ThreadMicroseconds();
};

/// Has the calls of a function add their time to a sum.
template <typename Result, typename... Parameters>
void TimeCalls(SteeredCall<Result(Parameters...)> &Call, Result (*Function)(Parameters...), double &Sum) {
    Call.Answer = [Function, &Sum](Parameters... Arguments) {
        const TimedScope timed(Sum);
        return Function(Arguments...);
    };
}

/// The same saving, with a clock at each of its calls: the counters are microseconds of one save.
void SaveBusyRunInParts(benchmark::State &Bench) {
    const TemporaryHome home;
    const GameState state = BusyRoad();
    SdlWatch watch;
    double all = 0.0;
    double folder = 0.0;
    double readBack = 0.0;
    double opened = 0.0;
    double written = 0.0;
    TimeCalls(watch.GetPrefPath, SDL_GetPrefPath, folder);
    TimeCalls(watch.LoadFile, SDL_LoadFile, readBack);
    TimeCalls(watch.OpenUserStorage, SDL_OpenUserStorage, opened);
    TimeCalls(watch.CloseStorage, SDL_CloseStorage, opened);
    TimeCalls(watch.WriteStorageFile, SDL_WriteStorageFile, written);
    for (auto iteration : Bench) {
        {
            const TimedScope timed(all);
            WriteSaveState(state);
        }
        watch.Forget();
    }
    const auto saves = static_cast<double>(Bench.iterations());
    Bench.counters["all"] = all / saves;
    Bench.counters["folder"] = folder / saves;
    Bench.counters["staging"] = (all - folder - readBack - opened - written) / saves;
    Bench.counters["readBack"] = readBack / saves;
    Bench.counters["opened"] = opened / saves;
    Bench.counters["written"] = written / saves;
}

BENCHMARK(SaveBusyRun)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteSameBytes)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteAndRemovePlainFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveBusyRunInParts)->Unit(benchmark::kMicrosecond);

} // namespace
