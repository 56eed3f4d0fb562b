#include "gfx/Atlas.hpp"

#include "gfx/SpriteMaps.hpp"
#include "tests/gfx/Art.hpp"
#include "tests/gfx/GfxTest.hpp"

#include <algorithm>

namespace {

constexpr int AtlasWidth = 90;

/// What an atlas pixel holds: a cell of 16 with a gutter of 1 around it takes 18, five to a row.
std::uint32_t ExpectedAtlasPixel(int X, int Y) {
    const int id = Y / 18 * 5 + X / 18;
    return id > 20 ? 0 : ArtPixel(id, std::clamp(X % 18 - 1, 0, 15), std::clamp(Y % 18 - 1, 0, 15));
}

bool SameRect(const SDL_FRect &A, const SDL_FRect &B) {
    return A.x == B.x && A.y == B.y && A.w == B.w && A.h == B.h;
}

} // namespace

class Atlas : public GfxTest {
protected:
    Picture AtlasPicture() const {
        return TexturePicture(Renderer(), SpriteAtlas.Texture);
    }

    /// Empties the atlas that the fixture has built and builds it anew.
    void Rebuild() {
        DestroyTextureAtlas();
        ASSERT_TRUE(BuildTextureAtlas(Renderer()));
    }
};

TEST_F(Atlas, ShowsEveryCellAndItsMoatAsTheArtSays) {
    const Picture atlas = AtlasPicture();
    ASSERT_EQ(atlas.Width(), AtlasWidth);
    ASSERT_EQ(atlas.Height(), AtlasWidth);
    for (int y = 0; y < AtlasWidth; ++y) {
        for (int x = 0; x < AtlasWidth; ++x) {
            ASSERT_EQ(atlas.At(x, y), ExpectedAtlasPixel(x, y)) << "at " << x << ", " << y;
        }
    }
}

TEST_F(Atlas, RepeatsTheTopLeftPixelInTheCornerOfTheMoat) {
    const Picture atlas = AtlasPicture();
    EXPECT_EQ(atlas.At(0, 3 * 18), 0xFF1C3241U); // SpriteGroundEarth is the first of the fourth row
    EXPECT_EQ(atlas.At(0, 0), 0U);               // the player's car has no pixel in its corner
}

TEST_F(Atlas, IsTransparentBesideTheLastSprite) {
    const Picture atlas = AtlasPicture();
    for (int y = 4 * 18; y < AtlasWidth; ++y) {
        for (int x = 18; x < AtlasWidth; ++x) {
            ASSERT_EQ(atlas.At(x, y), 0U) << "at " << x << ", " << y;
        }
    }
}

TEST_F(Atlas, TellsWhereEachSpriteStands) {
    EXPECT_TRUE(SameRect(SpriteAtlas.Source[SpritePlayer], {1.0F, 1.0F, 16.0F, 16.0F}));
    EXPECT_TRUE(SameRect(SpriteAtlas.Source[SpriteEnemy], {73.0F, 1.0F, 16.0F, 16.0F}));
    EXPECT_TRUE(SameRect(SpriteAtlas.Source[SpriteEnemyTough], {1.0F, 19.0F, 16.0F, 16.0F}));
    EXPECT_TRUE(SameRect(SpriteAtlas.Source[SpriteRoadSurface], {55.0F, 37.0F, 16.0F, 16.0F}));
    EXPECT_TRUE(SameRect(SpriteAtlas.Source[SpriteRoadsideShrubBright], {1.0F, 73.0F, 16.0F, 16.0F}));
}

TEST_F(Atlas, IsATargetTextureWithCrispPixelsAndBlending) {
    const SDL_PropertiesID properties = SDL_GetTextureProperties(SpriteAtlas.Texture);
    EXPECT_EQ(SDL_GetNumberProperty(properties, SDL_PROP_TEXTURE_FORMAT_NUMBER, 0), 0x16462004);
    EXPECT_EQ(
        SDL_GetNumberProperty(properties, SDL_PROP_TEXTURE_ACCESS_NUMBER, -1), SDL_TEXTUREACCESS_TARGET);
    SDL_BlendMode blendMode = SDL_BLENDMODE_INVALID;
    SDL_ScaleMode scaleMode = SDL_SCALEMODE_INVALID;
    ASSERT_TRUE(SDL_GetTextureBlendMode(SpriteAtlas.Texture, &blendMode));
    ASSERT_TRUE(SDL_GetTextureScaleMode(SpriteAtlas.Texture, &scaleMode));
    EXPECT_EQ(blendMode, SDL_BLENDMODE_BLEND);
    EXPECT_EQ(scaleMode, SDL_SCALEMODE_NEAREST);
}

