#include "tests/support/watch/ProgramFolder.hpp"

#include "tools/support/Files.hpp"

#include <stdexcept>
#include <tuple>

ProgramFolder::ProgramFolder(SdlWatch &Answering)
    : Watch(Answering), Path(Home.FilePath("program/").string()) {
    std::filesystem::create_directories(Path);
    SetAnswers();
}

ProgramFolder::ProgramFolder(SdlWatch &Answering, const std::filesystem::path &Existing)
    : Watch(Answering), Path((Existing / "").string()) {
    SetAnswers();
}

void ProgramFolder::SetAnswers() const {
    Watch.GetBasePath.Answer = [this] {
        return Path.c_str();
    };
    Watch.OpenTitleStorage.Answer = [this](const char *Override, SDL_PropertiesID Properties) {
        return SDL_OpenTitleStorage(Override == nullptr ? Path.c_str() : Override, Properties);
    };
}

ProgramFolder::~ProgramFolder() {
    Watch.GetBasePath.Answer = nullptr;
    Watch.OpenTitleStorage.Answer = nullptr;
}

void ProgramFolder::Write(const std::string &Name, std::string_view Bytes) const {
    WriteBytes(Path + Name, Bytes);
}

void ProgramFolder::Remove(const std::string &Name) const {
    if (!std::filesystem::remove(Path + Name)) {
        throw std::runtime_error(Path + Name + " is not there");
    }
}

std::vector<std::string> ProgramFolder::FilesRead() const {
    std::vector<std::string> files;
    for (const auto &[storage, name, memory, length] : Watch.ReadStorageFile.Calls) {
        files.push_back(name.value());
    }
    return files;
}
