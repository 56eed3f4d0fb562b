#include "store/ValueStream.hpp"

#include "tests/store/StoreTest.hpp"
#include "tests/store/StreamBytes.hpp"
#include "tests/support/SpecialFiles.hpp"

#include <limits>

namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

class ValueStreamReaderTest : public StoreTest {
protected:
    void Load(std::string_view Bytes) {
        WriteBytes(Path, Bytes);
        testing::internal::CaptureStderr();
        EXPECT_TRUE(Reader.Load(Path));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    }

    template <typename Value> void ExpectScalar(ValueTag Tag, Value Expected) {
        const ValueToken token = Reader.NextToken();
        EXPECT_EQ(token.Tag, Tag);
        EXPECT_EQ(token.Depth, 0U);
        ASSERT_TRUE(std::holds_alternative<Value>(token.Value));
        EXPECT_EQ(std::get<Value>(token.Value), Expected);
    }
    void ExpectBare(ValueTag Tag, std::uint32_t Depth) {
        const ValueToken token = Reader.NextToken();
        EXPECT_EQ(token.Tag, Tag);
        EXPECT_EQ(token.Depth, Depth);
        EXPECT_TRUE(std::holds_alternative<std::monostate>(token.Value));
    }
    void ExpectNone() {
        ExpectBare(ValueTag::None, 0);
    }

    /// Opens the stream's first array or object.
    ValueToken Open() {
        return Reader.NextToken();
    }
    std::int32_t NextNumber(const ValueToken &Array) {
        ValueToken value;
        std::int32_t number = -1;
        EXPECT_TRUE(Reader.NextArrayEntry(Array, value));
        EXPECT_TRUE(TokenToInt32(value, number));
        return number;
    }
    /// The key of the next entry, whose value is left in Value; empty at the end.
    std::string NextKey(const ValueToken &Object) {
        ValueToken key;
        std::string_view text;
        const bool more = Reader.NextObjectEntry(Object, key, Value);
        return more && TokenToKey(key, text) ? std::string(text) : "";
    }
    void ExpectArrayEnd(const ValueToken &Array) {
        ValueToken value;
        EXPECT_FALSE(Reader.NextArrayEntry(Array, value));
    }
    void ExpectObjectEnd(const ValueToken &Object) {
        ValueToken key;
        EXPECT_FALSE(Reader.NextObjectEntry(Object, key, Value));
    }

    std::string Path = PathOf("stream").string();
    ValueStreamReader Reader;
    ValueToken Value;
};

// Tokens.

TEST_F(ValueStreamReaderTest, GivesEveryScalarAsItsOwnType) {
    Load(BoolToken(0) + BoolToken(1) + BoolToken(0x80) + "\x03\x78\x56\x34\x12"s + "\x03\xFE\xFF\xFF\xFF"s +
         "\x04\xFE\xFF\xFF\xFF"s + "\x05\xEF\xCD\xAB\x89\x67\x45\x23\x01"s +
         "\x05\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s + "\x06\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s +
         "\x07\x00\x00\x00\x00\x00\x00\x04\xC0"s + "\x08\x00\x00\x00\x00"s + "\x08\x02\x00\x00\x00Hp"s +
         "\x08\x03\x00\x00\x00"s + "a\0b"s);
    ExpectScalar(ValueTag::Bool, false);
    ExpectScalar(ValueTag::Bool, true);
    ExpectScalar(ValueTag::Bool, true);
    ExpectScalar<std::int32_t>(ValueTag::Int32, 0x12345678);
    ExpectScalar<std::int32_t>(ValueTag::Int32, -2);
    ExpectScalar<std::uint32_t>(ValueTag::UInt32, 0xFFFFFFFE);
    ExpectScalar<std::int64_t>(ValueTag::Int64, 0x0123456789ABCDEF);
    ExpectScalar<std::int64_t>(ValueTag::Int64, -2);
    ExpectScalar<std::uint64_t>(ValueTag::UInt64, 0xFFFFFFFFFFFFFFFE);
    ExpectScalar<double>(ValueTag::Double, -2.5);
    ExpectScalar<std::string_view>(ValueTag::String, "");
    ExpectScalar<std::string_view>(ValueTag::String, "Hp");
    ExpectScalar<std::string_view>(ValueTag::String, std::string_view("a\0b", 3));
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, CountsDepthOnTheTokensThatOpen) {
    Load("\x0A\x09\x0A\x01\x09\x01\x01\x01"s);
    ExpectBare(ValueTag::ObjectBegin, 1);
    ExpectBare(ValueTag::ArrayBegin, 2);
    ExpectBare(ValueTag::ObjectBegin, 3);
    ExpectBare(ValueTag::End, 0);
    ExpectBare(ValueTag::ArrayBegin, 3);
    ExpectBare(ValueTag::End, 0);
    ExpectBare(ValueTag::End, 0);
    ExpectBare(ValueTag::End, 0);
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, GivesNoneForATagThatIsNoTag) {
    for (int tag = 0; tag < 256; ++tag) {
        if (tag >= 1 && tag <= 10) {
            continue;
        }
        Load(std::string(1, static_cast<char>(tag)) + Int32Token(5));
        ExpectNone();
    }
}

