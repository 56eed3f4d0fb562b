#pragma once

#include "text/TextKeys.hpp"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

/// Hashes views and strings alike, so that a look-up makes no string of its own.
struct TextHash {
    using is_transparent = void;

    std::size_t operator()(std::string_view Text) const {
        return std::hash<std::string_view>{}(Text);
    }
};

/// The words of the language in force.
struct LocalizationTable {
    std::unordered_map<std::string, std::string, TextHash, std::equal_to<>> Texts;
};

/// Process-wide on purpose: every drawing function fetches its words from it anew in every frame.
extern LocalizationTable Localization;

/// The text under a key, or Default, which is remembered, where there is none or an empty one. A null or
/// empty key gives an empty text. The reference dies when a language is loaded.
const std::string &GetText(const char *Key, std::string_view Default);

/// The text of one of the game's own keys.
const std::string &GetText(TextKey Key);
