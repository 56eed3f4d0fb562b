#include "store/OptionsFile.hpp"

#include "state/Ascii.hpp"
#include "state/LanguageCode.hpp"
#include "state/Lists.hpp"
#include "state/RefreshRates.hpp"
#include "state/Resolutions.hpp"
#include "store/OptionValues.hpp"
#include "store/OptionsTables.hpp"
#include "store/StagedFile.hpp"

#include <algorithm>

namespace {

using quillINI::IniDocument;

constexpr StagedFile ConfigFile{OptionsFileName, ".Config.ini.tmp"};
constexpr std::int32_t MaxRefreshRate = 1000;

/// Takes the value that a word stands for, in any case of its letters.
template <typename Enumeration, std::size_t Count>
void ReadWord(const IniDocument &Document, const char *Section, const char *Key,
    const std::array<const char *, Count> &Words, Enumeration &Out) {
    const std::string word = LowerCased(GetOptionText(Document, Section, Key, ""));
    const auto found = std::ranges::find(Words, word);
    if (found != Words.end()) {
        Out = static_cast<Enumeration>(found - Words.begin());
    }
}

void ReadBindings(const IniDocument &Document, const BindingSection &Section, GameState &State) {
    BindingTable &table = State.*Section.Table;
    for (std::size_t row = 0; row < table.size(); ++row) {
        const std::int32_t value = GetOptionInt(Document, Section.Name, Section.Keys[row], table[row]);
        if (value >= Section.Lowest && value <= Section.Highest) {
            table[row] = value;
        }
    }
}

void ReadResolution(const IniDocument &Document, GameState &State) {
    Resolution size = CurrentResolution(State);
    size.Width = GetOptionInt(Document, GraphicsSection, WidthKey, size.Width);
    size.Height = GetOptionInt(Document, GraphicsSection, HeightKey, size.Height);
    if (ResolutionAllowed(State.AspectMode, size.Width, size.Height) &&
        !Contains(ResolutionsInForce(State), size)) {
        State.Resolutions.push_back(size);
    }
    State.ResolutionIndex = FindResolutionIndex(State, size.Width, size.Height, State.ResolutionIndex);
    const Resolution current = CurrentResolution(State);
    ComputeLogicalWidth(State.AspectMode, current.Width, current.Height);
}

template <std::size_t Count>
void ReadSwitches(const IniDocument &Document, const char *Section,
    const std::array<SwitchOption, Count> &Switches, GameState &State) {
    for (const SwitchOption &option : Switches) {
        State.*option.Value = GetOptionBool(Document, Section, option.Key, State.*option.Value);
    }
}

/// Takes a rate that RefreshRates has; where no display has told its modes, any rate above 0. Otherwise the
/// one there was stays, or is 0 if the new list lacks it.
void TakeRefreshRate(GameState &State, std::int32_t Rate) {
    const std::int32_t clamped = std::clamp(Rate, 0, MaxRefreshRate);
    RebuildRefreshRates(State);
    if (Rate > 0 && (Contains(State.RefreshRates, clamped) || State.DisplayModes.empty())) {
        State.RefreshRate = clamped;
    }
}

void ReadGraphics(const IniDocument &Document, GameState &State) {
    ReadWord(Document, GraphicsSection, AspectModeKey, AspectModeWords, State.AspectMode);
    ReadResolution(Document, State); // after the aspect mode, on which the list depends
    ReadSwitches(Document, GraphicsSection, GraphicsSwitches, State);
    // After the switches, on which the list of rates depends.
    TakeRefreshRate(State, GetOptionInt(Document, GraphicsSection, RefreshRateKey, State.RefreshRate));
}

void ReadAudio(const IniDocument &Document, GameState &State) {
    for (const VolumeOption &volume : Volumes) {
        const std::int32_t percent = GetOptionInt(Document, AudioSection, volume.Key, State.*volume.Percent);
        State.*volume.Percent = std::clamp(percent, 0, MaxVolume);
    }
    ReadSwitches(Document, AudioSection, AudioSwitches, State);
}

void ReadOptions(const IniDocument &Document, GameState &State) {
    ReadWord(Document, OptionsSection, ControlsDeviceKey, ControlsDeviceWords, State.ControlsDevice);
    State.Language =
        NormalizeLanguageCode(GetOptionText(Document, OptionsSection, LanguageKey, State.Language));
    for (const BindingSection &section : BindingSections) {
        ReadBindings(Document, section, State);
    }
    ReadGraphics(Document, State);
    ReadAudio(Document, State);
}

/// The word of a value; the first one for a value without a word.
template <typename Enumeration, std::size_t Count>
const char *WordOf(const std::array<const char *, Count> &Words, Enumeration Value) {
    const auto index = static_cast<std::size_t>(Value);
    return index < Count ? Words[index] : Words[0];
}

/// Adds values to one section of a document.
struct SectionWriter {
    IniDocument &Document;
    const char *Section;

