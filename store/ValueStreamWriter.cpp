#include "store/ValueStream.hpp"

#include <bit>
#include <limits>

static_assert(std::numeric_limits<double>::is_iec559, "the stream's doubles are written by their bits");

bool ValueStreamWriter::Open(const std::string &NewPath) {
    Path = NewPath;
    Bytes.clear();
    File = OpenPlainFile(Path, "wb");
    if (!File) {
        TellFailure();
    }
    return File != nullptr;
}

void ValueStreamWriter::BeginObject() {
    WriteTag(ValueTag::ObjectBegin);
}

void ValueStreamWriter::BeginArray() {
    WriteTag(ValueTag::ArrayBegin);
}

void ValueStreamWriter::End() {
    WriteTag(ValueTag::End);
}

void ValueStreamWriter::WriteKey(std::string_view Text) {
    WriteTag(ValueTag::String);
    WriteNumber(static_cast<std::uint32_t>(Text.size()));
    Bytes.append(Text);
}

void ValueStreamWriter::WriteBool(bool Value) {
    WriteTag(ValueTag::Bool);
    WriteNumber(static_cast<std::uint8_t>(Value ? 1 : 0));
}

void ValueStreamWriter::WriteInt32(std::int32_t Value) {
    WriteTag(ValueTag::Int32);
    WriteNumber(static_cast<std::uint32_t>(Value));
}

void ValueStreamWriter::WriteInt64(std::int64_t Value) {
    WriteTag(ValueTag::Int64);
    WriteNumber(static_cast<std::uint64_t>(Value));
}

void ValueStreamWriter::WriteDouble(double Value) {
    WriteTag(ValueTag::Double);
    WriteNumber(std::bit_cast<std::uint64_t>(Value));
}

bool ValueStreamWriter::Close() {
    const bool isWritten = std::fwrite(Bytes.data(), 1, Bytes.size(), File.get()) == Bytes.size();
    const bool isClosed = std::fclose(File.release()) == 0; // writes what was still held back
    if (!isWritten || !isClosed) {
        TellFailure();
    }
    return isWritten && isClosed;
}

/// Says that the file could not be written.
void ValueStreamWriter::TellFailure() const {
    std::fprintf(stderr, "Unable to write file: %s\n", Path.c_str());
}

void ValueStreamWriter::WriteTag(ValueTag Tag) {
    WriteNumber(static_cast<std::uint8_t>(Tag));
}

template <typename Number> void ValueStreamWriter::WriteNumber(Number Value) {
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        Bytes.push_back(static_cast<char>(Value >> (8 * i)));
    }
}
