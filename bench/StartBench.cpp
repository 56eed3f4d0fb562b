#include "app/Frame.hpp"
#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "app/StartUp.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tests/support/watch/SdlWatch.hpp"
#include "tools/desktop/VirtualDisplay.hpp"

#include <SDL3_mixer/SDL_mixer.h>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <optional>

// From nothing to the first frame on screen, beside a program that opens the same window and mixer and shows
// black. Both open a real window: on a machine without a display, on a virtual one.

namespace {

/// Sees to it that there is a display.
class Desktop {
public:
    Desktop() {
        if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr) {
            Virtual.emplace(ScreenSize{});
            setenv("DISPLAY", Virtual->Name().c_str(), 1);
        }
    }

    ~Desktop() {
        if (Virtual) {
            unsetenv("DISPLAY");
        }
    }

    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

private:
    std::optional<VirtualDisplay> Virtual;
};

/// Notes when a frame is on screen.
class PresentClock {
public:
    PresentClock() {
        Watch.RenderPresent.Answer = [this](SDL_Renderer *Renderer) {
            const bool presented = SDL_RenderPresent(Renderer);
            LastPresent = SDL_GetPerformanceCounter();
            return presented;
        };
    }

    double SecondsSince(Uint64 Start) const {
        return static_cast<double>(LastPresent - Start) / static_cast<double>(SDL_GetPerformanceFrequency());
    }

private:
    SdlWatch Watch;
    Uint64 LastPresent = 0;
};

void StartGame(benchmark::State &Bench) {
    const Desktop desktop;
    const TemporaryHome home;
    const EnvironmentScope silence("SDL_AUDIO_DRIVER", "dummy");
    const PresentClock clock;
    const auto program = std::make_unique<Program>();
    for (auto iteration : Bench) {
        const Uint64 start = SDL_GetPerformanceCounter();
        if (!StartUp(*program)) {
            Bench.SkipWithError("the game did not start");
            return;
        }
        RunFrame(*program);
        Bench.SetIterationTime(clock.SecondsSince(start));
        program->Music.FadeOutMs = 0; // nobody listens
        ShutDown(*program);
    }
}

void StartBareProgram(benchmark::State &Bench) {
    const Desktop desktop;
    const TemporaryHome home;
    const EnvironmentScope silence("SDL_AUDIO_DRIVER", "dummy");
    const PresentClock clock;
    for (auto iteration : Bench) {
        const Uint64 start = SDL_GetPerformanceCounter();
        SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD);
        const SDL_DisplayMode *mode = SDL_GetDesktopDisplayMode(SDL_GetPrimaryDisplay());
        if (mode == nullptr) {
            Bench.SkipWithError("there is no display");
            return;
        }
        SDL_Window *window = SDL_CreateWindow("Bare", mode->w, mode->h, SDL_WINDOW_FULLSCREEN);
        SDL_Renderer *renderer = SDL_CreateRenderer(window, nullptr);
        SDL_HideCursor();
        MIX_Init();
        MIX_Mixer *mixer = MIX_CreateMixerDevice(SDL_AUDIO_DEVICE_DEFAULT_PLAYBACK, nullptr);
        SDL_Event event;
        while (SDL_PollEvent(&event)) {
        }
        SDL_RenderClear(renderer);
        SDL_RenderPresent(renderer);
        Bench.SetIterationTime(clock.SecondsSince(start));
        MIX_DestroyMixer(mixer);
        MIX_Quit();
        SDL_DestroyRenderer(renderer);
        SDL_DestroyWindow(window);
        SDL_Quit();
    }
}

BENCHMARK(StartGame)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(StartBareProgram)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace
