#include "store/PlainFile.hpp"

#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
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

} // namespace

PlainFile OpenPlainFile(const std::string &Path, const char *Mode) {
    const std::wstring path = ToUtf16(Path);
    return PlainFile(path.empty() ? nullptr : _wfopen(path.c_str(), ToUtf16(Mode).c_str()));
}

#else

PlainFile OpenPlainFile(const std::string &Path, const char *Mode) {
    return PlainFile(std::fopen(Path.c_str(), Mode));
}

#endif