TEST_F(ValueStreamReaderTest, GivesNoneForEveryPayloadThatIsCut) {
    for (const std::string &token : {BoolToken(1), Int32Token(1), UInt32Token(1), Int64Token(1),
             UInt64Token(1), DoubleToken(1.0), TextToken("text")}) {
        for (std::size_t length = 0; length < token.size(); ++length) {
            Load(token.substr(0, length));
            ExpectNone();
            ExpectNone();
        }
        Load(token);
        EXPECT_EQ(Reader.NextToken().Tag, static_cast<ValueTag>(token[0]));
        ExpectNone();
    }
}

TEST_F(ValueStreamReaderTest, DoesNotRecoverFromACutPayload) {
    Load(Int32Token(7) + "\x05\x01\x01\x01\x01"s); // what is left of the number would make four End
    ExpectScalar<std::int32_t>(ValueTag::Int32, 7);
    for (int i = 0; i < 10; ++i) {
        ExpectNone();
    }
}

TEST_F(ValueStreamReaderTest, GivesNoneForATextLongerThanTheFile) {
    for (const std::uint32_t length : {5U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFBU, 0xFFFFFFFFU}) {
        Load('\x08' + LittleEndian(length, 4) + "four");
        ExpectNone();
        ExpectNone();
    }
}

TEST_F(ValueStreamReaderTest, GivesNoneForAnEmptyFile) {
    Load("");
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, TakesEndsWithoutABeginning) {
    Load("\x01\x01\x0A\x01"s);
    ExpectBare(ValueTag::End, 0);
    ExpectBare(ValueTag::End, 0);
    EXPECT_EQ(Reader.NextToken().Tag, ValueTag::ObjectBegin);
    ExpectBare(ValueTag::End, 0);
    ExpectNone();
}

// Walks.

TEST_F(ValueStreamReaderTest, WalksAnArrayToItsEnd) {
    Load(ArrayBytes({Int32Token(1), Int32Token(2), Int32Token(3)}) + Int32Token(4));
    const ValueToken array = Open();
    EXPECT_EQ(NextNumber(array), 1);
    EXPECT_EQ(NextNumber(array), 2);
    EXPECT_EQ(NextNumber(array), 3);
    ExpectArrayEnd(array);
    ExpectScalar<std::int32_t>(ValueTag::Int32, 4);
}

TEST_F(ValueStreamReaderTest, WalksAnObjectToItsEnd) {
    Load(ObjectBytes({{"A", Int32Token(1)}, {"", BoolToken(1)}, {"B", TextToken("b")}}));
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    EXPECT_EQ(Value.Tag, ValueTag::Int32);
    EXPECT_EQ(NextKey(object), "");
    EXPECT_EQ(Value.Tag, ValueTag::Bool);
    EXPECT_EQ(NextKey(object), "B");
    EXPECT_EQ(Value.Tag, ValueTag::String);
    ExpectObjectEnd(object);
}

TEST_F(ValueStreamReaderTest, EndsEmptyWalksAtOnce) {
    Load("\x0A\x01\x09\x01"s);
    ExpectObjectEnd(Open());
    ExpectArrayEnd(Open());
}

