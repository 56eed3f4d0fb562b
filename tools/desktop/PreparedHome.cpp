#include "tools/desktop/PreparedHome.hpp"

#include "tools/desktop/FileText.hpp"

#include <fstream>
#include <stdexcept>

void PreparedHome::Put(const std::string &Name, const std::string &Text) const {
    const std::filesystem::path path = FileOf(Name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << Text << std::flush;
    if (!file) {
        throw std::runtime_error(path.string() + " cannot be written");
    }
}

std::optional<std::string> PreparedHome::Read(const std::string &Name) const {
    return TextOf(FileOf(Name));
}

const std::filesystem::path &PreparedHome::Path() const {
    return Folder.Path();
}

std::filesystem::path PreparedHome::FileOf(const std::string &Name) const {
    return Folder.Path() / DataFolder / "Orrin" / "KestrelVolley" / Name;
}
