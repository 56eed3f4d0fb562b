#include "gfx/MainMenu.hpp"

#include "gfx/MenuStyle.hpp"
#include "gfx/Text.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "state/MenuRows.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <array>

namespace {

constexpr int NameScale = 10;
constexpr std::string_view FirstWord = "KESTREL";
constexpr std::string_view SecondWord = "VOLLEY";
constexpr std::uint32_t FirstWordColor = 0xFFFF8237;
constexpr std::uint32_t SecondWordColor = 0xFF32A0F5;
constexpr float FirstWordLeft = 362.0F; ///< from its left edge to the centre
constexpr float SecondWordLeft = 60.0F;
constexpr float SecondWordDrop = 112.0F; ///< drops are below the top of the title

constexpr int SmallScale = 3;
constexpr std::string_view VersionText = "v" KESTREL_VERSION;
constexpr float VersionDrop = 198.0F;
constexpr float VersionMargin = 22.0F; ///< from the right edge
constexpr float VersionMinimum = 8.0F; ///< least distance right of the centre
constexpr std::uint32_t VersionColor = 0xFF919191;

constexpr float MinTop = 24.0F;
constexpr float Room = 682.0F; ///< height in which the block is centred
constexpr float HeightBesideList = 304.0F;

constexpr float RowsDrop = 250.0F;
constexpr float RowHeight = 32.0F;

constexpr std::string_view Footer = "\u00A9 2026 Orrin";
constexpr float FooterDrop = 280.0F; ///< the height of the list not counted
constexpr std::uint32_t FooterColor = 0xFF8C8C8C;

/// In the order of MainMenuRow.
constexpr std::array RowLabels{
    TextKey::MainMenuContinueGame,
    TextKey::MainMenuNewGame,
    TextKey::MainMenuOptions,
    TextKey::MainMenuHelp,
    TextKey::MainMenuCredits,
    TextKey::MainMenuQuit,
};
static_assert(RowLabels.size() == MainMenuRowCount(true));

float ListHeight(std::size_t RowCount) {
    return static_cast<float>(RowCount - 1) * MainMenuRowStyle.Distance + RowHeight;
}

/// The top of the block of title, rows and footer, which is centred as a whole.
float BlockTop(std::size_t RowCount) {
    return MinTop + std::max((Room - (ListHeight(RowCount) + HeightBesideList)) * 0.5F, 0.0F);
}

/// The right edges of the version's ink and the second word's are aligned, as far as the screen has room.
float VersionX(float CenterX) {
    const auto wordWidth = static_cast<float>(MeasureTextVisible(SecondWord, NameScale));
    const auto inkWidth = static_cast<float>(MeasureTextVisible(VersionText, SmallScale));
    const auto cellWidth = static_cast<float>(MeasureText(VersionText, SmallScale));
    const float aligned = CenterX - SecondWordLeft + wordWidth - inkWidth;
    const float inside = std::min(aligned, static_cast<float>(LogicalWidth) - VersionMargin - cellWidth);
    return std::max(inside, CenterX + VersionMinimum);
}

void DrawTitle(SDL_Renderer *Renderer, float CenterX, float Top) {
    DrawText(Renderer, FirstWord, CenterX - FirstWordLeft, Top, NameScale, FirstWordColor);
    DrawText(
        Renderer, SecondWord, CenterX - SecondWordLeft, Top + SecondWordDrop, NameScale, SecondWordColor);
    DrawText(Renderer, VersionText, VersionX(CenterX), Top + VersionDrop, SmallScale, VersionColor);
}

} // namespace

void RenderMainMenu(SDL_Renderer *Renderer, const GameState &State) {
    const std::size_t rowCount = MainMenuRowCount(State.HasRunState);
    // NOT-BUGS: The selected row stays a number
    const std::size_t selected = std::min<std::size_t>(State.MainMenuSelection, rowCount - 1);
    const float centerX = ScreenCenterX();
    const float top = BlockTop(rowCount);
    const BlackPage page(Renderer);
    DrawTitle(Renderer, centerX, top);
    DrawLabelRows(
        Renderer, std::span(RowLabels).last(rowCount), selected, centerX, top + RowsDrop, MainMenuRowStyle);
    DrawTextCentered(
        Renderer, Footer, centerX, top + FooterDrop + ListHeight(rowCount), SmallScale, FooterColor);
}
