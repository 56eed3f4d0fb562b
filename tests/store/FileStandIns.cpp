#include "tests/store/StoreWatch.hpp"

#include <string_view>
#ifdef _WIN32
#include <filesystem>
#include <string>
#endif

namespace {

/// The staging file that was opened last, until it is closed.
std::FILE *StagingFile = nullptr;

/// The name begins with a point as well, unlike those of the test framework's own files on Windows.
bool IsStagingPath(std::string_view Path) {
    const std::string_view name = Path.substr(Path.find_last_of("/\\") + 1);
    return name.starts_with('.') && name.ends_with(".tmp");
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

/// What the game calls on Windows in the place of fopen. The C++ library opens its streams by it as well, and
/// among them are all staging files but the save state's.
std::FILE *OpenByUtf16(const wchar_t *Path, const wchar_t *Mode) {
    const std::string path = std::filesystem::path(Path).string();
    const std::string mode = std::filesystem::path(Mode).string();
    return path.ends_with(".SaveState.bin.tmp") ? __wrap_fopen(path.c_str(), mode.c_str())
                                                : __real_fopen(path.c_str(), mode.c_str());
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
