#include "store/ValueStream.hpp"

#include <algorithm>
#include <bit>
#include <limits>

namespace {

constexpr ValueTag LastTag = ValueTag::ObjectBegin;

/// What is larger is read as well; but a file of holes can tell any size.
constexpr long MaxReservation = 1L << 20;

/// As far as Position reaches; what lies behind is not read.
constexpr std::size_t MaxBytes = std::numeric_limits<std::uint32_t>::max();

/// Makes room for the size of a file and goes back to its start.
void ReserveFor(std::FILE *File, std::vector<char> &Bytes) {
    if (std::fseek(File, 0, SEEK_END) != 0) {
        std::fputs("Error: Failed to seek to end of file, proceeding without reservation!\n", stderr);
        return;
    }
    const long size = std::ftell(File);
    if (size < 0) {
        std::fputs("Warning: Unable to determine file size, proceeding without reservation!\n", stderr);
    } else {
        Bytes.reserve(static_cast<std::size_t>(std::min(size, MaxReservation)));
    }
    std::rewind(File);
}

} // namespace

bool ValueStreamReader::Load(const std::string &Path) {
    const PlainFile file = OpenPlainFile(Path, "rb");
    Bytes.clear();
    Position = 0;
    Depth = 0;
    if (!file) {
        std::fprintf(stderr, "Unable to read file: %s!\n", Path.c_str());
        return false;
    }
    ReserveFor(file.get(), Bytes);
    for (int byte = std::getc(file.get()); byte != EOF && Bytes.size() < MaxBytes;
         byte = std::getc(file.get())) {
        Bytes.push_back(static_cast<char>(byte));
    }
    return true;
}

ValueToken ValueStreamReader::NextToken() {
    ValueToken token;
    const std::uint32_t start = Position;
    std::uint8_t tag = 0;
    if (TakeNumber(tag) && tag <= static_cast<std::uint8_t>(LastTag)) {
        token.Tag = static_cast<ValueTag>(tag);
    }
    if (!ReadValue(token)) {
        Position = start; // so that every later read fails in the same place
        return {};
    }
    return token;
}

bool ValueStreamReader::ReadValue(ValueToken &Token) {
    switch (Token.Tag) {
    case ValueTag::End:
        --Depth;
        return true;
    case ValueTag::ArrayBegin:
    case ValueTag::ObjectBegin:
        Token.Depth = ++Depth;
        return true;
    case ValueTag::Bool:
        return ReadBool(Token);
    case ValueTag::Int32:
        return ReadNumber<std::int32_t, std::uint32_t>(Token);
    case ValueTag::UInt32:
        return ReadNumber<std::uint32_t, std::uint32_t>(Token);
    case ValueTag::Int64:
        return ReadNumber<std::int64_t, std::uint64_t>(Token);
    case ValueTag::UInt64:
        return ReadNumber<std::uint64_t, std::uint64_t>(Token);
    case ValueTag::Double:
        return ReadNumber<double, std::uint64_t>(Token);
    case ValueTag::String:
        return ReadText(Token);
    default:
        return false;
    }
}

bool ValueStreamReader::ReadText(ValueToken &Token) {
    std::uint32_t length = 0;
    if (!TakeNumber(length) || length > Bytes.size() - Position) {
        return false;
    }
    Token.Value = std::string_view(Bytes.data() + Position, length);
    Position += length;
    return true;
}

/// Takes an unsigned number of the stream's byte order.
template <typename Number> bool ValueStreamReader::TakeNumber(Number &Out) {
    if (sizeof(Number) > Bytes.size() - Position) {
        return false;
    }
    Number number = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        const auto byte = static_cast<unsigned char>(Bytes[Position + i]);
        number = static_cast<Number>(number | static_cast<Number>(Number{byte} << (8 * i)));
    }
    Position += static_cast<std::uint32_t>(sizeof(Number));
    Out = number;
    return true;
}

bool ValueStreamReader::ReadBool(ValueToken &Token) {
    std::uint8_t byte = 0;
    const bool isRead = TakeNumber(byte);
    Token.Value = byte != 0;
    return isRead;
}

/// Reads a number whose bits are taken as an unsigned one of the same size.
template <typename Number, typename Bits> bool ValueStreamReader::ReadNumber(ValueToken &Token) {
    Bits bits = 0;
    const bool isRead = TakeNumber(bits);
    Token.Value = std::bit_cast<Number>(bits);
    return isRead;
}

/// Passes over what is left of the entry before, up to where the container's next entry or end begins.
void ValueStreamReader::SkipUnread(const ValueToken &Container) {
    while (Depth != Container.Depth && NextToken().Tag != ValueTag::None) {
    }
}

bool ValueStreamReader::NextArrayEntry(const ValueToken &Container, ValueToken &Value) {
    SkipUnread(Container);
    Value = NextToken();
    return Value.Tag != ValueTag::End && Value.Tag != ValueTag::None;
}

bool ValueStreamReader::NextObjectEntry(const ValueToken &Container, ValueToken &Key, ValueToken &Value) {
    SkipUnread(Container);
    Key = NextToken();
    if (Key.Tag == ValueTag::End || Key.Tag == ValueTag::None) {
        return false;
    }
    Value = NextToken();
    return Value.Tag != ValueTag::None;
}