TEST_F(Atlas, IsNotBuiltASecondTime) {
    SDL_Texture *texture = SpriteAtlas.Texture;
    ASSERT_TRUE(SDL_SetRenderTarget(Renderer(), texture));
    ASSERT_TRUE(SDL_SetRenderDrawColor(Renderer(), 1, 2, 3, 255));
    ASSERT_TRUE(SDL_RenderPoint(Renderer(), 60.0F, 60.0F));
    ASSERT_TRUE(SDL_SetRenderTarget(Renderer(), nullptr));

    EXPECT_TRUE(BuildTextureAtlas(Renderer()));

    EXPECT_EQ(SpriteAtlas.Texture, texture);
    EXPECT_EQ(AtlasPicture().At(60, 60), 0xFF030201U);
}

TEST_F(Atlas, LeavesTheWindowAsTheRenderTargetAndUntouched) {
    Rebuild();
    EXPECT_EQ(SDL_GetRenderTarget(Renderer()), nullptr);
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Atlas, PutsBackARenderTargetOfTheCaller) {
    SDL_Texture *target =
        SDL_CreateTexture(Renderer(), SDL_PIXELFORMAT_RGBA8888, SDL_TEXTUREACCESS_TARGET, 32, 32);
    ASSERT_TRUE(SDL_SetRenderTarget(Renderer(), target));
    SDL_SetRenderDrawColor(Renderer(), 10, 20, 30, 255);
    SDL_RenderClear(Renderer());

    Rebuild();

    EXPECT_EQ(SDL_GetRenderTarget(Renderer()), target);
    EXPECT_EQ(TexturePicture(Renderer(), target).BoundsOfAllBut(0xFF1E140AU).w, 0);
    SDL_SetRenderTarget(Renderer(), nullptr);
    SDL_DestroyTexture(target);
}

TEST_F(Atlas, LeavesClippingOffWhereItWasOff) {
    Rebuild();
    EXPECT_FALSE(SDL_RenderClipEnabled(Renderer()));
    SDL_SetRenderTarget(Renderer(), SpriteAtlas.Texture);
    EXPECT_FALSE(SDL_RenderClipEnabled(Renderer()));
    SDL_SetRenderTarget(Renderer(), nullptr);
}

TEST_F(Atlas, PutsBackAClipRectangleOfTheCallerAndIsNotCutByIt) {
    const SDL_Rect clip{3, 4, 5, 6};
    ASSERT_TRUE(SDL_SetRenderClipRect(Renderer(), &clip));

    Rebuild();

    EXPECT_TRUE(SDL_RenderClipEnabled(Renderer()));
    SDL_Rect after{};
    ASSERT_TRUE(SDL_GetRenderClipRect(Renderer(), &after));
    EXPECT_TRUE(SDL_RectsEqual(&clip, &after));
    EXPECT_EQ(AtlasPicture().At(60, 60), ExpectedAtlasPixel(60, 60));
}

TEST_F(Atlas, PaintsASpriteAnywherePixelByPixel) {
    PaintSprite(Renderer(), SpriteObstacleRock, 200.0F, 300.0F);
    const Picture shown = Shown();
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const std::uint32_t art = ArtPixel(SpriteObstacleRock, x, y);
            ASSERT_EQ(shown.At(200 + x, 300 + y), art == 0 ? Backdrop : art) << "at " << x << ", " << y;
        }
    }
}

TEST_F(Atlas, PaintsNothingForAnIdThatIsNoSprite) {
    for (const std::int32_t id : {-1, 21, 1000}) {
        PaintSprite(Renderer(), static_cast<SpriteId>(id), 20.0F, 20.0F);
    }
    EXPECT_EQ(Shown().BoundsOfAllBut(Backdrop).w, 0);
}

TEST_F(Atlas, TakesASymbolWithoutAColourForTransparent) {
    SpriteMap map;
    map.Legend[9] = 0xFF112233;
    EXPECT_EQ(SymbolColor(map, 'J'), 0xFF112233U);
    EXPECT_EQ(SymbolColor(map, 'A'), 0U);
    EXPECT_EQ(SymbolColor(map, '@'), 0U); // before 'A'
    EXPECT_EQ(SymbolColor(map, 'K'), 0U);
}

TEST_F(Atlas, IsEmptyOnceItIsDestroyed) {
    DestroyTextureAtlas();
    EXPECT_EQ(SpriteAtlas.Texture, nullptr);
}
