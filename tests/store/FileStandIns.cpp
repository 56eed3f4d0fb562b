#include "tests/store/StoreWatch.hpp"

#include <string_view>
#ifdef _WIN32
#include <filesystem>
#include <string>
#endif

namespace {

/// The staging file that was opened last, until it is closed.
std::FILE *StagingFile = nullptr;

/// That of the save state. The others are opened by streams, which some C++ libraries open by fopen, too.
bool IsStagingPath(std::string_view Path) {
    return Path.ends_with(".SaveState.bin.tmp");
}

} // namespace

/// A function and its stand-in, by the names that the linker dictates.
#define WRAPPED(Function)                                                                                    \
    extern "C" decltype(Function) __real_##Function;                                                         \
    extern "C" decltype(Function) __wrap_##Function;

WRAPPED(fopen)
extern "C" std::FILE *__wrap_fopen(const char *Path, const char *Mode) {
    if (!IsStagingPath(Path)) {
        return __real_fopen(Path, Mode);
    }
    StagingFile = PassOn(&StoreWatch::OpenFile, __real_fopen, Path, Mode);
    return StagingFile;
}

#ifdef _WIN32

namespace {

/// What the game calls on Windows in the place of fopen, as the C++ library does for its streams.
std::FILE *OpenByUtf16(const wchar_t *Path, const wchar_t *Mode) {
    const std::string path = std::filesystem::path(Path).string();
    const std::string mode = std::filesystem::path(Mode).string();
    return __wrap_fopen(path.c_str(), mode.c_str());
}

} // namespace

extern "C" {
/// The pointer through which a program calls _wfopen, which the linker finds here first.
decltype(&OpenByUtf16) __imp__wfopen = OpenByUtf16;
}

#endif

WRAPPED(fwrite)
extern "C" std::size_t __wrap_fwrite(
    const void *Bytes, std::size_t Size, std::size_t Count, std::FILE *File) {
    return File == StagingFile ? PassOn(&StoreWatch::WriteToFile, __real_fwrite, Bytes, Size, Count, File)
                               : __real_fwrite(Bytes, Size, Count, File);
}

WRAPPED(fclose)
extern "C" int __wrap_fclose(std::FILE *File) {
    if (File != StagingFile) {
        return __real_fclose(File);
    }
    StagingFile = nullptr;
    return PassOn(&StoreWatch::CloseFile, __real_fclose, File);
}

STAND_IN_3(StoreWatch, fseek, SeekPosition)
STAND_IN_1(StoreWatch, ftell, TellPosition)
