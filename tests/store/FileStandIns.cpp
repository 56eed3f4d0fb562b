#include "tests/store/StoreWatch.hpp"

#include <string_view>

namespace {

/// The staging file that was opened last, until it is closed.
std::FILE *StagingFile = nullptr;

} // namespace

// NOLINTBEGIN(readability-identifier-naming,bugprone-reserved-identifier): the linker dictates the names.

extern "C" decltype(fopen) __real_fopen;
extern "C" decltype(fopen) __wrap_fopen;
extern "C" std::FILE *__wrap_fopen(const char *Path, const char *Mode) {
    if (!std::string_view(Path).ends_with(".tmp")) {
        return __real_fopen(Path, Mode);
    }
    StagingFile = PassOn(&StoreWatch::OpenFile, __real_fopen, Path, Mode);
    return StagingFile;
}

extern "C" decltype(fwrite) __real_fwrite;
extern "C" decltype(fwrite) __wrap_fwrite;
extern "C" std::size_t __wrap_fwrite(
    const void *Bytes, std::size_t Size, std::size_t Count, std::FILE *File) {
    return File == StagingFile ? PassOn(&StoreWatch::WriteToFile, __real_fwrite, Bytes, Size, Count, File)
                               : __real_fwrite(Bytes, Size, Count, File);
}

extern "C" decltype(fclose) __real_fclose;
extern "C" decltype(fclose) __wrap_fclose;
extern "C" int __wrap_fclose(std::FILE *File) {
    if (File != StagingFile) {
        return __real_fclose(File);
    }
    StagingFile = nullptr;
    return PassOn(&StoreWatch::CloseFile, __real_fclose, File);
}

// NOLINTEND(readability-identifier-naming,bugprone-reserved-identifier)

STAND_IN_3(StoreWatch, fseek, SeekPosition)
STAND_IN_1(StoreWatch, ftell, TellPosition)
