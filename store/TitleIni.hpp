#pragma once

#include "quillini/quillini.hpp"

#include <string>

/// Reads an INI file that ships with the game, from title storage or else beside the program. Path is
/// relative to there. False if it is unsafe or can be read from neither; a syntax error ends the document and
/// is true.
bool ReadTitleIni(const std::string &Path, quillINI::IniDocument &Document);
