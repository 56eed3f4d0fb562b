#include "quillini/Files.hpp"

#include <filesystem>
#include <fstream>
#include <ios>
#include <locale>
#include <optional>
#include <string_view>
#include <system_error>

#ifdef _WIN32
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

/// Whether a path leads to something that is no regular file. To open a pipe can wait for ever, a device need
/// not end, and some systems open a folder like a file of the largest size there is.
bool IsOtherThanFile(const std::filesystem::path &Path) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(Path, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

/// The file of a UTF-8 path, open in the stream's own direction unless that failed.
template <class Stream> Stream OpenFile(std::string_view Path) {
    auto file = PlainStream<Stream>();
    const std::optional<std::filesystem::path> path = NativePath(Path);
    if (path && !IsOtherThanFile(*path)) {
        file.open(*path, std::ios::binary);
    }
    return file;
}

} // namespace

std::ifstream OpenToRead(std::string_view Path) {
    return OpenFile<std::ifstream>(Path);
}

std::ofstream OpenToWrite(std::string_view Path) {
    return OpenFile<std::ofstream>(Path);
}

} // namespace quillINI
