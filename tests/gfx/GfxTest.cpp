#include "tests/gfx/GfxTest.hpp"

#include "gfx/Atlas.hpp"
#include "state/LogicalScreen.hpp"

GfxTest::GfxTest() : OldLogicalWidth(LogicalWidth) {
    Open(ScreenWidth, ScreenWidth, ScreenHeight);
}

GfxTest::~GfxTest() {
    Close();
    LogicalWidth = OldLogicalWidth;
}

void GfxTest::Open(int Width, int CanvasWidth, int CanvasHeight, std::uint32_t Background) {
    OpenWithoutLogicalScreen(CanvasWidth, CanvasHeight);
    Clear(Background);
    LogicalWidth = Width;
    Drawn->ShowLogicalScreen(Width, LogicalHeight);
}

void GfxTest::OpenWithoutLogicalScreen(int CanvasWidth, int CanvasHeight) {
    Close();
    Drawn = std::make_unique<Canvas>(CanvasWidth, CanvasHeight);
    EXPECT_TRUE(BuildTextureAtlas(Renderer())) << SDL_GetError();
}

void GfxTest::Close() {
    DestroyTextureAtlas();
    Drawn.reset();
}

GameState EmptyRoad(std::int32_t Stage) {
    GameState state;
    state.Screen = ScreenPlaying;
    state.Stage = Stage;
    state.PreviousStage = Stage;
    state.PlayerDying = true;
    return state;
}
