#include "gfx/Atlas.hpp"
#include "gfx/Credits.hpp"
#include "gfx/Draw.hpp"
#include "gfx/GameOverPanel.hpp"
#include "gfx/Help.hpp"
#include "gfx/MainMenu.hpp"
#include "gfx/OptionsPages.hpp"
#include "gfx/PausePanel.hpp"
#include "gfx/SpriteMaps.hpp"
#include "gfx/World.hpp"
#include "input/Devices.hpp"
#include "tests/gfx/Art.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "tests/support/watch/SdlWatch.hpp"

#include <array>
#include <functional>
#include <optional>

namespace {

/// What SDL must be set to for a draw call: where one differs from that of the call before, a batch ends.
struct DrawState {
    SDL_Texture *Texture;
    SDL_BlendMode Mode;
    std::optional<SDL_Rect> Clip;
};

bool HaveSameClip(const DrawState &A, const DrawState &B) {
    return A.Clip.has_value() == B.Clip.has_value() && (!A.Clip || SDL_RectsEqual(&*A.Clip, &*B.Clip));
}

/// Counts while it lives what SDL is asked to draw.
class BatchCounter {
public:
    explicit BatchCounter(SDL_Renderer *Renderer) : Target(Renderer) {
        Watch.RenderFillRect.Before = [this](SDL_Renderer *, const SDL_FRect *) {
            NoteFill();
        };
        Watch.RenderTexture.Before = [this](SDL_Renderer *, SDL_Texture *Texture, const SDL_FRect *,
                                         const SDL_FRect *) {
            SDL_BlendMode mode = SDL_BLENDMODE_INVALID;
            SDL_GetTextureBlendMode(Texture, &mode);
            Note(Texture, mode);
        };
    }

    int Batches = 0;        ///< as it is drawn
    int BlendedBatches = 0; ///< as it would be if all was blended
    int ModeChanges = 0;    ///< from one draw call to the next
    int UnblendedFills = 0;
    int UnblendedTiles = 0;
    bool HasLostAlpha = false; ///< whether a translucent fill was not blended

private:
    void NoteFill() {
        SDL_BlendMode mode = SDL_BLENDMODE_INVALID;
        Uint8 alpha = 0;
        SDL_GetRenderDrawBlendMode(Target, &mode);
        SDL_GetRenderDrawColor(Target, nullptr, nullptr, nullptr, &alpha);
        HasLostAlpha = HasLostAlpha || (mode != SDL_BLENDMODE_BLEND && alpha != 255);
        Note(nullptr, mode);
    }

    void Note(SDL_Texture *Texture, SDL_BlendMode Mode) {
        DrawState next{Texture, Mode, std::nullopt};
        if (SDL_RenderClipEnabled(Target)) {
            SDL_GetRenderClipRect(Target, &next.Clip.emplace());
        }
        const bool isFirst = !Last;
        const bool hasChangedMode = !isFirst && Last->Mode != Mode;
        const bool hasChangedElse = isFirst || Last->Texture != Texture || !HaveSameClip(*Last, next);
        BlendedBatches += hasChangedElse ? 1 : 0;
        Batches += hasChangedElse || hasChangedMode ? 1 : 0;
        ModeChanges += hasChangedMode ? 1 : 0;
        (Texture == nullptr ? UnblendedFills : UnblendedTiles) += Mode == SDL_BLENDMODE_NONE ? 1 : 0;
        Last = next;
    }

