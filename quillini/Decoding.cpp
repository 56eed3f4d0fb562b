#include "quillini/Decoding.hpp"

#include "quillini/ByteOrder.hpp"
#include "quillini/CodeCvt.hpp"
#include "quillini/Files.hpp"
#include "quillini/Text.hpp"

#include <algorithm>
#include <array>
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

// Five bytes could be a whole file, and are refused all the same.
constexpr std::size_t SmallestFile = 6;

/// What one of the first four bytes of a file has to be.
struct ByteRule {
    enum class Test : std::uint8_t {
        Any,
        NotZero,
        Equal,
    };

    Test Kind = Test::Equal;
    std::uint8_t Value = 0;
};

constexpr ByteRule Any{ByteRule::Test::Any};
constexpr ByteRule NotZero{ByteRule::Test::NotZero};

constexpr ByteRule Is(std::uint8_t Value) {
    return {ByteRule::Test::Equal, Value};
}

/// An encoding, known by the first bytes of a file.
struct Signature {
    std::array<ByteRule, 4> FirstBytes;
    std::size_t UnitSize; ///< bytes
    ByteOrder Order;
    std::string_view Name;
    std::size_t MarkSize; ///< bytes of the byte order mark
};

// The first match wins.
constexpr std::array<Signature, 9> Signatures{{
    {{Is(0xFF), Is(0xFE), Is(0x00), Is(0x00)}, 4, ByteOrder::Little, "UTF-32 Little Endian", 4},
    {{Is(0xFF), Is(0xFE), Any, Any}, 2, ByteOrder::Little, "UTF-16 Little Endian", 2},
    {{Is(0xFE), Is(0xFF), Any, Any}, 2, ByteOrder::Big, "UTF-16 Big Endian", 2},
    {{Is(0xEF), Is(0xBB), Is(0xBF), Any}, 1, ByteOrder::Little, "UTF-8", 3},
    {{Is(0x00), Is(0x00), Is(0xFE), Is(0xFF)}, 4, ByteOrder::Big, "UTF-32 Big Endian", 4},
    {{NotZero, Is(0x00), Is(0x00), Is(0x00)}, 4, ByteOrder::Little, "UTF-32 Little Endian", 0},
    {{NotZero, Is(0x00), NotZero, Is(0x00)}, 2, ByteOrder::Little, "UTF-16 Little Endian", 0},
    {{Is(0x00), Is(0x00), Is(0x00), NotZero}, 4, ByteOrder::Big, "UTF-32 Big Endian", 0},
    {{Is(0x00), NotZero, Is(0x00), NotZero}, 2, ByteOrder::Big, "UTF-16 Big Endian", 0},
}};

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
        std::cout << "Unable to open INI file: " + std::string(Path) + "\n";
        return std::nullopt;
    }
    std::string bytes = ReadAll(file);
    if (bytes.empty()) {
        std::cout << "INI file is empty!\n";
        return std::nullopt;
    }
    if (bytes.size() < SmallestFile) {
        std::cout << "INI file cannot be smaller than 6 bytes! (Size in bytes: " +
                         TextFromNumber(bytes.size()) + ")\n";
        return std::nullopt;
    }
    return bytes;
}

bool Passes(char Byte, const ByteRule &Rule) {
    const auto value = static_cast<std::uint8_t>(Byte);
    switch (Rule.Kind) {
    case ByteRule::Test::NotZero:
        return value != 0;
    case ByteRule::Test::Equal:
        return value == Rule.Value;
    case ByteRule::Test::Any:
    default:
        return true;
    }
}

bool Matches(const Signature &Signature, std::string_view Bytes) {
    return std::ranges::equal(Bytes.substr(0, Signature.FirstBytes.size()), Signature.FirstBytes, Passes);
}

// Four signatures have no byte order mark, and their files get these words too; that stays.
void PrintMarkNote(std::string_view Name) {
    std::cout << "INI file starts with " + std::string(Name) +
                     " BOM! Please note that by default the BOM will be skipped, and removed in case the INI "
                     "file gets saved and the BOM was not specified!\n";
}

/// The whole units of the bytes; a last one that is cut short is dropped.
template <class Unit> std::basic_string<Unit> UnitsOf(std::string_view Bytes, ByteOrder Order) {
    std::basic_string<Unit> units;
    units.reserve(Bytes.size() / sizeof(Unit));
    for (std::size_t begin = 0; Bytes.size() - begin >= sizeof(Unit); begin += sizeof(Unit)) {
        std::uint32_t unit = 0;
        for (std::size_t i = 0; i < sizeof(Unit); ++i) {
            const std::size_t offset = Order == ByteOrder::Big ? i : sizeof(Unit) - 1 - i;
            unit = unit << 8U | static_cast<std::uint8_t>(Bytes[begin + offset]);
        }
        units.push_back(static_cast<Unit>(unit));
    }
    return units;
}

std::string Decode(std::string_view Bytes, const Signature &Signature) {
    const std::string_view text = Bytes.substr(Signature.MarkSize);
    switch (Signature.UnitSize) {
    case 4:
        return Utf8From(UnitsOf<char32_t>(text, Signature.Order));
    case 2:
        return Utf8From(UnitsOf<char16_t>(text, Signature.Order));
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
        if (Matches(signature, *bytes)) {
            PrintMarkNote(signature.Name);
            return Decode(*bytes, signature);
        }
    }
    return bytes; // UTF-8 without a mark, as it is
}

} // namespace quillINI
