#include "quillini/Decoding.hpp"

#include "quillini/CodeCvt.hpp"
#include "quillini/Files.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <ios>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

namespace quillINI {

namespace {

// NOT-BUGS: An empty file counts as missing, and an INI file under six bytes as unreadable
constexpr std::size_t SmallestFile = 6;

// What a byte of a signature can be beside a value.
constexpr int Any = -1;
constexpr int NotZero = -2;

/// An encoding, known by the first bytes of a file.
struct Signature {
    std::array<int, 4> FirstBytes;
    std::size_t UnitSize; ///< bytes
    std::endian Order;
    std::string_view Name;
    std::size_t MarkSize; ///< bytes of the byte order mark
};

// The first match wins.
constexpr auto Signatures = std::to_array<Signature>({
    {{0xFF, 0xFE, 0x00, 0x00}, 4, std::endian::little, "UTF-32 Little Endian", 4},
    {{0xFF, 0xFE, Any, Any}, 2, std::endian::little, "UTF-16 Little Endian", 2},
    {{0xFE, 0xFF, Any, Any}, 2, std::endian::big, "UTF-16 Big Endian", 2},
    {{0xEF, 0xBB, 0xBF, Any}, 1, std::endian::little, "UTF-8", 3},
    {{0x00, 0x00, 0xFE, 0xFF}, 4, std::endian::big, "UTF-32 Big Endian", 4},
    {{NotZero, 0x00, 0x00, 0x00}, 4, std::endian::little, "UTF-32 Little Endian", 0},
    {{NotZero, 0x00, NotZero, 0x00}, 2, std::endian::little, "UTF-16 Little Endian", 0},
    {{0x00, 0x00, 0x00, NotZero}, 4, std::endian::big, "UTF-32 Big Endian", 0},
    {{0x00, NotZero, 0x00, NotZero}, 2, std::endian::big, "UTF-16 Big Endian", 0},
});

std::string ReadAll(std::ifstream &File) {
    File.seekg(0, std::ios::end);
    const std::streamoff size = File.tellg();
    std::string bytes(static_cast<std::size_t>(std::max<std::streamoff>(size, 0)), '\0');
    File.seekg(0);
    File.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(File.gcount()));
    return bytes;
}

/// The bytes of a file that is long enough to be read.
std::optional<std::string> ReadBytes(std::string_view Path) {
    std::ifstream file = OpenToRead(Path);
    if (!file.is_open()) {
        std::cout << "Unable to open INI file: " << Path << '\n';
        return std::nullopt;
    }
    std::string bytes = ReadAll(file);
    if (bytes.empty()) {
        std::cout << "INI file is empty!\n";
        return std::nullopt;
    }
    if (bytes.size() < SmallestFile) {
        // As text, since the stream's locale could group the digits.
        std::cout << "INI file cannot be smaller than 6 bytes! (Size in bytes: "
                  << std::to_string(bytes.size()) << ")\n";
        return std::nullopt;
    }
    return bytes;
}

bool IsAsExpected(char Byte, int Expected) {
    const auto value = static_cast<std::uint8_t>(Byte);
    return Expected == Any || (Expected == NotZero ? value != 0 : value == Expected);
}

bool Matches(std::string_view Bytes, const Signature &Expected) {
    return std::ranges::equal(Bytes.substr(0, Expected.FirstBytes.size()), Expected.FirstBytes, IsAsExpected);
}

// NOT-BUGS: The note about a byte order mark also comes for files that have none
void PrintMarkNote(std::string_view EncodingName) {
    std::cout << "INI file starts with " << EncodingName
              << " BOM! Please note that by default the BOM will be skipped, and removed in case the INI "
                 "file gets saved and the BOM was not specified!\n";
}

/// The whole units of the bytes; a last one that is cut short is dropped.
template <class Unit> std::basic_string<Unit> UnitsOf(std::string_view Bytes, std::endian Order) {
    std::basic_string<Unit> units;
    units.reserve(Bytes.size() / sizeof(Unit));
    for (std::size_t begin = 0; Bytes.size() - begin >= sizeof(Unit); begin += sizeof(Unit)) {
        std::uint32_t unit = 0;
        for (std::size_t i = 0; i < sizeof(Unit); ++i) {
            const std::size_t offset = Order == std::endian::big ? i : sizeof(Unit) - 1 - i;
            unit = unit << 8U | static_cast<std::uint8_t>(Bytes[begin + offset]);
        }
        units.push_back(static_cast<Unit>(unit));
    }
    return units;
}

std::string Decode(std::string_view Bytes, const Signature &Found) {
    const std::string_view text = Bytes.substr(Found.MarkSize);
    switch (Found.UnitSize) {
    case 4:
        return Utf8From(UnitsOf<char32_t>(text, Found.Order));
    case 2:
        return Utf8From(UnitsOf<char16_t>(text, Found.Order));
    default:
        return std::string(text); // as it is, valid or not
    }
}

} // namespace

std::optional<std::string> ReadDecodedFile(std::string_view Path) {
    std::optional<std::string> bytes = ReadBytes(Path);
    if (!bytes) {
        return std::nullopt;
    }
    for (const Signature &signature : Signatures) {
        if (Matches(*bytes, signature)) {
            PrintMarkNote(signature.Name);
            return Decode(*bytes, signature);
        }
    }
    return bytes; // UTF-8 without a mark, as it is
}

} // namespace quillINI
