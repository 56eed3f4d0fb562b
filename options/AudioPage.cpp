#include "options/AudioPage.hpp"

#include "state/GameState.hpp"
#include "state/LanguageCode.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"
#include "text/Languages.hpp"

#include <algorithm>

namespace {

constexpr std::int32_t VolumeStep = 5;

/// Steps are not snapped, so that 37 goes to 42, and end at 0 and 100.
void StepVolume(std::int32_t &Percent, std::int32_t Direction) {
    Percent = std::clamp(Percent + Direction * VolumeStep, 0, MaxVolume);
}

/// The place in the catalogue where cycling starts: that of a language, or else of the default one, or else
/// the first.
std::int32_t PlaceOfLanguage(const std::string &Code) {
    const LanguageEntry *entry = FindLanguage(Code);
    if (entry == nullptr) {
        entry = FindLanguage(NormalizeLanguageCode(Localization.DefaultLanguage));
    }
    return entry != nullptr ? static_cast<std::int32_t>(entry - Localization.Languages.data()) : 0;
}

void Adjust(GameState &State, std::int32_t Direction) {
    switch (static_cast<AudioRow>(State.AudioSelection)) {
    case AudioRow::MasterVolume:
        StepVolume(State.PendingMasterVolume, Direction);
        break;
    case AudioRow::MusicVolume:
        StepVolume(State.PendingMusicVolume, Direction);
        break;
    case AudioRow::SfxVolume:
        StepVolume(State.PendingSfxVolume, Direction);
        break;
    case AudioRow::Music:
        State.PendingMusicEnabled = !State.PendingMusicEnabled;
        break;
    case AudioRow::Sfx:
        State.PendingSfxEnabled = !State.PendingSfxEnabled;
        break;
    case AudioRow::Language:
        CycleLanguage(State, Direction);
        break;
    default:
        break;
    }
}

/// NOT-BUGS: DEFAULT SETTINGS of the audio page leaves the language alone
void UseDefaults(GameState &State) {
    State.PendingMasterVolume = DefaultMasterVolume;
    State.PendingMusicVolume = DefaultMusicVolume;
    State.PendingSfxVolume = DefaultSfxVolume;
    State.PendingMusicEnabled = true;
    State.PendingSfxEnabled = true;
}

bool LanguageDiffers(const GameState &State) {
    return NormalizeLanguageCode(State.PendingLanguage) != NormalizeLanguageCode(State.Language);
}

/// The new gains reach the mixer with the next update of the music, which reads the applied options.
void Apply(GameState &State) {
    if (AudioEditDirty(State)) {
        const bool languageDiffers = LanguageDiffers(State);
        State.MasterVolume = State.PendingMasterVolume;
        State.MusicVolume = State.PendingMusicVolume;
        State.SfxVolume = State.PendingSfxVolume;
        State.MusicEnabled = State.PendingMusicEnabled;
        State.SfxEnabled = State.PendingSfxEnabled;
        State.Language = NormalizeLanguageCode(State.PendingLanguage);
        if (languageDiffers) {
            LoadLanguage(State);
        }
        State.OptionsDirty = true;
    }
    BeginAudioEdit(State);
}

/// NOT-BUGS: A page that is left drops what was not applied
void Leave(GameState &State) {
    if (AudioEditDirty(State)) {
        BeginAudioEdit(State);
    }
    State.PendingAudioValid = false;
    State.OptionsPage = OptionsPageMain;
}

void Activate(GameState &State) {
    switch (static_cast<AudioRow>(State.AudioSelection)) {
    case AudioRow::Music:
    case AudioRow::Sfx:
    case AudioRow::Language:
        Adjust(State, 1);
        break;
    case AudioRow::DefaultSettings:
        UseDefaults(State);
        break;
    case AudioRow::Apply:
        Apply(State);
        break;
    case AudioRow::Revert:
        BeginAudioEdit(State);
        break;
    case AudioRow::Back:
        Leave(State);
        break;
    default:
        break;
    }
}

} // namespace

void BeginAudioEdit(GameState &State) {
    State.PendingMasterVolume = State.MasterVolume;
    State.PendingMusicVolume = State.MusicVolume;
    State.PendingSfxVolume = State.SfxVolume;
    State.PendingMusicEnabled = State.MusicEnabled;
    State.PendingSfxEnabled = State.SfxEnabled;
    State.PendingLanguage = NormalizeLanguageCode(State.Language);
    State.PendingAudioValid = true;
}

bool AudioEditDirty(const GameState &State) {
    return State.PendingAudioValid &&
           (State.PendingMasterVolume != State.MasterVolume ||
               State.PendingMusicVolume != State.MusicVolume || State.PendingSfxVolume != State.SfxVolume ||
               State.PendingMusicEnabled != State.MusicEnabled ||
               State.PendingSfxEnabled != State.SfxEnabled || LanguageDiffers(State));
}

void CycleLanguage(GameState &State, std::int32_t Direction) {
    const std::vector<LanguageEntry> &languages = Localization.Languages;
    if (languages.empty()) {
        return;
    }
    const std::string pending = NormalizeLanguageCode(State.PendingLanguage);
    const auto count = static_cast<std::int32_t>(languages.size());
    const std::int32_t next = StepRound(PlaceOfLanguage(pending), Direction, count);
    const std::string &code = languages[static_cast<std::size_t>(next)].Code;
    // The only language that there is keeps its spelling.
    if (code != pending) {
        State.PendingLanguage = code;
    }
}

void HandleAudioPageKey(GameState &State, std::int32_t Scancode) {
    if (!State.PendingAudioValid) {
        BeginAudioEdit(State);
    }
    if (IsKeyLeft(Scancode)) {
        Adjust(State, -1);
    } else if (IsKeyRight(Scancode)) {
        Adjust(State, 1);
    } else if (IsKeyActivate(Scancode)) {
        Activate(State);
    } else if (IsKeyEscape(Scancode)) {
        Leave(State);
    } else {
        MoveSelection(State.AudioSelection, AudioRowCount, Scancode);
    }
}
