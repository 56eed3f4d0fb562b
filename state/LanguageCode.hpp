#pragma once

#include <string>
#include <string_view>

/// A language code in lower case without any blanks, as "de"; "en" if nothing is left.
std::string NormalizeLanguageCode(std::string_view Code);
