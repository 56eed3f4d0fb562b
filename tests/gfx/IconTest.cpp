#include "gfx/Atlas.hpp"

#include "tests/gfx/Art.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "tests/gfx/LivingThings.hpp"

#include <optional>

/// What SDL_SetWindowIcon was given, and what it answered.
struct GivenIcon {
    SDL_Window *Window;
    SDL_PixelFormat Format;
    Picture Pixels;
    bool Answer;
};

class WindowIcon : public GfxTest {
protected:
    WindowIcon() : Window(SDL_CreateWindow("icon", 64, 64, SDL_WINDOW_HIDDEN)) {
        EXPECT_NE(Window, nullptr) << SDL_GetError();
        Watch.SetWindowIcon.Answer = [this](SDL_Window *Receiver, SDL_Surface *Icon) {
            const bool answer = SDL_SetWindowIcon(Receiver, Icon);
            LastIcon = GivenIcon{Receiver, Icon->format, Picture(Icon), answer};
            return answer;
        };
    }
    ~WindowIcon() override {
        SDL_DestroyWindow(Window);
    }

    /// The icon fails, leaks nothing, and leaves the window as the render target.
    void ExpectFailure() {
        const int surfaces = LivingSurfaces(Watch);
        EXPECT_FALSE(SetWindowIconFromAtlas(Window, Renderer()));
        EXPECT_EQ(LivingSurfaces(Watch), surfaces);
        EXPECT_EQ(SDL_GetRenderTarget(Renderer()), nullptr);
    }

    template <typename Call> void ExpectFailureWithout(Call &Failing) {
        Failing.Refuse();
        ExpectFailure();
        EXPECT_STREQ(SDL_GetError(), CallWatch::RefusalText);
        EXPECT_FALSE(LastIcon.has_value());
    }

    SdlWatch Watch;
    std::optional<GivenIcon> LastIcon;
    SDL_Window *Window;
};

TEST_F(WindowIcon, ShowsThePlayersCarInBlocksOfFourByFour) {
    SetWindowIconFromAtlas(Window, Renderer());
    ASSERT_TRUE(LastIcon.has_value());
    EXPECT_EQ(LastIcon->Window, Window);
    EXPECT_EQ(LastIcon->Format, SDL_PIXELFORMAT_RGBA8888);
    ASSERT_EQ(LastIcon->Pixels.Width(), 64);
    ASSERT_EQ(LastIcon->Pixels.Height(), 64);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            ASSERT_EQ(LastIcon->Pixels.At(x, y), ArtPixel(SpritePlayer, x / 4, y / 4)) << x << ", " << y;
        }
    }
}

TEST_F(WindowIcon, AnswersWhatTheWindowSystemAnswers) {
    const bool answer = SetWindowIconFromAtlas(Window, Renderer());
    ASSERT_TRUE(LastIcon.has_value());
    EXPECT_EQ(answer, LastIcon->Answer);
}

TEST_F(WindowIcon, LeavesNoSurfaceBehindAndPutsTheRenderTargetBack) {
    SDL_Texture *target =
        SDL_CreateTexture(Renderer(), SDL_PIXELFORMAT_RGBA8888, SDL_TEXTUREACCESS_TARGET, 8, 8);
    ASSERT_TRUE(SDL_SetRenderTarget(Renderer(), target));
    const int surfaces = LivingSurfaces(Watch);

    SetWindowIconFromAtlas(Window, Renderer());

    EXPECT_EQ(LivingSurfaces(Watch), surfaces);
    EXPECT_EQ(SDL_GetRenderTarget(Renderer()), target);
    SDL_SetRenderTarget(Renderer(), nullptr);
    SDL_DestroyTexture(target);
}

TEST_F(WindowIcon, FailsWhileTheAtlasIsEmpty) {
    DestroyTextureAtlas();
    SDL_ClearError();
    ExpectFailure();
    EXPECT_STREQ(SDL_GetError(), "The sprite atlas is empty");
    EXPECT_FALSE(LastIcon.has_value());
}

TEST_F(WindowIcon, FailsForASpriteWithoutWidthOrHeight) {
    const SDL_FRect source = SpriteAtlas.Source[SpritePlayer];
    for (const SDL_FRect &bad : {SDL_FRect{1.0F, 1.0F, 0.4F, 16.0F}, SDL_FRect{1.0F, 1.0F, 16.0F, 0.4F}}) {
        SpriteAtlas.Source[SpritePlayer] = bad;
        ExpectFailure();
        EXPECT_FALSE(LastIcon.has_value());
    }
    SpriteAtlas.Source[SpritePlayer] = source;
}

TEST_F(WindowIcon, FailsIfTheAtlasCannotBeATarget) {
    ExpectFailureWithout(Watch.SetRenderTarget);
}

TEST_F(WindowIcon, FailsIfTheAtlasCannotBeRead) {
    ExpectFailureWithout(Watch.RenderReadPixels);
}

TEST_F(WindowIcon, FailsWithoutASurfaceToEnlargeOnto) {
    ExpectFailureWithout(Watch.CreateSurface);
}

TEST_F(WindowIcon, FailsIfTheCarCannotBeEnlarged) {
    ExpectFailureWithout(Watch.BlitSurfaceScaled);
}

TEST_F(WindowIcon, FailsIfTheWindowDoesNotTakeIt) {
    ExpectFailureWithout(Watch.SetWindowIcon);
}
