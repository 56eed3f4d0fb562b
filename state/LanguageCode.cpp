#include "state/LanguageCode.hpp"

#include "state/Ascii.hpp"

std::string NormalizeLanguageCode(std::string_view Code) {
    std::string normalized = LowerCased(std::string(Code));
    std::erase_if(normalized, IsSpaceAscii);
    return normalized.empty() ? "en" : normalized;
}
