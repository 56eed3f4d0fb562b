#include "store/PlainFile.hpp"

#include <SDL3/SDL.h>

#ifdef _WIN32

#include <windows.h>

namespace {

/// The text in UTF-16; empty if it is not UTF-8.
std::wstring ToUtf16(const std::string &Text) {
    const int size = MultiByteToWideChar(
        CP_UTF8, MB_ERR_INVALID_CHARS, Text.c_str(), static_cast<int>(Text.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(
        CP_UTF8, MB_ERR_INVALID_CHARS, Text.c_str(), static_cast<int>(Text.size()), wide.data(), size);
    return wide;
}

std::FILE *OpenFile(const std::string &Path, const char *Mode) {
    const std::wstring path = ToUtf16(Path);
    return path.empty() ? nullptr : _wfopen(path.c_str(), ToUtf16(Mode).c_str());
}

} // namespace

#else

namespace {

std::FILE *OpenFile(const std::string &Path, const char *Mode) {
    return std::fopen(Path.c_str(), Mode);
}

} // namespace

#endif

bool IsOtherThanFile(const std::string &Path) {
    SDL_PathInfo info;
    return SDL_GetPathInfo(Path.c_str(), &info) && info.type != SDL_PATHTYPE_FILE;
}

PlainFile OpenPlainFile(const std::string &Path, const char *Mode) {
    return PlainFile(IsOtherThanFile(Path) ? nullptr : OpenFile(Path, Mode));
}
