#include "state/Resolutions.hpp"

#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr std::array<Resolution, 7> BuiltInResolutions4x3{{
    {640, 480},
    {800, 600},
    {960, 720},
    {1024, 768},
    {1280, 960},
    {1600, 1200},
    {1920, 1440},
}};

constexpr std::array<Resolution, 21> BuiltInResolutionsWide{{
    {640, 360},
    {800, 450},
    {960, 540},
    {1280, 720},
    {1280, 800},
    {1366, 768},
    {1440, 900},
    {1600, 900},
    {1680, 1050},
    {1920, 1080},
    {1920, 1200},
    {2160, 1440},
    {2560, 1080},
    {2560, 1440},
    {2560, 1600},
    {2880, 1800},
    {3000, 2000},
    {3440, 1440},
    {3840, 1600},
    {3840, 2160},
    {5120, 1440},
}};

static_assert(BuiltInResolutions4x3[DefaultResolutionIndex(AspectClassic4x3)] == Resolution{960, 720});
static_assert(BuiltInResolutionsWide[DefaultResolutionIndex(AspectWidescreen)] == Resolution{1280, 720});

std::int32_t LogicalWidthFor(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height) {
    if (AspectMode == AspectClassic4x3) {
        return LogicalHeight * 4 / 3;
    }
    if (RatioMatches(Width, Height, 32, 9)) {
        return LogicalHeight * 32 / 9;
    }
    if (IsUltrawide(Width, Height)) {
        return LogicalHeight * 12 / 5; // the widest of its shapes
    }
    if (RatioMatches(Width, Height, 3, 2)) {
        return LogicalHeight * 3 / 2;
    }
    if (RatioMatches(Width, Height, 16, 10)) {
        return LogicalHeight * 16 / 10;
    }
    return DefaultLogicalWidth;
}

/// Wraps around beyond 32 bits, where only sizes lie that no display has.
std::int32_t WrappingProduct(std::int32_t A, std::int32_t B) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(A) * static_cast<std::uint32_t>(B));
}

std::int32_t ClampToList(std::int32_t Index, std::span<const Resolution> List) {
    return std::clamp(Index, 0, static_cast<std::int32_t>(List.size()) - 1);
}

} // namespace

bool RatioMatches(
    std::int32_t Width, std::int32_t Height, std::int32_t RatioWidth, std::int32_t RatioHeight) {
    if (Width <= 0 || Height <= 0) {
        return false;
    }
    const std::int32_t a = WrappingProduct(Width, RatioHeight);
    const std::int32_t b = WrappingProduct(RatioWidth, Height);
    return std::abs(std::int64_t{a} - b) <= std::max(std::max(a, b) / 200, 1);
}

bool IsUltrawide(std::int32_t Width, std::int32_t Height) {
    return RatioMatches(Width, Height, 64, 27) || RatioMatches(Width, Height, 43, 18) ||
           RatioMatches(Width, Height, 21, 9) || RatioMatches(Width, Height, 12, 5);
}

bool ResolutionAllowed(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height) {
    if (AspectMode == AspectClassic4x3) {
        return RatioMatches(Width, Height, 4, 3);
    }
    return RatioMatches(Width, Height, 16, 9) || RatioMatches(Width, Height, 16, 10) ||
           RatioMatches(Width, Height, 3, 2) || IsUltrawide(Width, Height) ||
           RatioMatches(Width, Height, 32, 9);
}

void ComputeLogicalWidth(enum AspectMode AspectMode, std::int32_t Width, std::int32_t Height) {
    LogicalWidth = LogicalWidthFor(AspectMode, Width, Height);
}

std::span<const Resolution> BuiltInResolutions(enum AspectMode AspectMode) {
    if (AspectMode == AspectClassic4x3) {
        return BuiltInResolutions4x3;
    }
    return BuiltInResolutionsWide;
}

std::span<const Resolution> ResolutionsInForce(const GameState &State) {
    if (State.Resolutions.empty()) {
        return BuiltInResolutions(State.AspectMode);
    }
    return State.Resolutions;
}

Resolution CurrentResolution(const GameState &State) {
    const std::span<const Resolution> list = ResolutionsInForce(State);
    return list[static_cast<std::size_t>(ClampToList(State.ResolutionIndex, list))];
}

std::int32_t FindResolutionIndex(
    const GameState &State, std::int32_t Width, std::int32_t Height, std::int32_t Fallback) {
    const std::span<const Resolution> list = ResolutionsInForce(State);
    const auto found = std::ranges::find(list, Resolution{Width, Height});
    if (Width > 0 && Height > 0 && found != list.end()) {
        return static_cast<std::int32_t>(found - list.begin());
    }
    return ClampToList(Fallback, list);
}