TEST_F(ValueStreamReaderTest, GivesKeysThatAreNoText) {
    Load(ObjectToken + Int32Token(1) + Int32Token(2) + EndToken);
    const ValueToken object = Open();
    ValueToken key;
    EXPECT_TRUE(Reader.NextObjectEntry(object, key, Value));
    EXPECT_EQ(key.Tag, ValueTag::Int32);
    EXPECT_EQ(Value.Tag, ValueTag::Int32);
    ExpectObjectEnd(object);
}

const std::string Nested = ObjectBytes(
    {{"X", ArrayBytes({ObjectBytes({{"A", Int32Token(9)}}), ArrayBytes({})})}, {"Y", ObjectBytes({})}});

TEST_F(ValueStreamReaderTest, PassesOverWhatTheCallerDoesNotEnter) {
    Load(ObjectBytes(
        {{"A", Nested}, {"B", Int32Token(2)}, {"C", ArrayBytes({Nested, Nested})}, {"D", Nested}}));
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    EXPECT_EQ(NextKey(object), "B");
    EXPECT_EQ(NextKey(object), "C");
    EXPECT_EQ(NextKey(object), "D");
    ExpectObjectEnd(object);
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, PassesOverEntriesOfAnArray) {
    Load(ArrayBytes({Nested, Int32Token(1), ArrayBytes({Int32Token(8)}), Int32Token(2), Nested}));
    const ValueToken array = Open();
    EXPECT_TRUE(Reader.NextArrayEntry(array, Value));
    EXPECT_EQ(NextNumber(array), 1);
    EXPECT_TRUE(Reader.NextArrayEntry(array, Value));
    EXPECT_EQ(NextNumber(array), 2);
    EXPECT_TRUE(Reader.NextArrayEntry(array, Value));
    EXPECT_EQ(Value.Tag, ValueTag::ObjectBegin);
    ExpectArrayEnd(array);
}

TEST_F(ValueStreamReaderTest, PassesOverTheRestOfAWalkThatWasBrokenOff) {
    Load(ObjectBytes({{"A", ArrayBytes({Int32Token(1), Nested, Int32Token(3)})}, {"B", Int32Token(2)}}));
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    const ValueToken array = Value;
    EXPECT_EQ(array.Depth, 2U);
    EXPECT_EQ(NextNumber(array), 1);
    EXPECT_TRUE(Reader.NextArrayEntry(array, Value));
    EXPECT_EQ(Value.Depth, 3U);
    EXPECT_EQ(NextKey(Value), "X");
    EXPECT_EQ(NextKey(object), "B");
    ExpectObjectEnd(object);
}

TEST_F(ValueStreamReaderTest, GoesOnBehindAWalkThatRanToItsEnd) {
    Load(ObjectBytes({{"A", ArrayBytes({Int32Token(1)})}, {"B", Int32Token(2)}}));
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    const ValueToken array = Value;
    EXPECT_EQ(NextNumber(array), 1);
    ExpectArrayEnd(array);
    EXPECT_EQ(NextKey(object), "B");
    ExpectObjectEnd(object);
}

TEST_F(ValueStreamReaderTest, StopsAWalkOfAnArrayWhereTheStreamFails) {
    for (const std::string &failure : {""s, "\0"s, "\x0B"s, "\xFF"s, "\x03\x01"s}) {
        Load(ArrayToken + Int32Token(1) + failure);
        const ValueToken array = Open();
        EXPECT_EQ(NextNumber(array), 1);
        ExpectArrayEnd(array);
        ExpectArrayEnd(array);
    }
}

TEST_F(ValueStreamReaderTest, StopsAWalkOfAnObjectWhereTheStreamFails) {
    for (const std::string &failure : {""s, "\0"s, "\x08\xFF\xFF\xFF\xFF"s, TextToken("B"),
             TextToken("B") + "\x0B"s, TextToken("B") + "\x07\x01"s}) {
        Load(ObjectToken + EntryBytes({"A", Int32Token(1)}) + failure);
        const ValueToken object = Open();
        EXPECT_EQ(NextKey(object), "A");
        ExpectObjectEnd(object);
        ExpectObjectEnd(object);
    }
}

