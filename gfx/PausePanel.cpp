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
constexpr int MarkerSpace = 12;    ///< allowed for between the marker and the rows
constexpr float TitleDrop = 26.0F; ///< below the panel's top
constexpr float RowsDrop = 102.0F; ///< below the title
constexpr float HintDrop = 216.0F; ///< below the first row
constexpr float HintHeight = 16.0F;
constexpr float DeviceLineDrop = 26.0F; ///< below the hint
constexpr float Height = 382.0F;
constexpr float HeightWithDeviceLine = Height + DeviceLineDrop + HintHeight;

/// In the order of PauseRow.
constexpr std::array RowLabels{
    TextKey::PauseMenuResume,
    TextKey::PauseMenuOptions,
    TextKey::PauseMenuHelp,
    TextKey::PauseMenuMainMenu,
};
static_assert(RowLabels.size() == PauseRowCount);

int ContentWidth(std::string_view DeviceLine) {
    return std::max({MeasureText(RowMarker, RowMarkerScale) + MarkerSpace + WidestText(RowLabels, MenuScale),
        MeasureText(GetText(TextKey::PauseTitle), TitleScale),
        WidestHint({GetText(TextKey::PauseHintPrimary), DeviceLine})});
}

} // namespace

void RenderPauseOverlay(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const std::string deviceLine = ControllerHint(
        State, Devices, GetText(TextKey::ControllerHintSelect), GetText(TextKey::ControllerHintResume));
    const Panel panel = PlacePanel(static_cast<float>(ContentWidth(deviceLine)), Padding, MinWidth,
        deviceLine.empty() ? Height : HeightWithDeviceLine);
    const float titleY = panel.Y + TitleDrop;
    const float rowsTop = titleY + RowsDrop;
    const float hintY = rowsTop + HintDrop;
    DrawPanel(Renderer, panel, VeilColor);
    DrawTextCentered(
        Renderer, GetText(TextKey::PauseTitle), panel.CenterX(), titleY, TitleScale, SelectedColor);
    DrawLabelRows(Renderer, RowLabels, static_cast<std::size_t>(State.PauseSelection), panel.CenterX(),
        rowsTop, PauseRowStyle);
    DrawHint(Renderer, GetText(TextKey::PauseHintPrimary), panel.CenterX(), hintY);
    DrawHint(Renderer, deviceLine, panel.CenterX(), hintY + DeviceLineDrop);
}