    SDL_Renderer *Target;
    SdlWatch Watch;
    std::optional<DrawState> Last;
};

/// A run with something of every kind on the road, in the scenery of a stage and, if there is another, with
/// the one before it still on the screen.
GameState BusyRun(std::int32_t Stage, std::int32_t PreviousStage) {
    GameState state = EmptyRoad(Stage);
    state.PreviousStage = PreviousStage;
    state.StageTransition = 0.5F;
    state.PlayerDying = false;
    state.InvincibilityPowerTimer = 1.0F;
    state.ReadyBanner = 1.0F;
    state.Bombs = 2;
    for (int i = 0; i < 5; ++i) {
        const float y = 100.0F + 60.0F * static_cast<float>(i);
        state.Items.push_back({.X = 500.0F, .Y = y, .Type = i % 4});
        state.Obstacles.push_back({.X = 600.0F, .Y = y, .HitFlash = 0.1F, .Type = i % 3});
        state.Bullets.push_back({.X = 640.0F, .Y = y});
        state.EnemyBullets.push_back({.X = 650.0F, .Y = y});
        state.Enemies.push_back({.X = 700.0F, .Y = y, .HitFlash = 0.1F, .Color = {}});
        state.Explosions.push_back({560.0F, y, 0.5F, 1.0F, 40.0F, {255, 120, 40, 200}});
    }
    return state;
}

using DrawFunction = std::function<void(SDL_Renderer *Renderer, const GameState &State)>;

} // namespace

class BlendMode : public GfxTest {
protected:
    /// Draws, and expects that no batch has come to those of blending all, and that the modes are what they
    /// were.
    void ExpectNoMoreBatches(const DrawFunction &Draw, const GameState &State) {
        const BatchCounter counter(Renderer());
        Draw(Renderer(), State);
        EXPECT_GT(counter.Batches, 0);
        EXPECT_EQ(counter.Batches, counter.BlendedBatches);
        EXPECT_FALSE(counter.HasLostAlpha);
        ExpectBlending();
    }

    void ExpectBlending() const {
        SDL_BlendMode mode = SDL_BLENDMODE_INVALID;
        ASSERT_TRUE(SDL_GetRenderDrawBlendMode(Renderer(), &mode));
        EXPECT_EQ(mode, SDL_BLENDMODE_BLEND);
        ASSERT_TRUE(SDL_GetTextureBlendMode(SpriteAtlas.Texture, &mode));
        EXPECT_EQ(mode, SDL_BLENDMODE_BLEND);
    }

    const InputDevices Devices{};
};

TEST_F(BlendMode, ChangesOnceInABusyFrame) {
    const BatchCounter counter(Renderer());
    RenderGameplay(Renderer(), BusyRun(1, 1));
    EXPECT_EQ(counter.ModeChanges, 1); // from the road's tiles to all that lies on them
    EXPECT_GT(counter.UnblendedTiles, 600);
    EXPECT_EQ(counter.UnblendedFills, 0);
}

TEST_F(BlendMode, ChangesThriceWithShrubsBetweenGroundAndRoad) {
    const BatchCounter counter(Renderer());
    RenderGameplay(Renderer(), BusyRun(4, 4));
    EXPECT_EQ(counter.ModeChanges, 3);
}

TEST_F(BlendMode, AddsNoBatchToTheWorldInAnyScenery) {
    constexpr std::array stages{1, 2, 4, 8}; // earth, water, dirt, grass
    for (const std::int32_t stage : stages) {
        for (const std::int32_t previous : stages) {
            ExpectNoMoreBatches(RenderGameplay, BusyRun(stage, previous));
            GameState empty = BusyRun(stage, previous);
            empty.Items.clear();
            empty.Obstacles.clear();
            empty.Enemies.clear();
            empty.Bombs = 0;
            ExpectNoMoreBatches(RenderGameplay, empty);
        }
    }
}

