#include "store/TitleIni.hpp"

#include "store/Paths.hpp"
#include "store/StagedFile.hpp"
#include "store/Storage.hpp"

namespace {

constexpr const char *StagingName = ".TitleStorageRead.tmp";

bool ReadFromTitleStorage(const std::string &Path, quillINI::IniDocument &Document) {
    return UseStagingFile(StagingName, [&](const std::string &Staging) {
        return CopyTitleStorageFile(Path, Staging) && quillINI::ReadIniFile(Document, Staging);
    });
}

} // namespace

bool ReadTitleIni(const std::string &Path, quillINI::IniDocument &Document) {
    if (!IsSafeRelativePath(Path)) {
        return false;
    }
    if (ReadFromTitleStorage(Path, Document)) {
        return true;
    }
    // Title storage may lack what lies beside the program, and without the player's folder there is no
    // staging file to read it through.
    const std::string plain = BaseFilePath(Path);
    return !plain.empty() && quillINI::ReadIniFile(Document, plain);
}
