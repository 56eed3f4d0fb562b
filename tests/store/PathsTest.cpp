#include "store/Paths.hpp"

#include "tests/store/StoreTest.hpp"

namespace {

constexpr const char *SafePaths[] = {"a", "Music/MusicPatterns.ini", "Music\\MusicPatterns.ini", "a//b",
    "a\\\\b", "a/\\b", "a/", "a\\", "a//", "...", "a/...", ".../a", "....", ".a", "..a", "a.", "a..", "a/.b",
    "a/..b/c", "a/b..", " ", ". ", " ..", "~", "a b", "caf\xC3\xA9", "C", "C/a"};

constexpr const char *UnsafePaths[] = {"", "/", "\\", "/a", "\\a", "//a", "\\\\a", "C:", "C:a", "C:/a",
    "c:\\a", ":", ":a", "a:", "a:b", "1:a", "a/b:c", "a/C:/b", ".", "..", "./a", "../a", ".\\a", "..\\a",
    "a/.", "a/..", "a\\.", "a\\..", "a/./b", "a/../b", "a\\.\\b", "a\\..\\b", "a/..\\b", "a//..//b",
    "a/b/c/..", "./", "../"};

TEST(SafePaths, AreRelativeWithoutColonsAndDots) {
    for (const char *path : SafePaths) {
        EXPECT_TRUE(IsSafeRelativePath(path)) << path;
    }
}

TEST(SafePaths, AreNoOthers) {
    for (const char *path : UnsafePaths) {
        EXPECT_FALSE(IsSafeRelativePath(path)) << path;
    }
}

class PrefPaths : public StoreTest {
protected:
    std::string With(const char *Folder) {
        MovePreferences(Folder);
        return PrefFilePath("Name.tmp");
    }
};

TEST_F(PrefPaths, LieInTheFolderOfTheGame) {
    EXPECT_EQ(PrefFilePath("Name.tmp"), PathOf("Name.tmp").string());
}

TEST_F(PrefPaths, GetASeparatorUnlessTheFolderEndsInOne) {
    EXPECT_EQ(With("/home/me"), "/home/me/Name.tmp");
    EXPECT_EQ(With("/home/me/"), "/home/me/Name.tmp");
    EXPECT_EQ(With("C:\\me"), "C:\\me/Name.tmp");
    EXPECT_EQ(With("C:\\me\\"), "C:\\me\\Name.tmp");
    EXPECT_EQ(With("/"), "/Name.tmp");
}

TEST_F(PrefPaths, AreEmptyWithoutAName) {
    EXPECT_EQ(PrefFilePath(""), "");
}

TEST_F(PrefPaths, AreEmptyWithoutAFolder) {
    EXPECT_EQ(With(""), "");
    Watch.GetPrefPath.Refuse();
    EXPECT_EQ(PrefFilePath("Name.tmp"), "");
}

} // namespace
