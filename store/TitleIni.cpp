#include "store/TitleIni.hpp"

#include "store/Paths.hpp"
#include "store/Storage.hpp"

#include <cstdio>

namespace {

constexpr const char *StagingName = ".TitleStorageRead.tmp";

bool CopyTitleStorageFile(const std::string &Path, const std::string &StagingPath) {
    SDL_Storage *const storage = SDL_OpenTitleStorage(nullptr, 0);
    if (storage == nullptr) {
        return false;
    }
    const bool copied = CopyStorageFile(storage, Path.c_str(), StagingPath);
    SDL_CloseStorage(storage);
    return copied;
}

bool ReadFromTitleStorage(const std::string &Path, quillINI::IniDocument &Document) {
    const std::string staging = PrefFilePath(StagingName);
    if (staging.empty()) {
        return false;
    }
    const bool read = CopyTitleStorageFile(Path, staging) && quillINI::ReadIniFile(Document, staging);
    std::remove(staging.c_str());
    return read;
}

} // namespace

bool ReadTitleIni(const std::string &Path, quillINI::IniDocument &Document) {
    if (!IsSafeRelativePath(Path)) {
        return false;
    }
    if (ReadFromTitleStorage(Path, Document)) {
        return true;
    }
    const std::string plain = BaseFilePath(Path);
    return !plain.empty() && quillINI::ReadIniFile(Document, plain);
}
