#include "gfx/GraphicsPage.hpp"

#include "gfx/OptionsRows.hpp"
#include "state/GameState.hpp"
#include "state/MenuRows.hpp"
#include "state/Resolutions.hpp"
#include "text/Localization.hpp"

#include <array>

namespace {

// NOT-BUGS: The hints of the graphics page stand higher than those of the other pages
constexpr float FirstHintY = 464.0F;
constexpr float SecondHintY = 492.0F;

std::string ResolutionText(const GameState &State) {
    const Resolution size = CurrentResolution(State);
    return std::to_string(size.Width) + "X" + std::to_string(size.Height);
}

std::string RefreshRateText(std::int32_t Rate) {
    return Rate <= 0 ? GetText(TextKey::OptionsGraphicsAutoRefresh) : std::to_string(Rate) + " HZ";
}

std::array<OptionsRow, GraphicsRowCount> Rows(const GameState &State) {
    const TextKey aspect = State.AspectMode == AspectClassic4x3
                               ? TextKey::OptionsGraphicsAspectModeClassic4x3
                               : TextKey::OptionsGraphicsAspectModeWidescreen;
    const TextKey mode = State.Fullscreen ? TextKey::OptionsGraphicsDisplayModeFullscreen
                                          : TextKey::OptionsGraphicsDisplayModeWindowed;
    return {{
        {TextKey::OptionsGraphicsResolution, ResolutionText(State)},
        {TextKey::OptionsGraphicsAspectMode, GetText(aspect)},
        {TextKey::OptionsGraphicsRefreshRate, RefreshRateText(State.RefreshRate)},
        {TextKey::OptionsGraphicsDisplayMode, GetText(mode)},
        {TextKey::OptionsGraphicsVsync, SwitchText(State.VSync)},
        {TextKey::OptionsDefaultSettings, {}},
        {TextKey::CommonApply, {}},
        {TextKey::CommonRevert, {}},
        {TextKey::CommonBack, {}},
    }};
}

} // namespace

void DrawGraphicsPage(SDL_Renderer *Renderer, const GameState &State, std::string_view DeviceLine) {
    DrawOptionsRows(Renderer, Rows(State), State.GraphicsSelection);
    DrawValueHints(Renderer, DeviceLine, FirstHintY, SecondHintY);
}
