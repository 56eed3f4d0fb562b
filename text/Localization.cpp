#include "text/Localization.hpp"

LocalizationTable Localization;

const std::string &GetText(const char *Key, std::string_view Default) {
    static const std::string none;
    const std::string_view key = Key != nullptr ? Key : "";
    if (key.empty()) {
        return none;
    }
    auto found = Localization.Texts.find(key);
    if (found == Localization.Texts.end()) {
        found = Localization.Texts.emplace(key, Default).first;
    } else if (found->second.empty()) {
        // NOT-BUGS: An empty text in a language file counts as missing
        found->second = Default;
    }
    return found->second;
}

const std::string &GetText(TextKey Key) {
    const TextRow &row = RowOf(Key);
    return GetText(row.Key, row.Default);
}
