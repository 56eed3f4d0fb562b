#include "gfx/Atlas.hpp"

#include "tests/gfx/GfxTest.hpp"
#include "tests/gfx/SdlCalls.hpp"

class AtlasFailure : public GfxTest {
protected:
    AtlasFailure() {
        DestroyTextureAtlas();
    }

    void ExpectNoAtlasWhile(SdlCall Call) {
        const int textures = LivingTextures();
        {
            const FailingCall failing(Call);
            EXPECT_FALSE(BuildTextureAtlas(Renderer()));
        }
        EXPECT_STREQ(SDL_GetError(), FailingCallError);
        EXPECT_EQ(SpriteAtlas.Texture, nullptr);
        EXPECT_EQ(LivingTextures(), textures);
        EXPECT_EQ(SDL_GetRenderTarget(Renderer()), nullptr);
    }
};

TEST_F(AtlasFailure, WithoutATextureLeavesTheAtlasEmpty) {
    ExpectNoAtlasWhile(SdlCall::CreateTexture);
}

TEST_F(AtlasFailure, WithATextureThatCannotBeDrawnToDestroysItAndLeavesTheAtlasEmpty) {
    ExpectNoAtlasWhile(SdlCall::SetRenderTarget);
}

TEST_F(AtlasFailure, WithoutARendererLeavesTheAtlasEmpty) {
    EXPECT_FALSE(BuildTextureAtlas(nullptr));
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
}

TEST_F(AtlasFailure, IsFollowedByABuildThatSucceeds) {
    ExpectNoAtlasWhile(SdlCall::SetRenderTarget);
    EXPECT_TRUE(BuildTextureAtlas(Renderer()));
    EXPECT_NE(SpriteAtlas.Texture, nullptr);
}
