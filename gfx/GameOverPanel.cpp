#include "gfx/GameOverPanel.hpp"

#include "gfx/MenuStyle.hpp"
#include "gfx/Panel.hpp"
#include "gfx/Text.hpp"
#include "input/ControllerHint.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <string>

namespace {

constexpr std::uint32_t TitleColor = 0xFF7878FF;
constexpr std::uint32_t FirstHintColor = 0xFFEBEBEB;
constexpr std::uint32_t VeilColor = 0xAF000000; ///< darker than the pause panel's
constexpr float Padding = 144.0F;
constexpr float MinWidth = 440.0F;
constexpr float Height = 180.0F;
constexpr float HeightWithDeviceLine = 210.0F;
constexpr float TitleDrop = 34.0F; ///< below the panel's top, the other drops below the title
constexpr float HintDrop = 100.0F;
constexpr float DeviceLineDrop = 130.0F;

} // namespace

void RenderGameOverOverlay(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const std::string &title = GetText(TextKey::GameOverTitle);
    const std::string &hint = GetText(TextKey::GameOverHintBackToMainMenu);
    const std::string &goOn = GetText(TextKey::ControllerHintMainMenu);
    const std::string deviceLine = ControllerHint(State, Devices, goOn, goOn);
    const int contentWidth = std::max(MeasureText(title, TitleScale), WidestHint({hint, deviceLine}));
    const Panel panel = PlacePanel(static_cast<float>(contentWidth), Padding, MinWidth,
        deviceLine.empty() ? Height : HeightWithDeviceLine);
    const float titleY = panel.Y + TitleDrop;
    DrawPanel(Renderer, panel, VeilColor);
    DrawTextCentered(Renderer, title, panel.CenterX(), titleY, TitleScale, TitleColor);
    DrawHint(Renderer, hint, panel.CenterX(), titleY + HintDrop, FirstHintColor);
    DrawHint(Renderer, deviceLine, panel.CenterX(), titleY + DeviceLineDrop);
}
