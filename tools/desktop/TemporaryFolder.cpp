#include "tools/desktop/TemporaryFolder.hpp"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kestrel-volley-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("No temporary folder could be made as " + pattern);
    }
    Folder = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Folder, ignored);
}

const std::filesystem::path &TemporaryFolder::Path() const {
    return Folder;
}
