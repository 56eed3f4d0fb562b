#pragma once

#include "options/Presentation.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "tests/support/LogicalWidthScope.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/watch/SdlWatch.hpp"

/// A test with a real window of 640x360 and its renderer, and a state that asks for 1280x720 in a window.
class PresentationTest : public SdlTest {
protected:
    PresentationTest() {
        State.Fullscreen = false;
        Window = SDL_CreateWindow("Presentation", 640, 360, 0);
        Renderer = SDL_CreateRenderer(Window, nullptr);
        EXPECT_NE(Renderer, nullptr) << SDL_GetError();
    }

    ~PresentationTest() override {
        SDL_DestroyRenderer(Renderer);
        SDL_DestroyWindow(Window);
    }

    void Apply() {
        ApplyDisplaySettings(State, Window, Renderer);
    }

    void Choose(std::int32_t Width, std::int32_t Height) {
        State.Resolutions = {{Width, Height}};
        State.ResolutionIndex = 0;
    }

    bool IsFullscreen() const {
        return (SDL_GetWindowFlags(Window) & SDL_WINDOW_FULLSCREEN) != 0;
    }

    /// All that display settings ask of SDL, in order.
    CallNames DisplayCalls() const {
        return Watch.OrderOf({Watch.SetWindowFullscreenMode, Watch.SetWindowFullscreen, Watch.SetWindowSize,
            Watch.SetWindowPosition, Watch.SetRenderVSync, Watch.GetRenderVSync,
            Watch.SetRenderLogicalPresentation});
    }

    LogicalWidthScope Width{1280};
    SdlWatch Watch;
    GameState State;
    SDL_Window *Window = nullptr;
    SDL_Renderer *Renderer = nullptr;
};
