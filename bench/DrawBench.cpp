#include "bench/BusyRoad.hpp"
#include "bench/DrawCalls.hpp"
#include "gfx/Atlas.hpp"
#include "gfx/Hud.hpp"
#include "gfx/MainMenu.hpp"
#include "gfx/PausePanel.hpp"
#include "gfx/World.hpp"
#include "input/Devices.hpp"
#include "sim/Lanes.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/support/LogicalWidthScope.hpp"

#include <benchmark/benchmark.h>

namespace {

/// A software renderer on a picture of the logical screen's size, with the sprites painted.
class MemoryScreen {
public:
    explicit MemoryScreen(std::int32_t Width)
        : Surface(SDL_CreateSurface(Width, LogicalHeight, SDL_PIXELFORMAT_XRGB8888)),
          Renderer(SDL_CreateSoftwareRenderer(Surface)), ScreenWidth(Width) {
        SDL_SetRenderDrawBlendMode(Renderer, SDL_BLENDMODE_BLEND);
        BuildTextureAtlas(Renderer);
    }

    ~MemoryScreen() {
        DestroyTextureAtlas();
        SDL_DestroyRenderer(Renderer);
        SDL_DestroySurface(Surface);
    }

    MemoryScreen(const MemoryScreen &) = delete;
    MemoryScreen &operator=(const MemoryScreen &) = delete;

    SDL_Surface *Surface;
    SDL_Renderer *Renderer;

private:
    LogicalWidthScope ScreenWidth;
};

using DrawFunction = void (*)(SDL_Renderer *Renderer, const GameState &State);

void DrawWith(benchmark::State &Bench, DrawFunction Draw) {
    const MemoryScreen screen(static_cast<std::int32_t>(Bench.range(0)));
    const GameState state = BusyRoad();
    for (auto iteration : Bench) {
        Draw(screen.Renderer, state);
        SDL_FlushRenderer(screen.Renderer);
    }
}

void PlayBackCallsOf(benchmark::State &Bench, DrawFunction Draw) {
    const MemoryScreen screen(static_cast<std::int32_t>(Bench.range(0)));
    const GameState state = BusyRoad();
    const DrawCalls calls = RecordDrawCalls([&screen, &state, Draw] {
        Draw(screen.Renderer, state);
    });
    for (auto iteration : Bench) {
        for (const auto &call : calls) {
            call(screen.Renderer);
        }
        SDL_FlushRenderer(screen.Renderer);
    }
}

void DrawBusyFrame(benchmark::State &Bench) {
    DrawWith(Bench, RenderGameplay);
}

void PlayBackBareCalls(benchmark::State &Bench) {
    PlayBackCallsOf(Bench, RenderGameplay);
}

void DrawHudFrame(benchmark::State &Bench) {
    DrawWith(Bench, DrawHud);
}

void PlayBackBareHudCalls(benchmark::State &Bench) {
    PlayBackCallsOf(Bench, DrawHud);
}

void RenderPaused(SDL_Renderer *Renderer, const GameState &State) {
    RenderGameplay(Renderer, State);
    RenderPauseOverlay(Renderer, State, {});
}

void DrawPausedFrame(benchmark::State &Bench) {
    DrawWith(Bench, RenderPaused);
}

void PlayBackBarePausedCalls(benchmark::State &Bench) {
    PlayBackCallsOf(Bench, RenderPaused);
}

void DrawMenuFrame(benchmark::State &Bench) {
    DrawWith(Bench, RenderMainMenu);
}

void PlayBackBareMenuCalls(benchmark::State &Bench) {
    PlayBackCallsOf(Bench, RenderMainMenu);
}

BENCHMARK(DrawBusyFrame)->Arg(1280)->Arg(2560)->Unit(benchmark::kMillisecond);
BENCHMARK(PlayBackBareCalls)->Arg(1280)->Arg(2560)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawHudFrame)->Arg(1280)->Unit(benchmark::kMillisecond);
BENCHMARK(PlayBackBareHudCalls)->Arg(1280)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawPausedFrame)->Arg(1280)->Unit(benchmark::kMillisecond);
BENCHMARK(PlayBackBarePausedCalls)->Arg(1280)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawMenuFrame)->Arg(1280)->Unit(benchmark::kMillisecond);
BENCHMARK(PlayBackBareMenuCalls)->Arg(1280)->Unit(benchmark::kMillisecond);

} // namespace
