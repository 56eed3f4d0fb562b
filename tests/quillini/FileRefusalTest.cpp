#include "tests/quillini/IniTest.hpp"

#include "tests/support/SpecialFiles.hpp"

#include <filesystem>

using namespace quillINI;

namespace {

/// What reading a path prints, which has to give false and leave the document alone.
std::string RefusalOf(const std::string &Path) {
    IniDocument document;
    OutputCatcher output;
    const bool success = ReadIniFile(document, Path);
    std::string text = output.Text();
    EXPECT_FALSE(success);
    EXPECT_EQ(document, IniDocument());
    return text;
}

std::string RefusalOfBytes(std::string_view Bytes) {
    const ScratchFile file;
    file.Fill(Bytes);
    return RefusalOf(file.Path());
}

} // namespace

TEST(RefusedFile, IsOneThatIsAbsent) {
    const ScratchFile file("absent.ini");
    EXPECT_EQ(RefusalOf(file.Path()), "Unable to open INI file: " + file.Path() + "\n");
    EXPECT_FALSE(std::filesystem::exists(file.Path()));
    EXPECT_EQ(RefusalOf(""), "Unable to open INI file: \n");
}

TEST(RefusedFile, IsWhateverIsNoRegularFile) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        const ScratchFile file;
        special.Make(file.Path());
        EXPECT_EQ(RefusalOf(file.Path()), "Unable to open INI file: " + file.Path() + "\n") << special.Kind;
        EXPECT_TRUE(IsSpecialFile(file.Path())) << special.Kind;
    }
}

TEST(RefusedFile, IsNoLinkToARegularFile) {
    if (!LinksCanBeMade) {
        GTEST_SKIP() << "the system's C++ library makes no links";
    }
    const ScratchFile file;
    const ScratchFile link("link.ini");
    file.Fill("key=value");
    std::filesystem::create_symlink(file.Path(), link.Path());
    IniDocument document;
    EXPECT_TRUE(ReadIniFile(document, link.Path()));
    EXPECT_EQ(Shown(document), (ShownLines{"[QI_Global]", "key=value"}));
}

TEST(RefusedFile, IsAnEmptyOne) {
    EXPECT_EQ(RefusalOfBytes(""), "INI file is empty!\n");
}

TEST(RefusedFile, IsOneUnderSixBytes) {
    const std::string five = "a=1;x";
    for (std::size_t size = 1; size <= five.size(); ++size) {
        EXPECT_EQ(RefusalOfBytes(five.substr(0, size)),
            "INI file cannot be smaller than 6 bytes! (Size in bytes: " + std::to_string(size) + ")\n");
    }
}

TEST(RefusedFile, IsAByteOrderMarkAloneWithoutANote) {
    EXPECT_EQ(RefusalOfBytes(Bytes({0xEF, 0xBB, 0xBF})),
        "INI file cannot be smaller than 6 bytes! (Size in bytes: 3)\n");
}

TEST(SmallestFile, HasSixBytes) {
    EXPECT_EQ(Shown(ReadQuietly("a=1;xy")), (ShownLines{"[QI_Global]", "a=1 ;xy"}));
}

TEST(FileName, IsUtf8) {
    const ScratchFile file("\xC3\xBC\xE2\x82\xAC.ini");
    file.Fill("key=value");
    IniDocument document;
    OutputCatcher output;
    EXPECT_TRUE(ReadIniFile(document, file.Path()));
    EXPECT_EQ(output.Text(), "");
    EXPECT_EQ(GetIniValue(document, "QI_Global", "key", ""), "value");
}
