#include "gfx/Atlas.hpp"
#include "gfx/Draw.hpp"
#include "tests/gfx/GfxTest.hpp"

class EmptyAtlas : public GfxTest {
protected:
    EmptyAtlas() {
        DestroyTextureAtlas();
    }
};

TEST_F(EmptyAtlas, DrawsNoSpriteAndLogsNothing) {
    const LogCatcher log;
    DrawSprite(Renderer(), SpriteGroundEarth, 640.0F, 300.0F, 26.0F, 26.0F);
    DrawSpriteTinted(Renderer(), SpriteGroundEarth, 640.0F, 300.0F, 26.0F, 26.0F, 0xFFFFFFFF);
    DrawTiledSprite(Renderer(), SpriteGroundEarth, 0.0F, 0.0F, 320.0F, 320.0F, 0.0F, 0.0F, 2.0F);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
    EXPECT_TRUE(log.Lines.empty());
    EXPECT_FALSE(SDL_RenderClipEnabled(Renderer()));
}
