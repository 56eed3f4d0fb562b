#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What is said if the first, second, ... call of SDL_GetBasePath or MIX_LoadAudio fails, by which each
/// pattern of Music/MusicPatterns.ini is loaded in its turn; a "*" stands for the folder. Throws
/// std::out_of_range for more calls than patterns.
std::vector<std::string> LinesWithoutPattern(std::string_view Function, int Call);