    void AddText(const char *Key, std::string_view Text) const {
        quillINI::SetIniString(Document, Section, Key, Text);
    }
    void AddNumber(const char *Key, std::int32_t Number) const {
        AddText(Key, std::to_string(Number));
    }
    void AddSwitch(const char *Key, bool On) const {
        AddText(Key, On ? "1" : "0");
    }
    void EndWithBlankLine() const {
        quillINI::AppendIniEmptyLine(Document, Section);
    }
};

void AddBindings(IniDocument &Document, const GameState &State) {
    for (const BindingSection &section : BindingSections) {
        const SectionWriter writer{Document, section.Name};
        for (std::size_t row = 0; row < section.Keys.size(); ++row) {
            writer.AddNumber(section.Keys[row], (State.*section.Table)[row]);
        }
        writer.EndWithBlankLine();
    }
}

void AddGraphics(IniDocument &Document, const GameState &State) {
    const SectionWriter writer{Document, GraphicsSection};
    const Resolution size = CurrentResolution(State);
    writer.AddNumber(WidthKey, size.Width);
    writer.AddNumber(HeightKey, size.Height);
    writer.AddText(AspectModeKey, WordOf(AspectModeWords, State.AspectMode));
    writer.AddNumber(RefreshRateKey, std::max(State.RefreshRate, 0));
    for (const SwitchOption &option : GraphicsSwitches) {
        writer.AddSwitch(option.Key, State.*option.Value);
    }
    writer.EndWithBlankLine();
}

void AddAudio(IniDocument &Document, const GameState &State) {
    const SectionWriter writer{Document, AudioSection};
    for (const VolumeOption &volume : Volumes) {
        writer.AddNumber(volume.Key, State.*volume.Percent);
    }
    for (const SwitchOption &option : AudioSwitches) {
        writer.AddSwitch(option.Key, State.*option.Value);
    }
}

IniDocument BuildDocument(const GameState &State) {
    IniDocument document;
    const SectionWriter options{document, OptionsSection};
    options.AddText(ControlsDeviceKey, WordOf(ControlsDeviceWords, State.ControlsDevice));
    options.AddText(LanguageKey, State.Language);
    options.EndWithBlankLine();
    AddBindings(document, State);
    AddGraphics(document, State);
    AddAudio(document, State);
    return document;
}

} // namespace

bool LoadOptions(GameState &State) {
    return ReadStagedFile(ConfigFile, [&State](const std::string &Path) {
        IniDocument document;
        if (!quillINI::ReadIniFile(document, Path)) {
            return false;
        }
        ReadOptions(document, State);
        return true;
    });
}

bool SaveOptions(const GameState &State) {
    return WriteStagedFile(ConfigFile, [&State](const std::string &Path) {
        return quillINI::WriteIniFile(BuildDocument(State), Path, false, quillINI::IniEncoding::Utf8);
    });
}
