#pragma once

#include "state/GameState.hpp"
#include "tests/gfx/ExpectedPicture.hpp"
#include "tests/support/Picture.hpp"
#include "tests/support/Sdl.hpp"

#include <memory>

/// A test that draws: a canvas showing the logical screen, the atlas built for it, and LogicalWidth put back
/// at the end.
class GfxTest : public SdlTest {
protected:
    /// Opens a canvas of 1280 by 720, a logical pixel to a pixel.
    GfxTest();
    ~GfxTest() override;

    /// Changes to a logical screen of that width, shown in a canvas of a size of its own.
    void Open(int Width, int CanvasWidth, int CanvasHeight, std::uint32_t Background = Backdrop);

    /// Changes to a canvas without a logical screen on it.
    void OpenWithoutLogicalScreen(int CanvasWidth, int CanvasHeight);

    SDL_Renderer *Renderer() const {
        return Drawn->Renderer();
    }
    Picture Shown() const {
        return Drawn->Shown();
    }
    void Clear(std::uint32_t PackedColor = Backdrop) {
        Drawn->Clear(PackedColor);
    }

private:
    void Close();

    std::int32_t OldLogicalWidth;
    std::unique_ptr<Canvas> Drawn;
};

/// A run in a stage that is fully scrolled in, with nothing on its road and the player's car not shown.
GameState EmptyRoad(std::int32_t Stage = 1);

/// The screen that the tests draw on where they do not choose another.
inline constexpr int ScreenWidth = 1280;
inline constexpr int ScreenHeight = 720;
