#include "gfx/AudioPage.hpp"

#include "gfx/OptionsRows.hpp"
#include "state/GameState.hpp"
#include "state/MenuRows.hpp"
#include "text/Languages.hpp"

#include <array>

namespace {

std::string PercentText(std::int32_t Volume) {
    return std::to_string(Volume) + "%";
}

std::array<OptionsRow, AudioRowCount> Rows(const GameState &State) {
    const bool isPending = State.PendingAudioValid;
    return {{
        {TextKey::OptionsAudioMasterVolume,
            PercentText(isPending ? State.PendingMasterVolume : State.MasterVolume)},
        {TextKey::OptionsAudioMusicVolume,
            PercentText(isPending ? State.PendingMusicVolume : State.MusicVolume)},
        {TextKey::OptionsAudioSfxVolume, PercentText(isPending ? State.PendingSfxVolume : State.SfxVolume)},
        {TextKey::OptionsAudioMusic, SwitchText(isPending ? State.PendingMusicEnabled : State.MusicEnabled)},
        {TextKey::OptionsAudioSfx, SwitchText(isPending ? State.PendingSfxEnabled : State.SfxEnabled)},
        {TextKey::OptionsAudioLanguage,
            LanguageDisplayName(isPending ? State.PendingLanguage : State.Language)},
        {TextKey::OptionsDefaultSettings, {}},
        {TextKey::CommonApply, {}},
        {TextKey::CommonRevert, {}},
        {TextKey::CommonBack, {}},
    }};
}

} // namespace

void DrawAudioPage(SDL_Renderer *Renderer, const GameState &State, std::string_view DeviceLine) {
    DrawOptionsRows(Renderer, Rows(State), State.AudioSelection);
    DrawValueHints(Renderer, DeviceLine, OptionsFirstHintY, OptionsSecondHintY);
}
