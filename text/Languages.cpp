#include "text/Languages.hpp"

#include "quillini/quillini.hpp"
#include "state/GameState.hpp"
#include "state/LanguageCode.hpp"
#include "store/TitleIni.hpp"
#include "text/Utf8.hpp"

#include <SDL3/SDL.h>

#include <algorithm>

namespace {

constexpr const char *CatalogueFile = "Localization/Languages.ini";
constexpr const char *CatalogueSection = "Languages";
constexpr std::string_view LanguagePrefix = "Language.";

std::vector<LanguageEntry> BuiltInLanguages() {
    return {{"en", "English", "Localization/En.ini"}, {"de", "Deutsch", "Localization/De.ini"}};
}

std::vector<LanguageEntry>::const_iterator FindCode(
    const std::vector<LanguageEntry> &Languages, std::string_view Code) {
    return std::ranges::find(Languages, Code, &LanguageEntry::Code);
}

/// Appends the language of a section, unless it names no file or its code is taken.
void AddLanguage(const quillINI::IniDocument &Document, const std::string &Section,
    std::vector<LanguageEntry> &Languages) {
    LanguageEntry entry;
    entry.Code = NormalizeLanguageCode(std::string_view(Section).substr(LanguagePrefix.size()));
    entry.File = quillINI::GetIniValue(Document, Section, "File", "");
    entry.Name = quillINI::GetIniValue(Document, Section, "Name", entry.Code);
    if (entry.File.empty()) {
        return;
    }
    if (FindCode(Languages, entry.Code) != Languages.end()) {
        SDL_Log("Duplicate language code '%s' in %s", entry.Code.c_str(), CatalogueFile);
        return;
    }
    Languages.push_back(std::move(entry));
}

std::vector<LanguageEntry> ReadLanguages(const quillINI::IniDocument &Document) {
    std::vector<LanguageEntry> languages;
    for (const quillINI::IniSection &section : Document.Sections) {
        if (section.Name.starts_with(LanguagePrefix)) {
            AddLanguage(Document, section.Name, languages);
        }
    }
    return languages;
}

std::string ReadCode(const quillINI::IniDocument &Document, const char *Key, const std::string &Default) {
    return NormalizeLanguageCode(quillINI::GetIniValue(Document, CatalogueSection, Key, Default));
}

/// False if there is no catalogue or no language in it; then the built-in one stands. In either case the
/// default and the fallback language are in the catalogue.
bool LoadCatalogue() {
    quillINI::IniDocument document;
    if (!ReadTitleIni(CatalogueFile, document)) {
        return false;
    }
    std::vector<LanguageEntry> languages = ReadLanguages(document);
    if (languages.empty()) {
        return false;
    }
    Localization.Languages = std::move(languages);
    Localization.DefaultLanguage = ReadCode(document, "Default", Localization.DefaultLanguage);
    Localization.FallbackLanguage = ReadCode(document, "Fallback", Localization.FallbackLanguage);
    if (FindLanguage(Localization.DefaultLanguage) == nullptr) {
        Localization.DefaultLanguage = Localization.Languages.front().Code;
    }
    if (FindLanguage(Localization.FallbackLanguage) == nullptr) {
        Localization.FallbackLanguage = Localization.DefaultLanguage;
    }
    return true;
}

/// The entry of a code that is in the catalogue.
const LanguageEntry &EntryOf(std::string_view Code) {
    return *FindCode(Localization.Languages, Code);
}

/// The wanted language, or the default one where there is no such language.
const LanguageEntry &ChooseLanguage(std::string_view Wanted) {
    const LanguageEntry *const wanted = FindLanguage(NormalizeLanguageCode(Wanted));
    return wanted != nullptr ? *wanted : EntryOf(Localization.DefaultLanguage);
}

/// Loads the fallback's texts and over them those of the current language, unless that is the fallback.
void LoadTexts(const LanguageEntry &Fallback, const LanguageEntry &Current) {
    Localization.TextsLoaded = LoadLanguageFile(Fallback.File);
    if (Current.Code != Fallback.Code) {
        Localization.TextsLoaded = LoadLanguageFile(Current.File) || Localization.TextsLoaded;
    }
}

} // namespace

void LoadLanguage(GameState &State) {
    Localization = LocalizationTable{};
    Localization.Languages = BuiltInLanguages();
    if (!LoadCatalogue()) {
        SDL_Log("Localization catalog '%s' could not be loaded; using built-in defaults", CatalogueFile);
    }
    const LanguageEntry &current = ChooseLanguage(State.Language);
    LoadTexts(EntryOf(Localization.FallbackLanguage), current);
    Localization.CurrentLanguage = current.Code;
    State.Language = Localization.CurrentLanguage;
}

const LanguageEntry *FindLanguage(std::string_view Code) {
    const auto found = FindCode(Localization.Languages, Code);
    return !Code.empty() && found != Localization.Languages.end() ? &*found : nullptr;
}

std::string LanguageDisplayName(std::string_view Code) {
    const std::string code = NormalizeLanguageCode(Code);
    const LanguageEntry *const entry = FindLanguage(code);
    if (entry != nullptr && !entry->Name.empty()) {
        return ToUpperUtf8(entry->Name);
    }
    // No code is empty after NormalizeLanguageCode, but the page does not rely on it.
    return code.empty() ? GetText(TextKey::DeviceUnknown) : ToUpperUtf8(code);
}

bool LoadLanguageFile(const std::string &Path) {
    quillINI::IniDocument document;
    if (!ReadTitleIni(Path, document)) {
        return false;
    }
    for (const quillINI::IniSection &section : document.Sections) {
        if (section.Name == quillINI::IniGlobalSection) {
            continue;
        }
        for (const quillINI::IniEntry &entry : section.Entries) {
            if (entry.Kind == quillINI::IniEntryKind::Value && !entry.Key.empty()) {
                Localization.Texts[entry.Key] = entry.Value;
            }
        }
    }
    return true;
}
