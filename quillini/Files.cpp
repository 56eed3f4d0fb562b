#include "quillini/Files.hpp"

#include <filesystem>
#include <fstream>
#include <ios>
#include <locale>
#include <optional>
#include <string_view>
#include <system_error>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <limits>
#include <string>
#endif

namespace quillINI {

namespace {

#ifdef _WIN32

/// The path in UTF-16, or nothing if it is not UTF-8.
std::optional<std::filesystem::path> NativePath(std::string_view Path) {
    if (Path.empty() || Path.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    const int bytes = static_cast<int>(Path.size());
    const int units = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, Path.data(), bytes, nullptr, 0);
    if (units <= 0) {
        return std::nullopt;
    }
    std::wstring wide(static_cast<std::size_t>(units), L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, Path.data(), bytes, wide.data(), units);
    return std::filesystem::path(wide);
}

#else

std::optional<std::filesystem::path> NativePath(std::string_view Path) {
    return std::filesystem::path(Path);
}

#endif

/// A closed stream that hands bytes through, whatever the program's locale converts.
template <class Stream> Stream PlainStream() {
    Stream stream;
    stream.imbue(std::locale::classic());
    return stream;
}

} // namespace

std::ifstream OpenToRead(std::string_view Path) {
    auto file = PlainStream<std::ifstream>();
    const std::optional<std::filesystem::path> path = NativePath(Path);
    std::error_code ignored;
    // Some systems open a folder like a file, and then give it the largest size there is.
    if (path && !std::filesystem::is_directory(*path, ignored)) {
        file.open(*path, std::ios::binary);
    }
    return file;
}

std::ofstream OpenToWrite(std::string_view Path) {
    auto file = PlainStream<std::ofstream>();
    const std::optional<std::filesystem::path> path = NativePath(Path);
    if (path) {
        file.open(*path, std::ios::binary);
    }
    return file;
}

} // namespace quillINI
