#include "gfx/OptionsPages.hpp"

#include "gfx/AudioPage.hpp"
#include "gfx/ControlsPage.hpp"
#include "gfx/GraphicsPage.hpp"
#include "gfx/MenuStyle.hpp"
#include "gfx/Text.hpp"
#include "input/ControllerHint.hpp"
#include "state/GameState.hpp"
#include "state/MenuRows.hpp"
#include "text/Localization.hpp"

#include <array>

namespace {

constexpr float SectionY = 100.0F;
constexpr float MainRowsY = 217.0F;
constexpr float MainHintY = 430.0F;
constexpr float MainDeviceLineY = 458.0F;

/// In the order of OptionsPage.
constexpr std::array SectionNames{
    TextKey::OptionsSectionMenu,
    TextKey::OptionsSectionControls,
    TextKey::OptionsSectionGraphics,
    TextKey::OptionsSectionAudio,
};
static_assert(SectionNames.size() == static_cast<std::size_t>(OptionsPageAudio) + 1);

/// In the order of OptionsMainRow.
constexpr std::array MainRowLabels{
    TextKey::OptionsMainControls,
    TextKey::OptionsMainGraphics,
    TextKey::OptionsMainAudio,
    TextKey::CommonBack,
};
static_assert(MainRowLabels.size() == OptionsMainRowCount);

void DrawHeadings(SDL_Renderer *Renderer, enum OptionsPage Page) {
    const TextKey section = SectionNames[static_cast<std::size_t>(Page)];
    DrawTextCentered(
        Renderer, GetText(TextKey::OptionsTitle), ScreenCenterX(), PageTitleY, TitleScale, PageTitleColor);
    DrawTextCentered(Renderer, GetText(section), ScreenCenterX(), SectionY, MenuScale, SectionColor);
}

void DrawMainPage(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const bool isInRun = State.OptionsReturnScreen == ScreenPaused;
    const TextKey hint =
        isInRun ? TextKey::OptionsHintMainBackToPauseMenu : TextKey::OptionsHintMainBackToMainMenu;
    const TextKey back = isInRun ? TextKey::ControllerHintPauseMenu : TextKey::ControllerHintMainMenu;
    DrawLabelRows(Renderer, MainRowLabels, static_cast<std::size_t>(State.OptionsMainSelection),
        ScreenCenterX(), MainRowsY, OptionsMainRowStyle);
    DrawHint(Renderer, GetText(hint), ScreenCenterX(), MainHintY);
    DrawHint(Renderer, ControllerHint(State, Devices, GetText(TextKey::ControllerHintSelect), GetText(back)),
        ScreenCenterX(), MainDeviceLineY);
}

/// The device line of all pages but the main one.
std::string PageDeviceLine(const GameState &State, const InputDevices &Devices) {
    return ControllerHint(
        State, Devices, GetText(TextKey::ControllerHintSelect), GetText(TextKey::ControllerHintBack));
}

} // namespace

void RenderOptions(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const BlackPage page(Renderer);
    DrawHeadings(Renderer, State.OptionsPage);
    switch (State.OptionsPage) {
    case OptionsPageMain:
        DrawMainPage(Renderer, State, Devices);
        break;
    case OptionsPageControls:
        DrawControlsPage(Renderer, State, Devices, PageDeviceLine(State, Devices));
        break;
    case OptionsPageGraphics:
        DrawGraphicsPage(Renderer, State, PageDeviceLine(State, Devices));
        break;
    case OptionsPageAudio:
        DrawAudioPage(Renderer, State, PageDeviceLine(State, Devices));
        break;
    }
}
