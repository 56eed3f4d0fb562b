#include "bench/BusyRoad.hpp"
#include "bench/DrawCalls.hpp"
#include "gfx/Atlas.hpp"
#include "gfx/Hud.hpp"
#include "gfx/World.hpp"
#include "sim/Lanes.hpp"
#include "state/LogicalScreen.hpp"

#include <benchmark/benchmark.h>

namespace {

/// A software renderer on a picture of the logical screen's size, with the sprites painted.
class Canvas {
public:
    explicit Canvas(std::int32_t Width)
        : Surface(SDL_CreateSurface(Width, LogicalHeight, SDL_PIXELFORMAT_XRGB8888)),
          Renderer(SDL_CreateSoftwareRenderer(Surface)) {
        LogicalWidth = Width;
        SDL_SetRenderDrawBlendMode(Renderer, SDL_BLENDMODE_BLEND);
        BuildTextureAtlas(Renderer);
    }

    ~Canvas() {
        DestroyTextureAtlas();
        SDL_DestroyRenderer(Renderer);
        SDL_DestroySurface(Surface);
        LogicalWidth = 1280;
    }

    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;

    SDL_Surface *Surface;
    SDL_Renderer *Renderer;
};

using DrawFunction = void (*)(SDL_Renderer *Renderer, const GameState &State);

void DrawWith(benchmark::State &Bench, DrawFunction Draw) {
    const Canvas canvas(static_cast<std::int32_t>(Bench.range(0)));
    const GameState state = BusyRoad();
    for (auto iteration : Bench) {
        Draw(canvas.Renderer, state);
        SDL_FlushRenderer(canvas.Renderer);
    }
}

void PlayBackCallsOf(benchmark::State &Bench, DrawFunction Draw) {
    const Canvas canvas(static_cast<std::int32_t>(Bench.range(0)));
    const GameState state = BusyRoad();
    const DrawCalls calls = RecordDrawCalls([&canvas, &state, Draw] {
        Draw(canvas.Renderer, state);
    });
    for (auto iteration : Bench) {
        for (const auto &call : calls) {
            call(canvas.Renderer);
        }
        SDL_FlushRenderer(canvas.Renderer);
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

BENCHMARK(DrawBusyFrame)->Arg(1280)->Arg(2560)->Unit(benchmark::kMillisecond);
BENCHMARK(PlayBackBareCalls)->Arg(1280)->Arg(2560)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawHudFrame)->Arg(1280)->Unit(benchmark::kMillisecond);
BENCHMARK(PlayBackBareHudCalls)->Arg(1280)->Unit(benchmark::kMillisecond);

} // namespace
