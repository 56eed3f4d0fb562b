#include "tools/desktop/PreparedHome.hpp"

#include "tools/support/Files.hpp"

void PreparedHome::Put(const std::string &Name, const std::string &Text) const {
    WriteBytes(FileOf(Name), Text);
}

std::optional<std::string> PreparedHome::Read(const std::string &Name) const {
    const std::filesystem::path path = FileOf(Name);
    return std::filesystem::is_regular_file(path) ? std::optional(ReadBytes(path)) : std::nullopt;
}

const std::filesystem::path &PreparedHome::Path() const {
    return Folder.Path();
}

std::filesystem::path PreparedHome::FileOf(const std::string &Name) const {
    return Folder.Path() / DataFolder / "Orrin" / "KestrelVolley" / Name;
}