TEST_F(BlendMode, AddsNoBatchToAnyPageOrPanel) {
    GameState state = BusyRun(1, 1);
    state.Bombs = 0; // so that the last of the HUD is a text
    state.CreditsScroll = 400.0F;
    ExpectNoMoreBatches(RenderMainMenu, state);
    ExpectNoMoreBatches(RenderCredits, state);
    const auto help = [this](SDL_Renderer *Renderer, const GameState &State) {
        RenderHelp(Renderer, State, Devices);
    };
    const auto options = [this](SDL_Renderer *Renderer, const GameState &State) {
        RenderOptions(Renderer, State, Devices);
    };
    const auto pause = [this](SDL_Renderer *Renderer, const GameState &State) {
        RenderGameplay(Renderer, State);
        RenderPauseOverlay(Renderer, State, Devices);
    };
    const auto gameOver = [this](SDL_Renderer *Renderer, const GameState &State) {
        RenderGameplay(Renderer, State);
        RenderGameOverOverlay(Renderer, State, Devices);
    };
    for (const DrawFunction &draw :
        {DrawFunction(help), DrawFunction(options), DrawFunction(pause), DrawFunction(gameOver)}) {
        ExpectNoMoreBatches(draw, state);
    }
}

TEST_F(BlendMode, IsSetOnlyWhereItChanges) {
    SdlWatch watch;
    int settings = 0;
    watch.SetTextureBlendMode.Before = [&settings](SDL_Texture *Texture, SDL_BlendMode Mode) {
        SDL_BlendMode old = SDL_BLENDMODE_INVALID;
        SDL_GetTextureBlendMode(Texture, &old);
        EXPECT_NE(old, Mode);
        ++settings;
    };
    RenderGameplay(Renderer(), BusyRun(4, 4));
    EXPECT_EQ(settings, 6); // there and back for each bank and for the road
    EXPECT_EQ(watch.SetRenderDrawBlendMode.Count(), 0);
    RenderMainMenu(Renderer(), GameState{});
    EXPECT_EQ(settings, 6);
    EXPECT_EQ(watch.SetRenderDrawBlendMode.Count(), 2);
}

TEST_F(BlendMode, IsNoneForAllThatAPageFills) {
    const BatchCounter counter(Renderer());
    RenderMainMenu(Renderer(), GameState{});
    EXPECT_GT(counter.UnblendedFills, 40);
    EXPECT_EQ(counter.ModeChanges, 0);
    EXPECT_EQ(counter.Batches, 1);
}

TEST_F(BlendMode, OfAPagePutsBackWhatItFound) {
    SDL_SetRenderDrawBlendMode(Renderer(), SDL_BLENDMODE_ADD);
    RenderMainMenu(Renderer(), GameState{});
    SDL_BlendMode mode = SDL_BLENDMODE_INVALID;
    ASSERT_TRUE(SDL_GetRenderDrawBlendMode(Renderer(), &mode));
    EXPECT_EQ(mode, SDL_BLENDMODE_ADD);
}

TEST_F(BlendMode, OfTilesIsNoneForSpritesWithoutATransparentPixelAlone) {
    for (std::int32_t id = 0; id < SpriteCount; ++id) {
        bool isOpaque = true;
        for (int i = 0; i < 256; ++i) {
            isOpaque = isOpaque && ArtPixel(id, i % 16, i / 16) >> 24U == 0xFF;
        }
        const auto sprite = static_cast<SpriteId>(id);
        EXPECT_EQ(IsOpaque(sprite), isOpaque) << id;
        const BatchCounter counter(Renderer());
        DrawTiledSprite(Renderer(), sprite, 100.0F, 100.0F, 64.0F, 64.0F, 5.0F, 5.0F, 2.0F);
        EXPECT_EQ(counter.UnblendedTiles > 0, isOpaque) << id;
        ExpectBlending();
    }
}

TEST_F(BlendMode, OfASpriteThatIsTintedStaysBlended) {
    const BatchCounter counter(Renderer());
    DrawSpriteTinted(Renderer(), SpriteGroundEarth, 100.0F, 100.0F, 32.0F, 32.0F, 0x780000FF);
    DrawSprite(Renderer(), SpriteGroundEarth, 200.0F, 100.0F, 32.0F, 32.0F);
    EXPECT_EQ(counter.UnblendedTiles, 0);
    EXPECT_EQ(counter.Batches, 1);
}
