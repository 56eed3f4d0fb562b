#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Token streams put together by hand, for what the game's own writer is to give and its reader is to take.

inline std::string LittleEndian(std::uint64_t Number, int Count) {
    std::string bytes;
    for (int i = 0; i < Count; ++i) {
        bytes += static_cast<char>(Number >> (8 * i) & 0xFFU);
    }
    return bytes;
}

inline const std::string EndToken = "\x01";
inline const std::string ArrayToken = "\x09";
inline const std::string ObjectToken = "\x0A";

inline std::string BoolToken(std::uint8_t Value) {
    return '\x02' + LittleEndian(Value, 1);
}
inline std::string Int32Token(std::int32_t Value) {
    return '\x03' + LittleEndian(static_cast<std::uint32_t>(Value), 4);
}
inline std::string UInt32Token(std::uint32_t Value) {
    return '\x04' + LittleEndian(Value, 4);
}
inline std::string Int64Token(std::int64_t Value) {
    return '\x05' + LittleEndian(static_cast<std::uint64_t>(Value), 8);
}
inline std::string UInt64Token(std::uint64_t Value) {
    return '\x06' + LittleEndian(Value, 8);
}
inline std::string DoubleToken(double Value) {
    return '\x07' + LittleEndian(std::bit_cast<std::uint64_t>(Value), 8);
}
inline std::string TextToken(std::string_view Text) {
    return '\x08' + LittleEndian(Text.size(), 4) + std::string(Text);
}

/// A key with the bytes of its value.
struct StreamEntry {
    std::string Key;
    std::string Value;
};

inline std::string EntryBytes(const StreamEntry &Entry) {
    return TextToken(Entry.Key) + Entry.Value;
}

inline std::string ObjectBytes(const std::vector<StreamEntry> &Entries) {
    std::string bytes = ObjectToken;
    for (const StreamEntry &entry : Entries) {
        bytes += EntryBytes(entry);
    }
    return bytes + EndToken;
}

inline std::string ArrayBytes(const std::vector<std::string> &Values) {
    std::string bytes = ArrayToken;
    for (const std::string &value : Values) {
        bytes += value;
    }
    return bytes + EndToken;
}
