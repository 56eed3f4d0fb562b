#include "gfx/PausePanel.hpp"

#include "gfx/MenuStyle.hpp"
#include "gfx/Panel.hpp"
#include "gfx/Text.hpp"
#include "input/ControllerHint.hpp"
#include "state/GameState.hpp"
#include "state/MenuRows.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <array>

namespace {

constexpr std::uint32_t VeilColor = 0x78000000;
constexpr float Padding = 136.0F;
constexpr float MinWidth = 420.0F;
constexpr float HeightBesideHints = 366.0F;
constexpr float MinHeight = 250.0F;
constexpr float MaxHeight = 640.0F;
constexpr float TitleMargin = 26.0F;    ///< least distance from the panel's top
constexpr float Margins = 48.0F;        ///< above and below the contents
constexpr float ContentHeight = 318.0F; ///< beside the hints
constexpr int MarkerSpace = 12;         ///< counted between the marker and the rows
constexpr float HintLineHeight = 16.0F;
constexpr float HintDistance = 26.0F;
constexpr float RowsDrop = 102.0F; ///< below the title
constexpr float RowDistance = 48.0F;
constexpr float HintDrop = 216.0F; ///< below the first row

/// In the order of PauseRow.
constexpr std::array<TextKey, 4> RowLabels{
    TextKey::PauseMenuResume,
    TextKey::PauseMenuOptions,
    TextKey::PauseMenuHelp,
    TextKey::PauseMenuMainMenu,
};
static_assert(RowLabels.size() == PauseRowCount);

float HintHeight(bool HasDeviceLine) {
    return HasDeviceLine ? 2.0F * HintLineHeight + HintDistance : HintLineHeight;
}

int ContentWidth(int RowWidth, std::string_view DeviceLine) {
    return std::max({MeasureText(RowMarker, RowMarkerScale) + MarkerSpace + RowWidth,
        MeasureText(GetText(TextKey::PauseTitle), TitleScale),
        WidestHint({GetText(TextKey::PauseHintPrimary), DeviceLine})});
}

float TitleY(const Panel &Panel, float HintHeight) {
    return Panel.Y + TitleMargin +
           std::max((Panel.Height - Margins - (HintHeight + ContentHeight)) * 0.5F, 0.0F);
}

void DrawRows(SDL_Renderer *Renderer, std::int32_t Selection, float Left, float Top) {
    for (std::size_t i = 0; i < RowLabels.size(); ++i) {
        const float y = Top + static_cast<float>(i) * RowDistance;
        const bool selected = static_cast<std::int32_t>(i) == Selection;
        DrawMarkedLabel(Renderer, GetText(RowLabels[i]), Left, y, selected, PauseRowStyle);
    }
}

} // namespace

void RenderPauseOverlay(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const std::string deviceLine = ControllerHint(
        State, Devices, GetText(TextKey::ControllerHintSelect), GetText(TextKey::ControllerHintResume));
    const int rowWidth = WidestText(RowLabels, MenuScale);
    const float hintHeight = HintHeight(!deviceLine.empty());
    const float height = std::clamp(hintHeight + HeightBesideHints, MinHeight, MaxHeight);
    const auto contentWidth = static_cast<float>(ContentWidth(rowWidth, deviceLine));
    const Panel panel = PlacePanel(contentWidth, Padding, MinWidth, height);
    const float titleY = TitleY(panel, hintHeight);
    const float rowsTop = titleY + RowsDrop;
    DrawPanel(Renderer, panel, VeilColor);
    DrawTextCentered(
        Renderer, GetText(TextKey::PauseTitle), panel.CenterX(), titleY, TitleScale, SelectedColor);
    DrawRows(Renderer, State.PauseSelection, panel.CenterX() - static_cast<float>(rowWidth) * 0.5F, rowsTop);
    DrawHint(Renderer, GetText(TextKey::PauseHintPrimary), panel.CenterX(), rowsTop + HintDrop);
    DrawHint(Renderer, deviceLine, panel.CenterX(), rowsTop + HintDrop + HintDistance);
}
