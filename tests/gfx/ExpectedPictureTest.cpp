#include "tests/gfx/ExpectedPicture.hpp"

#include "gfx/SpriteId.hpp"
#include "tests/gfx/Art.hpp"

// The judge of all pictures must see a fault itself.

namespace {

constexpr int Side = 24; ///< every third column and row of an enlarged sprite lies between two of the art's

void Paint(const Canvas &Canvas, int X, int Y, std::uint32_t PackedColor) {
    SDL_SetRenderDrawColor(Canvas.Renderer(), static_cast<Uint8>(PackedColor & 0xFFU),
        static_cast<Uint8>(PackedColor >> 8U & 0xFFU), static_cast<Uint8>(PackedColor >> 16U & 0xFFU), 255);
    SDL_RenderPoint(Canvas.Renderer(), static_cast<float>(X), static_cast<float>(Y));
}

/// What shows of the art at a place of the enlarged car, between two pixels the right or lower one.
std::uint32_t NearestArt(int X, int Y) {
    const std::uint32_t color = ArtPixel(SpritePlayer, (2 * X + 1) / 3, (2 * Y + 1) / 3);
    return color == 0 ? Backdrop : color;
}

ExpectedPicture EnlargedSprite() {
    ExpectedPicture expected(Side, Side);
    expected.Sprite(SpritePlayer, Side / 2.0F, Side / 2.0F, Side, Side);
    return expected;
}

void PaintEnlargedSprite(const Canvas &Canvas) {
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            Paint(Canvas, x, y, NearestArt(x, y));
        }
    }
}

} // namespace

TEST(ExpectedPicture, SeesOnePixelThatIsOffByOne) {
    const ExpectedPicture expected(Side, Side, 0xFF102030);
    Canvas canvas(Side, Side, 0xFF102030);
    EXPECT_TRUE(expected.IsShownBy(canvas.Shown()));
    for (const std::uint32_t wrong : {0xFF102031U, 0xFF102130U, 0xFF112030U}) {
        canvas.Clear(0xFF102030);
        Paint(canvas, Side - 1, Side - 1, wrong);
        EXPECT_FALSE(expected.IsShownBy(canvas.Shown())) << std::hex << wrong;
        EXPECT_TRUE(expected.IsShownBy(canvas.Shown(), {0, 0, Side, Side - 1}));
        EXPECT_FALSE(expected.IsShownBy(canvas.Shown(), {Side - 1, Side - 1, 1, 1}));
    }
}

TEST(ExpectedPicture, TakesEitherColorBetweenTwoPixelsOfTheArtButNoThird) {
    const ExpectedPicture expected = EnlargedSprite();
    const Canvas canvas(Side, Side);
    constexpr int row = 8; // between no two rows of the art
    int differing = 0;
    for (int x = 1; x < Side; x += 3) {
        const std::uint32_t left = NearestArt(x - 1, row);
        differing += left != NearestArt(x, row) ? 1 : 0;
        PaintEnlargedSprite(canvas);
        EXPECT_TRUE(expected.IsShownBy(canvas.Shown())) << x;
        Paint(canvas, x, row, left);
        EXPECT_TRUE(expected.IsShownBy(canvas.Shown())) << x;
        Paint(canvas, x, row, left ^ 1U);
        EXPECT_FALSE(expected.IsShownBy(canvas.Shown())) << x;
    }
    EXPECT_GT(differing, 0);
}

TEST(ExpectedPicture, SeesASpriteThatIsMovedByAPixel) {
    ExpectedPicture expected(2 * Side, 2 * Side);
    expected.Sprite(SpritePlayer, Side, Side, 26, 26);
    ExpectedPicture moved(2 * Side, 2 * Side);
    moved.Sprite(SpritePlayer, Side + 1, Side, 26, 26);
    const Canvas canvas(2 * Side, 2 * Side);
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            const std::uint32_t color = ArtPixel(SpritePlayer, (2 * x + 1) * 8 / 26, (2 * y + 1) * 8 / 26);
            if (color != 0) {
                Paint(canvas, Side - 13 + x, Side - 13 + y, color);
            }
        }
    }
    EXPECT_TRUE(expected.IsShownBy(canvas.Shown()));
    EXPECT_FALSE(moved.IsShownBy(canvas.Shown()));
}

TEST(ExpectedPicture, TakesABlendedColorThatIsOffByTwoButNoMore) {
    ExpectedPicture expected(Side, Side, 0xFF000000);
    expected.BlendRect(0, 0, Side, Side, 0x80FFFFFF); // 128 on each channel
    for (const std::uint32_t right : {0xFF808080U, 0xFF827E80U}) {
        EXPECT_TRUE(expected.IsShownBy(Canvas(Side, Side, right).Shown())) << std::hex << right;
    }
    for (const std::uint32_t wrong : {0xFF808083U, 0xFF807D80U, 0xFF838080U}) {
        EXPECT_FALSE(expected.IsShownBy(Canvas(Side, Side, wrong).Shown())) << std::hex << wrong;
    }
}

TEST(ExpectedPicture, ForgetsBlendsAndChoicesThatAreFilledOver) {
    ExpectedPicture expected = EnlargedSprite();
    expected.BlendRect(0, 0, Side, Side, 0x80FFFFFF);
    expected.Fill(0, 0, Side, Side, 0xFF102030);
    EXPECT_TRUE(expected.IsShownBy(Canvas(Side, Side, 0xFF102030).Shown()));
    EXPECT_FALSE(expected.IsShownBy(Canvas(Side, Side, 0xFF102031).Shown()));
}

TEST(ExpectedPicture, IsNotShownByAPictureOfAnotherSize) {
    const ExpectedPicture expected(Side, Side);
    EXPECT_FALSE(expected.IsShownBy(Canvas(Side + 1, Side).Shown()));
    EXPECT_FALSE(expected.IsShownBy(Canvas(Side - 1, Side).Shown(), {0, 0, Side, Side}));
    EXPECT_FALSE(expected.IsShownBy(Canvas(Side + 1, Side).Shown(), {0, 0, Side + 1, Side}));
    EXPECT_TRUE(expected.IsShownBy(Canvas(Side + 1, Side).Shown(), {0, 0, Side, Side}));
}
