#include "gfx/Atlas.hpp"

#include "tests/gfx/GfxTest.hpp"
#include "tests/gfx/LivingThings.hpp"

class AtlasFailure : public GfxTest {
protected:
    AtlasFailure() {
        DestroyTextureAtlas();
    }

    template <typename Call> void ExpectNoAtlasWithout(Call &Failing) {
        const int textures = LivingTextures(Watch);
        Failing.Refuse();
        EXPECT_FALSE(BuildTextureAtlas(Renderer()));
        Failing.Refuse(0);
        EXPECT_STREQ(SDL_GetError(), CallWatch::RefusalText);
        EXPECT_EQ(SpriteAtlas.Texture, nullptr);
        EXPECT_EQ(LivingTextures(Watch), textures);
        EXPECT_EQ(SDL_GetRenderTarget(Renderer()), nullptr);
    }

    SdlWatch Watch;
};

TEST_F(AtlasFailure, WithoutATextureLeavesTheAtlasEmpty) {
    ExpectNoAtlasWithout(Watch.CreateTexture);
}

TEST_F(AtlasFailure, WithATextureThatCannotBeDrawnToDestroysItAndLeavesTheAtlasEmpty) {
    ExpectNoAtlasWithout(Watch.SetRenderTarget);
}

TEST_F(AtlasFailure, WithoutARendererLeavesTheAtlasEmpty) {
    EXPECT_FALSE(BuildTextureAtlas(nullptr));
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
}

TEST_F(AtlasFailure, IsFollowedByABuildThatSucceeds) {
    ExpectNoAtlasWithout(Watch.SetRenderTarget);
    EXPECT_TRUE(BuildTextureAtlas(Renderer()));
    EXPECT_NE(SpriteAtlas.Texture, nullptr);
}
