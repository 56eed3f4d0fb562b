#pragma once

#include "text/Localization.hpp"

struct GameState;

// The catalogue says which languages there are; each has a file of texts. Without any file all texts are the
// built-in English ones.

/// Builds Localization anew from the catalogue and the files of State.Language and, for what that lacks, of
/// the fallback language. State.Language becomes the code of the language in force: the default one if the
/// catalogue lacks the wanted one. What GetText and FindLanguage gave before is gone. Throws what ReadIniFile
/// throws.
void LoadLanguage(GameState &State);

/// The entry of exactly that code, or null. It lives until LoadLanguage runs.
const LanguageEntry *FindLanguage(std::string_view Code);

/// A language's name for the options page, in capitals; its code if it has none. Code need not be normalised.
std::string LanguageDisplayName(std::string_view Code);

/// Adds the texts of one file to those there are; a present key gets the file's text. Path is relative to the
/// program's folder. False if it cannot be read. Throws what ReadIniFile throws.
bool LoadLanguageFile(const std::string &Path);
