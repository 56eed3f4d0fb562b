#include "quillini/CodeCvt.hpp"
#include "quillini/quillini.hpp"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace quillINI {

namespace {

template <class Unit>
void WriteUnits(const std::basic_string<Unit> &Units, std::ostream &File, std::endian Order) {
    std::string bytes;
    bytes.reserve(Units.size() * sizeof(Unit));
    for (const Unit unit : Units) {
        for (std::size_t i = 0; i < sizeof(Unit); ++i) {
            const std::size_t place = Order == std::endian::little ? i : sizeof(Unit) - 1 - i;
            bytes += static_cast<char>(static_cast<std::uint8_t>(std::uint32_t{unit} >> 8 * place));
        }
    }
    File << bytes;
}

} // namespace

void WriteIniEncoded(std::string_view Text, std::ostream &File, IniEncoding Encoding) {
    switch (Encoding) {
    case IniEncoding::Utf8:
    case IniEncoding::Utf8Bom:
        File << Text;
        break;
    case IniEncoding::Utf16Le:
        WriteUnits(Utf16From(Text), File, std::endian::little);
        break;
    case IniEncoding::Utf16Be:
        WriteUnits(Utf16From(Text), File, std::endian::big);
        break;
    case IniEncoding::Utf32Le:
        WriteUnits(Utf32From(Text), File, std::endian::little);
        break;
    case IniEncoding::Utf32Be:
        WriteUnits(Utf32From(Text), File, std::endian::big);
        break;
    default: // an unknown encoding writes nothing
        break;
    }
}

} // namespace quillINI
