#include "tools/desktop/PreparedHome.hpp"

#include "tools/support/Files.hpp"

void PreparedHome::Put(const std::string &Name, const std::string &Text) const {
    WriteBytes(FileOf(Name), Text);
}

std::optional<std::string> PreparedHome::Read(const std::string &Name) const {
    return FindBytes(FileOf(Name));
}

const std::filesystem::path &PreparedHome::Path() const {
    return Folder.Path();
}

std::filesystem::path PreparedHome::FileOf(const std::string &Name) const {
    return Folder.Path() / DataFolder / "Orrin" / "KestrelVolley" / Name;
}
