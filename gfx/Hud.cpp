#include "gfx/Hud.hpp"

#include "gfx/Draw.hpp"
#include "gfx/Entities.hpp"
#include "gfx/Text.hpp"
#include "sim/Bomb.hpp"
#include "sim/Lanes.hpp"
#include "state/GameState.hpp"
#include "state/Limits.hpp"
#include "state/LogicalScreen.hpp"
#include "state/Numbers.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr int TextScale = 3;
constexpr std::uint32_t TextColor = 0xFFEBEBEB;

constexpr float LeftColumnX = 24.0F;
constexpr std::size_t ScoreDigits = 8;

constexpr float PanelMargin = 24.0F; ///< from the right edge
constexpr int LabelGap = 12;
constexpr float BarWidth = 110.0F;
constexpr float BarHeight = 10.0F;
constexpr float IconSize = 26.0F;
constexpr float IconDistance = 30.0F;

constexpr int BannerScale = 5;
constexpr float BannerY = 340.0F;
constexpr std::uint32_t BannerColor = 0xFFFFB41E;

constexpr float FlashStartRadius = 40.0F;
constexpr float FlashGrowth = 420.0F;
constexpr std::uint32_t FlashColor = 0x8278F5FF;

struct BarStyle {
    float Y;
    std::uint32_t BackColor;
    std::uint32_t FillColor;
};

constexpr BarStyle HealthBar{34.0F, 0xFF28461C, 0xFF82E65F};
constexpr BarStyle AmmoBar{68.0F, 0xFF193C3C, 0xFF50DCF0};

/// A number as text: a prefix of at most 12 characters, then the number, filled up with zeros to Digits
/// characters, at most 20. It keeps the characters itself, since a frame allocates nothing.
class NumberText {
public:
    explicit NumberText(std::int64_t Number, std::size_t Digits = 1, std::string_view Prefix = "") {
        std::array<char, 20> digits{};
        const char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), Number).ptr;
        const std::string_view written(digits.data(), static_cast<std::size_t>(end - digits.data()));
        Append(Prefix);
        for (std::size_t i = written.size(); i < Digits; ++i) {
            Append("0");
        }
        Append(written);
    }

    std::string_view View() const {
        return {Characters.data(), Length};
    }

private:
    void Append(std::string_view Piece) {
        std::copy(Piece.begin(), Piece.end(), Characters.begin() + static_cast<std::ptrdiff_t>(Length));
        Length += Piece.size();
    }

    std::array<char, 32> Characters{};
    std::size_t Length = 0;
};

void DrawHudText(SDL_Renderer *Renderer, std::string_view Text, float X, float Y) {
    DrawText(Renderer, Text, X, Y, TextScale, TextColor);
}

void DrawLeftColumn(SDL_Renderer *Renderer, const GameState &State) {
    DrawHudText(Renderer, GetText(TextKey::HudStage), LeftColumnX, 18.0F);
    DrawHudText(Renderer, NumberText(State.Stage).View(), LeftColumnX, 50.0F);
    DrawHudText(Renderer, GetText(TextKey::HudScore), LeftColumnX, 92.0F);
    DrawHudText(Renderer, NumberText(State.Score, ScoreDigits).View(), LeftColumnX, 122.0F);
    DrawHudText(Renderer, GetText(TextKey::HudHighScore), LeftColumnX, 160.0F);
    DrawHudText(Renderer, NumberText(State.HighScore, ScoreDigits).View(), LeftColumnX, 190.0F);
}

/// Draws a bar whose fill is a share of its width, also where that is not within 0 to 1.
void DrawBar(SDL_Renderer *Renderer, const BarStyle &Style, float X, float Share) {
    FillRect(Renderer, X, Style.Y, BarWidth, BarHeight, Style.BackColor);
    FillRect(Renderer, X, Style.Y, Share * BarWidth, BarHeight, Style.FillColor);
}

/// Draws one icon for each thing held, Most at most.
void DrawIcons(
    SDL_Renderer *Renderer, SpriteId Id, float PanelX, float Y, std::int32_t Held, std::int32_t Most) {
    for (std::int32_t i = 0; i < std::min(Held, Most); ++i) {
        const float x = PanelX + IconSize * 0.5F + static_cast<float>(i) * IconDistance;
        DrawSprite(Renderer, Id, x, Y, IconSize, IconSize);
    }
}

void DrawRightPanel(SDL_Renderer *Renderer, const GameState &State) {
    const std::string &health = GetText(TextKey::HudHealth);
    const std::string &ammo = GetText(TextKey::HudAmmo);
    const auto labels =
        static_cast<float>(std::max(MeasureText(ammo, TextScale), MeasureText(health, TextScale)) + LabelGap);
    const float panelX = static_cast<float>(LogicalWidth) - PanelMargin - (labels + BarWidth);
    const float barX = panelX + labels;
    DrawHudText(Renderer, health, panelX, 28.0F);
    DrawHudText(Renderer, ammo, panelX, 62.0F);
    DrawBar(Renderer, HealthBar, barX,
        static_cast<float>(State.Player.Hp) / static_cast<float>(State.Player.MaxHp));
    DrawBar(Renderer, AmmoBar, barX, State.AmmoMeter / MaxAmmo);
    DrawSprite(Renderer, SpritePlayer, panelX + CarSize * 0.5F, 111.6F, CarSize, CarSize);
    DrawHudText(Renderer, NumberText(State.Player.Stocks, 1, "x").View(), panelX + 39.2F, 99.0F);
    DrawIcons(Renderer, SpriteItemBomb, panelX, 150.2F, State.Bombs, MaxBombs);
    DrawIcons(Renderer, SpriteItemFirstAid, panelX, 180.2F, State.FirstAidKits, MaxFirstAidKits);
}

void DrawReadyBanner(SDL_Renderer *Renderer) {
    const std::string &text = GetText(TextKey::GameplayReady);
    // NOT-BUGS: The READY banner is centred over the road
    const float roadCenter = (RoadLeft() + RoadRight()) * 0.5F;
    DrawTextCentered(Renderer, text, roadCenter, BannerY, BannerScale, BannerColor);
}

void DrawBombFlash(SDL_Renderer *Renderer, const GameState &State) {
    const float radius = (1.0F - State.SpecialTimer / BombFlashSeconds) * FlashGrowth + FlashStartRadius;
    FillDisc(Renderer, RoundToWhole(State.Player.X), RoundToWhole(State.Player.Y), radius, FlashColor);
}

} // namespace

void DrawHud(SDL_Renderer *Renderer, const GameState &State) {
    DrawLeftColumn(Renderer, State);
    DrawRightPanel(Renderer, State);
}

void DrawGameplayOverlays(SDL_Renderer *Renderer, const GameState &State) {
    if (State.ReadyBanner > 0.0F) {
        DrawReadyBanner(Renderer);
    }
    if (State.SpecialActive) {
        DrawBombFlash(Renderer, State);
    }
}
