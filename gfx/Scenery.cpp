#include "gfx/Scenery.hpp"

#include "gfx/Draw.hpp"
#include "sim/Lanes.hpp"
#include "sim/Stages.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "state/Numbers.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr float TileScale = 2.0F;

struct SceneryTheme {
    SpriteId Ground;
    SpriteId Road;
    bool HasShrubs;
    SpriteId Shrub; ///< read where HasShrubs is set
    bool IsWater;   ///< water drifts and ripples, and the road is a bridge with rails
};

constexpr SceneryTheme Earth{SpriteGroundEarth, SpriteRoadSurface, false, SpriteRoadsideShrubDark, false};
constexpr SceneryTheme Water{SpriteGroundWater, SpriteRoadBridge, false, SpriteRoadsideShrubDark, true};
constexpr SceneryTheme Dirt{SpriteGroundDirt, SpriteRoadSurface, true, SpriteRoadsideShrubDark, false};
constexpr SceneryTheme Grass{SpriteGroundGrass, SpriteRoadSurface, true, SpriteRoadsideShrubBright, false};

const SceneryTheme &ThemeRow(std::int32_t Theme) {
    switch (Theme) {
    case StageThemeWater:
        return Water;
    case StageThemeDirt:
        return Dirt;
    case StageThemeGrass:
        return Grass;
    default:
        return Earth;
    }
}

// Water, in logical pixels and seconds.
constexpr float DriftSpeed = 18.0F;
constexpr float RippleAmplitude = 6.0F;
constexpr int TexelStep = static_cast<int>(TileScale); ///< one texel of a tile

// Shrubs stand one every ShrubPeriod on each side, the right ones a little behind the left ones.
constexpr float ShrubPeriod = 72.8F;
constexpr float ShrubSize = 25.2F;
constexpr float LeftShrubShift = 14.0F;
constexpr float RightShrubShift = 33.6F;

// The bridge's rails and their lighter posts.
constexpr float RailWidth = 7.0F;
constexpr float RailInset = RailWidth; ///< from the road's edge
constexpr std::uint32_t RailColor = 0xFF908780;
constexpr int PostPeriod = 28;
constexpr int PostLength = 4;
constexpr std::uint32_t PostColor = 0xFFBCB2AA;

constexpr float EdgeLineWidth = 4.0F;
constexpr std::uint32_t EdgeLineColor = 0xFFBEB9B4;

constexpr float DashWidth = 7.0F;
constexpr float DashLength = 34.0F;
constexpr int DashPeriod = 62;
constexpr std::uint32_t DashColor = 0xFFEBEBEB;

/// The y of the first of a row of marks, one every Period, that scrolls with the road: -Period to -1.
int FirstMark(float RoadScroll, int Period) {
    return FloorModulo(RoadScroll, Period) - Period;
}

float ClampToScreen(float Y) {
    return std::clamp(Y, 0.0F, LogicalHeightF);
}

struct WaterOffsets {
    float Left;
    float Right;
};

/// The sideways shift of the two banks' tiles: both drift the same way and ripple out of step, snapped to the
/// enlarged tile's texels.
WaterOffsets WaterOffsetsAt(float GameTime, float Y0, std::int32_t FlowDirection) {
    const float base = GameTime * DriftSpeed * static_cast<float>(FlowDirection);
    const float leftRipple = std::sin(GameTime * 2.1F + Y0 * 0.03F);
    const float rightRipple = std::sin(GameTime * 2.3F + Y0 * 0.027F + 1.35F);
    return {SnapToStep(leftRipple * RippleAmplitude + base, TexelStep),
        SnapToStep(rightRipple * RippleAmplitude + base, TexelStep)};
}

/// Draws a shrub if its centre lies in the band.
/// NOT-BUGS: A roadside shrub is not cut at the edge between two stages
void DrawShrub(SDL_Renderer *Renderer, SpriteId Shrub, float X, float Y, float Y0, float Y1) {
    if (Y >= Y0 && Y < Y1) {
        DrawSprite(Renderer, Shrub, X, RoundToWhole(Y), ShrubSize, ShrubSize);
    }
}

/// Fills the same stretch of both rails.
void FillRails(SDL_Renderer *Renderer, float Top, float Height, std::uint32_t PackedColor) {
    FillRect(Renderer, RoadLeft() + RailInset, Top, RailWidth, Height, PackedColor);
    FillRect(Renderer, RoadRight() - (RailInset + RailWidth), Top, RailWidth, Height, PackedColor);
}

void DrawRails(SDL_Renderer *Renderer, float RoadScroll, float Y0, float Y1) {
    const float y0 = ClampToScreen(Y0);
    const float y1 = ClampToScreen(Y1);
    if (y0 >= y1) {
        return;
    }
    FillRails(Renderer, y0, y1 - y0, RailColor);
    const int bandTop = TruncateToInt(std::floor(y0));
    const int bandBottom = TruncateToInt(std::ceil(y1));
    for (int y = FirstMark(RoadScroll, PostPeriod); y < LogicalHeight + PostPeriod; y += PostPeriod) {
        const int top = std::max(y, bandTop);
        const int bottom = std::min(y + PostLength, bandBottom);
        if (top < bottom) {
            FillRails(Renderer, static_cast<float>(top), static_cast<float>(bottom - top), PostColor);
        }
    }
}

