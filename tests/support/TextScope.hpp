#pragma once

#include "text/Localization.hpp"

#include <utility>

/// Starts with no text loaded, and puts back at its end what was there before.
class TextScope {
public:
    TextScope() {
        std::swap(OldTexts, Localization.Texts);
    }
    ~TextScope() {
        std::swap(OldTexts, Localization.Texts);
    }
    TextScope(const TextScope &) = delete;
    TextScope &operator=(const TextScope &) = delete;

private:
    decltype(LocalizationTable::Texts) OldTexts;
};
