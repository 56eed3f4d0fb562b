#include "tools/desktop/FileText.hpp"

#include <fstream>
#include <sstream>

std::optional<std::string> TextOf(const std::filesystem::path &File) {
    std::ifstream file(File, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    std::ostringstream text;
    text << file.rdbuf();
    return std::move(text).str();
}
