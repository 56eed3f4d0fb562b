#pragma once

#include "store/PlainFile.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// A stream of self-describing tokens. Each begins with a tag byte; all numbers are little-endian:
//
//   0x01 End          closes the innermost object or array
//   0x02 Bool         1 byte, 0 is false
//   0x03 Int32        4 bytes            0x04 UInt32   4 bytes
//   0x05 Int64        8 bytes            0x06 UInt64   8 bytes
//   0x07 Double       8 bytes, IEEE 754
//   0x08 String       4 bytes of length, then that many bytes of UTF-8
//   0x09 ArrayBegin   values follow, up to an End
//   0x0A ObjectBegin  keys, each a String, and their values follow in turn, up to an End
//
// There is no header, no checksum and no length of the whole: a reader takes what it knows and passes over
// the rest, so that files of other versions can be read.

enum class ValueTag : std::uint8_t {
    None = 0x00, ///< a failed read; never written
    End = 0x01,
    Bool = 0x02,
    Int32 = 0x03,
    UInt32 = 0x04,
    Int64 = 0x05,
    UInt64 = 0x06,
    Double = 0x07,
    String = 0x08,
    ArrayBegin = 0x09,
    ObjectBegin = 0x0A,
};

/// Writes a stream to a file. It checks nothing and does not know how deep it is: the caller balances End.
/// Nothing reaches the file before Close; without it the file stays empty.
class ValueStreamWriter {
public:
    /// Opens a regular file in place of what was there. False after a line on standard error.
    bool Open(const std::string &NewPath);

    void BeginObject();
    void BeginArray();
    void End();
    void WriteKey(std::string_view Text);
    void WriteBool(bool Value);
    void WriteInt32(std::int32_t Value);
    void WriteInt64(std::int64_t Value);
    void WriteDouble(double Value);

    /// Closes the open file, so only after an Open that gave true. False, after the line of Open, unless
    /// every byte has reached it.
    bool Close();

private:
    void TellFailure() const;
    void WriteTag(ValueTag Tag);
    template <typename Number> void WriteNumber(Number Value);

    PlainFile File;
    std::string Path;
    std::string Bytes; ///< what was written since Open
};

struct ValueToken {
    ValueTag Tag = ValueTag::None;
    std::uint32_t Depth = 0; ///< of an array or object: how deep its entries lie; otherwise 0
    /// A text lives until its reader loads again or is destroyed.
    std::variant<std::monostate, std::string_view, std::uint64_t, std::int64_t, double, std::uint32_t,
        std::int32_t, bool>
        Value;
};

/// Reads a stream from a whole file in memory. Damaged data gives a token of tag None; there is no recovery,
/// and every walk ends there.
class ValueStreamReader {
public:
    /// Reads the whole file. False after a line on standard error if it cannot be opened or is no regular
    /// one. What lies behind a read error or 4 gigabytes is missing without a word, like the end of a file
    /// that was cut.
    bool Load(const std::string &Path);

    /// The next token and its value; tag None at the end of the data and for damage.
    ValueToken NextToken();

    /// Walks an array or object, whose opening token is Container; false at its end. What the caller has left
    /// unread of the entry before is passed over; a Value that opens one can be walked in its turn. A key
    /// right before its object's End is handed out with a Value of tag End, and the walk goes on behind it.
    bool NextArrayEntry(const ValueToken &Container, ValueToken &Value);
    bool NextObjectEntry(const ValueToken &Container, ValueToken &Key, ValueToken &Value);

private:
    bool ReadValue(ValueToken &Token);
    bool ReadText(ValueToken &Token);
    template <typename Number> bool TakeNumber(Number &Out);
    bool ReadBool(ValueToken &Token);
    template <typename Number, typename Bits> bool ReadNumber(ValueToken &Token);
    void SkipUnread(const ValueToken &Container);

    std::vector<char> Bytes;
    std::uint32_t Position = 0;
    std::uint32_t Depth = 0;
};

// What a token says as a value of a type. Where it cannot be had, Out stays as it was and the result is
// false.

/// The text of a String.
bool TokenToKey(const ValueToken &Token, std::string_view &Out);

/// The low 32 bits of a whole number, and a finite Double rounded half away from zero and clamped; not a
/// Bool.
bool TokenToInt32(const ValueToken &Token, std::int32_t &Out);

/// A Bool, or a number that TokenToInt32 takes, as not equal to 0.
bool TokenToBool(const ValueToken &Token, bool &Out);

/// Whole numbers, a UInt64 beyond INT64_MAX as a negative one; neither a Double nor a Bool.
bool TokenToInt64(const ValueToken &Token, std::int64_t &Out);

/// A Double narrowed, an infinity beyond FLT_MAX, or a number that TokenToInt32 takes.
bool TokenToFloat(const ValueToken &Token, float &Out);
