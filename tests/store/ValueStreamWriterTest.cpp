#include "store/ValueStream.hpp"

#include "tests/store/StoreTest.hpp"
#include "tests/support/FileSizeLimit.hpp"
#include "tests/support/SpecialFiles.hpp"

#include <cmath>
#include <limits>

namespace {

class ValueStreamWriterTest : public StoreTest {
protected:
    ValueStreamWriterTest() {
        EXPECT_TRUE(Writer.Open(Path));
    }

    std::string Written() {
        EXPECT_TRUE(Writer.Close());
        return Hex(ReadBytes(Path));
    }
    /// Writes a key of so many letters and closes the file, and keeps what is said of it.
    bool WriteKeyOf(std::size_t Letters) {
        testing::internal::CaptureStderr();
        Writer.WriteKey(std::string(Letters, 'k'));
        const bool isWritten = Writer.Close();
        Said = testing::internal::GetCapturedStderr();
        return isWritten;
    }

    std::string Path = PathOf("stream").string();
    ValueStreamWriter Writer;
    std::string Said;
};

TEST_F(ValueStreamWriterTest, WritesAnEmptyObjectAsTwoBytes) {
    Writer.BeginObject();
    Writer.End();
    EXPECT_EQ(Written(), "0A 01 ");
}

TEST_F(ValueStreamWriterTest, WritesAnEmptyArrayAsTwoBytes) {
    Writer.BeginArray();
    Writer.End();
    EXPECT_EQ(Written(), "09 01 ");
}

TEST_F(ValueStreamWriterTest, WritesNothingIfToldNothing) {
    EXPECT_EQ(Written(), "");
}

TEST_F(ValueStreamWriterTest, WritesABoolAsOneByte) {
    Writer.WriteBool(false);
    Writer.WriteBool(true);
    EXPECT_EQ(Written(), "02 00 02 01 ");
}

TEST_F(ValueStreamWriterTest, WritesWholeNumbersWithTheLowestByteFirst) {
    Writer.WriteInt32(0);
    Writer.WriteInt32(0x12345678);
    Writer.WriteInt32(-2);
    Writer.WriteInt32(std::numeric_limits<std::int32_t>::min());
    Writer.WriteInt64(0x0123456789ABCDEF);
    Writer.WriteInt64(-2);
    EXPECT_EQ(Written(), "03 00 00 00 00 "
                         "03 78 56 34 12 "
                         "03 FE FF FF FF "
                         "03 00 00 00 80 "
                         "05 EF CD AB 89 67 45 23 01 "
                         "05 FE FF FF FF FF FF FF FF ");
}

TEST_F(ValueStreamWriterTest, WritesDoublesByTheirBits) {
    Writer.WriteDouble(0.0);
    Writer.WriteDouble(-0.0);
    Writer.WriteDouble(1.0);
    Writer.WriteDouble(-2.5);
    Writer.WriteDouble(0.1);
    Writer.WriteDouble(std::numeric_limits<double>::infinity());
    EXPECT_EQ(Written(), "07 00 00 00 00 00 00 00 00 "
                         "07 00 00 00 00 00 00 00 80 "
                         "07 00 00 00 00 00 00 F0 3F "
                         "07 00 00 00 00 00 00 04 C0 "
                         "07 9A 99 99 99 99 99 B9 3F "
                         "07 00 00 00 00 00 00 F0 7F ");
}

TEST_F(ValueStreamWriterTest, WritesKeysWithTheirLengthAndNoTerminator) {
    Writer.WriteKey("");
    Writer.WriteKey("Hp");
    Writer.WriteKey("\xC3\xA4");
    Writer.WriteKey(std::string_view("a\0b", 3));
    EXPECT_EQ(Written(), "08 00 00 00 00 "
                         "08 02 00 00 00 48 70 "
                         "08 02 00 00 00 C3 A4 "
                         "08 03 00 00 00 61 00 62 ");
}

TEST_F(ValueStreamWriterTest, WritesLongKeysWhole) {
    Writer.WriteKey(std::string(300, 'k'));
    EXPECT_TRUE(Writer.Close());
    EXPECT_EQ(ReadBytes(Path), std::string("\x08\x2C\x01\x00\x00", 5) + std::string(300, 'k'));
}

TEST_F(ValueStreamWriterTest, ChecksNoNesting) {
    Writer.End();
    Writer.End();
    Writer.BeginObject();
    Writer.WriteInt32(1);
    EXPECT_EQ(Written(), "01 01 0A 03 01 00 00 00 ");
}

TEST_F(ValueStreamWriterTest, ReplacesWhatWasThere) {
    EXPECT_TRUE(Writer.Close());
    WriteBytes(Path, "something longer");
    EXPECT_TRUE(Writer.Open(Path));
    Writer.BeginArray();
    EXPECT_EQ(Written(), "09 ");
}

TEST_F(ValueStreamWriterTest, TellsOfAFileThatCannotBeOpened) {
    const std::string folder = Folder().string();
    for (const std::string &path : {folder, folder + "/missing/stream", std::string()}) {
        ValueStreamWriter writer;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(writer.Open(path));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to write file: " + path + "\n");
    }
}

TEST_F(ValueStreamWriterTest, TellsOfWhatIsNoRegularFileAndLeavesIt) {
    const TimeLimit limit;
    const std::string path = PathOf("special").string();
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(path);
        ValueStreamWriter writer;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(writer.Open(path));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to write file: " + path + "\n");
        EXPECT_TRUE(IsSpecialFile(path));
        std::filesystem::remove_all(path);
    }
}

TEST_F(ValueStreamWriterTest, TellsOfAFileThatHasNotTakenEveryByte) {
    if (!FileSizeLimit::Exists) {
        GTEST_SKIP() << "the system limits no process's files";
    }
    const std::string words = "Unable to write file: " + Path + "\n";
    // What exceeds the file's buffer does not wait for the closing.
    for (const std::size_t letters : {300U, 4000U, 4091U, 5000U, 100000U}) {
        SCOPED_TRACE(letters);
        const FileSizeLimit disk(letters + 4); // the tag and the length take five
        EXPECT_TRUE(Writer.Open(Path));
        EXPECT_FALSE(WriteKeyOf(letters));
        EXPECT_EQ(Said, words);
        EXPECT_TRUE(Writer.Open(Path));
        EXPECT_TRUE(WriteKeyOf(letters - 1));
        EXPECT_EQ(Said, "");
    }
}

TEST_F(ValueStreamWriterTest, TakesAPathBeyondAscii) {
    const std::filesystem::path path = PathOf("\xC3\xA4\xE2\x82\xAC");
    EXPECT_TRUE(Writer.Open(path.string()));
    Writer.End();
    EXPECT_TRUE(Writer.Close());
    EXPECT_EQ(Hex(ReadBytes(path)), "01 ");
}

} // namespace