void DrawEdgeLines(SDL_Renderer *Renderer) {
    FillRect(Renderer, RoadLeft(), 0.0F, EdgeLineWidth, LogicalHeightF, EdgeLineColor);
    FillRect(Renderer, RoadRight() - EdgeLineWidth, 0.0F, EdgeLineWidth, LogicalHeightF, EdgeLineColor);
}

void DrawCenterDashes(SDL_Renderer *Renderer, float RoadScroll) {
    const float x = std::floor((RoadLeft() + RoadRight()) * 0.5F - DashWidth / 2.0F);
    for (int y = FirstMark(RoadScroll, DashPeriod); y < LogicalHeight + DashPeriod; y += DashPeriod) {
        FillRect(Renderer, x, static_cast<float>(y), DashWidth, DashLength, DashColor);
    }
}

/// A part of the screen with one scenery.
struct Band {
    std::int32_t Theme;
    float Y0;
    float Y1;
    std::int32_t FlowDirection;
};

/// Draws layer by layer, not band by band: shrubs stand across the edge of two bands.
void DrawBands(SDL_Renderer *Renderer, const GameState &State, std::initializer_list<Band> Bands) {
    for (const Band &band : Bands) {
        DrawGround(Renderer, State, band.Theme, band.Y0, band.Y1, band.FlowDirection);
    }
    for (const Band &band : Bands) {
        DrawRoadside(Renderer, band.Theme, State.RoadScroll, band.Y0, band.Y1);
    }
    for (const Band &band : Bands) {
        DrawRoad(Renderer, State, band.Theme, band.Y0, band.Y1);
    }
}

} // namespace

void DrawScenery(SDL_Renderer *Renderer, const GameState &State) {
    const std::int32_t oldTheme = StageThemeOf(State.PreviousStage);
    const std::int32_t newTheme = StageThemeOf(State.Stage);
    const float seam = std::clamp(State.StageTransition, 0.0F, 1.0F) * LogicalHeightF;
    if (oldTheme != newTheme && seam < LogicalHeightF) {
        DrawBands(Renderer, State,
            {{newTheme, 0.0F, seam, State.WaterFlowDirection},
                {oldTheme, seam, LogicalHeightF, State.PreviousWaterFlowDirection}});
    } else {
        DrawBands(Renderer, State, {{newTheme, 0.0F, LogicalHeightF, State.WaterFlowDirection}});
    }
    DrawEdgeLines(Renderer);
    DrawCenterDashes(Renderer, State.RoadScroll);
}

void DrawGround(SDL_Renderer *Renderer, const GameState &State, std::int32_t Theme, float Y0, float Y1,
    std::int32_t FlowDirection) {
    const SceneryTheme &theme = ThemeRow(Theme);
    // Rows follow the road alone, so bands join without a jump.
    const float offsetY = State.RoadScroll - Y0;
    WaterOffsets offsetX{0.0F, 0.0F};
    if (theme.IsWater) {
        offsetX = WaterOffsetsAt(State.GameTime, Y0, FlowDirection);
    }
    const float rightWidth = static_cast<float>(LogicalWidth) - RoadRight();
    DrawTiledSprite(Renderer, theme.Ground, 0.0F, Y0, RoadLeft(), Y1 - Y0, offsetX.Left, offsetY, TileScale);
    DrawTiledSprite(
        Renderer, theme.Ground, RoadRight(), Y0, rightWidth, Y1 - Y0, offsetX.Right, offsetY, TileScale);
}

void DrawRoadside(SDL_Renderer *Renderer, std::int32_t Theme, float RoadScroll, float Y0, float Y1) {
    const SceneryTheme &theme = ThemeRow(Theme);
    if (!theme.HasShrubs) {
        return;
    }
    const float y0 = ClampToScreen(Y0);
    const float y1 = ClampToScreen(Y1);
    float y = std::fmod(RoadScroll, ShrubPeriod) - ShrubPeriod;
    while (y < LogicalHeightF + ShrubPeriod) {
        DrawShrub(Renderer, theme.Shrub, RoadLeft() - ShrubSize, y + LeftShrubShift, y0, y1);
        DrawShrub(Renderer, theme.Shrub, RoadRight() + ShrubSize, y + RightShrubShift, y0, y1);
        y += ShrubPeriod;
    }
}

void DrawRoad(SDL_Renderer *Renderer, const GameState &State, std::int32_t Theme, float Y0, float Y1) {
    const SceneryTheme &theme = ThemeRow(Theme);
    DrawTiledSprite(
        Renderer, theme.Road, RoadLeft(), Y0, RoadWidth, Y1 - Y0, 0.0F, State.RoadScroll - Y0, TileScale);
    if (theme.IsWater) {
        DrawRails(Renderer, State.RoadScroll, Y0, Y1);
    }
}
