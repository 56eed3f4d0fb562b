#pragma once

#include "quillini/quillini.hpp"

#include <string>

/// Reads an INI file that ships with the game, from title storage or else from the program's folder. Path is
/// relative to there, as "Music/MusicPatterns.ini". False, with Document as it was, if Path is not safe or
/// can be read from neither. Throws what ReadIniFile throws; the staging file then stays.
bool ReadTitleIni(const std::string &Path, quillINI::IniDocument &Document);
