#include "bench/DrawBench.hpp"

#include "bench/BusyRoad.hpp"
#include "bench/DrawCalls.hpp"
#include "bench/Programs.hpp"
#include "gfx/Atlas.hpp"
#include "gfx/Hud.hpp"
#include "gfx/MainMenu.hpp"
#include "gfx/PausePanel.hpp"
#include "gfx/World.hpp"
#include "input/Devices.hpp"
#include "sim/Lanes.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/support/EnvironmentScope.hpp"
#include "tests/support/LogicalWidthScope.hpp"
#include "tools/desktop/VirtualDisplay.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <string>

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

    /// Has all drawing done that was asked for.
    void Finish() const {
        SDL_FlushRenderer(Renderer);
    }

    SDL_Surface *Surface;
    SDL_Renderer *Renderer;

private:
    LogicalWidthScope ScreenWidth;
};

/// The same by OpenGL, in a window on a virtual display. The renderer is null where there is no OpenGL.
class OpenGlScreen {
public:
    explicit OpenGlScreen(std::int32_t Width) : Display({Width, LogicalHeight}), ScreenWidth(Width) {
        if (SDL_InitSubSystem(SDL_INIT_VIDEO) &&
            SDL_CreateWindowAndRenderer("Drawing", Width, LogicalHeight, 0, &Window, &Renderer)) {
            SDL_SetRenderDrawBlendMode(Renderer, SDL_BLENDMODE_BLEND);
            BuildTextureAtlas(Renderer);
        }
    }

    ~OpenGlScreen() {
        DestroyTextureAtlas();
        SDL_DestroyRenderer(Renderer);
        SDL_DestroyWindow(Window);
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    }

    OpenGlScreen(const OpenGlScreen &) = delete;
    OpenGlScreen &operator=(const OpenGlScreen &) = delete;

    /// Has all drawing done that was asked for: OpenGL must, before it can tell a pixel.
    void Finish() const {
        const SDL_Rect pixel{0, 0, 1, 1};
        SDL_DestroySurface(SDL_RenderReadPixels(Renderer, &pixel));
    }

    SDL_Renderer *Renderer = nullptr;

private:
    VirtualDisplay Display;
    EnvironmentScope DisplayName{"DISPLAY", Display.Name()};
    EnvironmentScope VideoDriver{"SDL_VIDEO_DRIVER", "x11"};
    EnvironmentScope RenderDriver{"SDL_RENDER_DRIVER", "opengl"};
    LogicalWidthScope ScreenWidth;
    SDL_Window *Window = nullptr;
};

void RenderPaused(SDL_Renderer *Renderer, const GameState &State) {
    RenderGameplay(Renderer, State);
    RenderPauseOverlay(Renderer, State, {});
}

/// What is drawn, of the busy road, on a screen of that width.
struct Picture {
    const char *Name;
    void (*Render)(SDL_Renderer *Renderer, const GameState &State);
    std::int32_t Width;
};

constexpr auto Pictures = std::to_array<Picture>({
    {"Busy1280", RenderGameplay, 1280},
    {"Busy2560", RenderGameplay, 2560},
    {"Hud", DrawHud, 1280},
    {"Paused", RenderPaused, 1280},
    {"MainMenu", RenderMainMenu, 1280},
});

template <typename Screen> void Draw(benchmark::State &Bench, const Picture &Drawn) {
    const Screen screen(Drawn.Width);
    if (screen.Renderer == nullptr) {
        Bench.SkipWithError(SDL_GetError());
        return;
    }
    const GameState state = BusyRoad();
    for (auto iteration : Bench) {
        Drawn.Render(screen.Renderer, state);
        screen.Finish();
    }
}

template <typename Screen> void PlayBack(benchmark::State &Bench, const Picture &Drawn) {
    const Screen screen(Drawn.Width);
    if (screen.Renderer == nullptr) {
        Bench.SkipWithError(SDL_GetError());
        return;
    }
    const GameState state = BusyRoad();
    const DrawCalls calls = RecordDrawCalls([&screen, &state, &Drawn] {
        Drawn.Render(screen.Renderer, state);
    });
    for (auto iteration : Bench) {
        for (const auto &call : calls) {
            call(screen.Renderer);
        }
        screen.Finish();
    }
}

using BenchFunction = void (*)(benchmark::State &Bench, const Picture &Drawn);

/// The time of all threads counts: OpenGL draws on several. A target is near what is measured, so each is
/// measured some times over.
void Register(const std::string &Name, BenchFunction Run, const Picture &Drawn) {
    benchmark::RegisterBenchmark(Name.c_str(), Run, Drawn)
        ->MeasureProcessCPUTime()
        ->MinTime(0.1)
        ->Repetitions(7)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
}

template <typename Screen> void RegisterAll(const std::string &Renderer) {
    for (const Picture &picture : Pictures) {
        const std::string name = std::string("/").append(picture.Name).append("/").append(Renderer);
        Register("Draw" + name, Draw<Screen>, picture);
        Register("PlayBack" + name, PlayBack<Screen>, picture);
    }
}

} // namespace

void RegisterDrawBenches() {
    RegisterAll<MemoryScreen>(Software().Name);
    RegisterAll<OpenGlScreen>(OpenGl().Name);
}
