#pragma once

#include "text/Localization.hpp"

struct GameState;

// The catalogue says which languages there are; each has a file of texts. Without any file the game speaks
// its built-in English.

/// Reads the catalogue and the texts of the wanted language anew, with the fallback language beneath, and
/// writes the language that came out of it into the options. Every text that GetText gave before is dead.
void LoadLanguage(GameState &State);

/// The entry of exactly that code, or null.
const LanguageEntry *FindLanguage(std::string_view Code);

/// A language's name for the options page, in capitals.
std::string LanguageDisplayName(std::string_view Code);

/// Adds the texts of one language file to those there are. False if it cannot be read.
bool LoadLanguageFile(const std::string &Path);
