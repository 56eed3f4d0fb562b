#pragma once

#include "text/TextKeys.hpp"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Hashes views and strings alike, so that a look-up by a view makes no string.
struct TextHash {
    using is_transparent = void;

    std::size_t operator()(std::string_view Text) const {
        return std::hash<std::string_view>{}(Text);
    }
};

/// A language that can be chosen.
struct LanguageEntry {
    std::string Code; ///< normalised, as "de"
    std::string Name; ///< in the language itself, as "Deutsch"
    std::string File; ///< path of its texts, relative to the program's folder
};

/// The languages there are and the words of the one in force.
struct LocalizationTable {
    std::vector<LanguageEntry> Languages; ///< in the order of the catalogue
    /// By key; with the defaults that GetText has put there.
    std::unordered_map<std::string, std::string, TextHash, std::equal_to<>> Texts;
    std::string DefaultLanguage = "en";  ///< where the wanted one is not in the catalogue
    std::string FallbackLanguage = "en"; ///< has the texts that the current one lacks
    std::string CurrentLanguage = "en";  ///< the one in force
    bool TextsLoaded = false;            ///< whether any language file could be read; nothing depends on it
};

/// Process-wide: every drawing function fetches its words from it, anew in every frame.
extern LocalizationTable Localization;

/// The text under a key. Where there is none or an empty one, Default is put there and given. A null or empty
/// key gives an empty text. The reference lives until LoadLanguage runs.
const std::string &GetText(const char *Key, std::string_view Default);

/// The text of one of the game's own keys, by the same rules.
const std::string &GetText(TextKey Key);