TEST_F(ValueStreamReaderTest, StopsEveryOuterWalkWhereAnInnerOneFailed) {
    Load(ObjectToken + TextToken("A") + ArrayToken + Int32Token(1) + "\x0B"s + EndToken +
         EntryBytes({"B", Int32Token(2)}) + EndToken);
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    const ValueToken array = Value;
    EXPECT_EQ(NextNumber(array), 1);
    ExpectArrayEnd(array);
    ExpectObjectEnd(object);
}

TEST_F(ValueStreamReaderTest, StopsWhereThePassingOverFails) {
    Load(ObjectToken + TextToken("A") + ArrayToken + Int32Token(1));
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    ExpectObjectEnd(object);
}

TEST_F(ValueStreamReaderTest, PassesOverAHundredThousandNestedOpens) {
    const std::string opens(100000, '\x09');
    Load(ObjectToken + TextToken("A") + opens + std::string(opens.size(), '\x01') +
         EntryBytes({"B", BoolToken(1)}) + EndToken);
    const ValueToken object = Open();
    EXPECT_EQ(NextKey(object), "A");
    EXPECT_EQ(NextKey(object), "B");
    ExpectObjectEnd(object);
}

TEST_F(ValueStreamReaderTest, EndsInAHundredThousandNestedOpensThatAreNeverClosed) {
    Load(std::string(100000, '\x0A'));
    const ValueToken object = Open();
    ValueToken key;
    EXPECT_TRUE(Reader.NextObjectEntry(object, key, Value));
    EXPECT_EQ(key.Depth, 2U);
    EXPECT_EQ(Value.Depth, 3U);
    ExpectObjectEnd(object);
    ExpectNone();
}

// Files.

TEST_F(ValueStreamReaderTest, TellsOfAFileThatCannotBeOpened) {
    for (const std::string &path : {PathOf("missing").string(), Path + "/below", std::string()}) {
        testing::internal::CaptureStderr();
        EXPECT_FALSE(Reader.Load(path));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to read file: " + path + "!\n");
        ExpectNone();
    }
}

TEST_F(ValueStreamReaderTest, TellsOfWhatIsNoRegularFileAndDoesNotOpenIt) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(Path);
        testing::internal::CaptureStderr();
        EXPECT_FALSE(Reader.Load(Path));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to read file: " + Path + "!\n");
        ExpectNone();
        EXPECT_TRUE(IsSpecialFile(Path));
        std::filesystem::remove_all(Path);
    }
}

TEST_F(ValueStreamReaderTest, BeginsAnewWithEveryFile) {
    Load(ObjectToken + ObjectToken + "\x03\x01"s);
    EXPECT_EQ(Reader.NextToken().Depth, 1U);
    EXPECT_EQ(Reader.NextToken().Depth, 2U);
    ExpectNone();
    Load(ArrayToken);
    ExpectBare(ValueTag::ArrayBegin, 1);
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, ReadsOnWhereTheSizeIsNotTold) {
    WriteBytes(Path, Int32Token(5));
    Watch.TellPosition.Refuse();
    testing::internal::CaptureStderr();
    EXPECT_TRUE(Reader.Load(Path));
    Watch.TellPosition.Refuse(0); // for the test framework
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
        "Warning: Unable to determine file size, proceeding without reservation!\n");
    ExpectScalar<std::int32_t>(ValueTag::Int32, 5);
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, ReadsOnWhereSeekingFails) {
    WriteBytes(Path, Int32Token(5));
    Watch.SeekPosition.Answer = [](std::FILE *, long, int) {
        return -1;
    };
    testing::internal::CaptureStderr();
    EXPECT_TRUE(Reader.Load(Path));
    Watch.SeekPosition.Answer = nullptr; // for the test framework
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
        "Error: Failed to seek to end of file, proceeding without reservation!\n");
    ExpectScalar<std::int32_t>(ValueTag::Int32, 5);
    ExpectNone();
}

TEST_F(ValueStreamReaderTest, ReadsAFileOfSeveralMegabytesWhole) {
    const std::string text(3000000, 'x');
    Load(TextToken(text) + Int32Token(5));
    const ValueToken token = Reader.NextToken();
    std::string_view found;
    EXPECT_TRUE(TokenToKey(token, found));
    EXPECT_TRUE(found == text);
    ExpectScalar<std::int32_t>(ValueTag::Int32, 5);
}

} // namespace
