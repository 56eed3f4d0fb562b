#include "store/StagedFile.hpp"

#include "tests/store/StoreTest.hpp"
#include "tests/support/SpecialFiles.hpp"

namespace {

using Lines = std::vector<std::string>;

constexpr StagedFile File{"a.bin", ".a.bin.tmp"};

class StagedFileTest : public StoreTest {
protected:
    bool Write(bool Works) {
        return WriteStagedFile(File, [this, Works](const std::string &Path) {
            ++Steps;
            EXPECT_EQ(Path, PathOf(".a.bin.tmp").string());
            WriteBytes(Path, "new");
            return Works;
        });
    }

    bool Read(bool Works) {
        return ReadStagedFile(File, [this, Works](const std::string &Path) {
            ++Steps;
            EXPECT_EQ(Path, PathOf(".a.bin.tmp").string());
            Found = ReadBytes(Path);
            return Works;
        });
    }

    int Steps = 0;
    std::string Found;
};

TEST_F(StagedFileTest, IsWrittenThroughThePlainFile) {
    EXPECT_TRUE(Write(true));
    EXPECT_EQ(Stored("a.bin"), "new");
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(StagedFileTest, IsNotTouchedIfThePlainFileCannotBeWritten) {
    Store("a.bin", "old");
    EXPECT_FALSE(Write(false));
    EXPECT_EQ(Watch.LoadFile.Count(), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(StagedFileTest, NeedsThePreferencesFolder) {
    Store("a.bin", "old");
    MovePreferences("");
    EXPECT_FALSE(Write(true));
    EXPECT_FALSE(Read(true));
    EXPECT_EQ(Steps, 0);
    EXPECT_EQ(Stored("a.bin"), "old");
}

TEST_F(StagedFileTest, IsWrittenOverWhatACrashLeft) {
    Store(".a.bin.tmp", "left behind by a crash, and longer");
    EXPECT_TRUE(Write(true));
    EXPECT_EQ(Stored("a.bin"), "new");
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(StagedFileTest, KeepsItsOldBytesThroughEveryFailureOfAWrite) {
    Store("a.bin", "old");
    const CallNames failed = FailEach(
        [this] {
            return Write(true);
        },
        [this](bool /*IsUntouched*/, bool Result) {
            EXPECT_EQ(Result, MayBeWritten());
            EXPECT_EQ(Stored("a.bin"), MayBeWritten() ? "new" : "old");
            EXPECT_EQ(Names(), Lines{"a.bin"});
            Store("a.bin", "old");
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.LoadFile, Watch.OpenUserStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.WriteStorageFile}));
}

TEST_F(StagedFileTest, IsReadThroughThePlainFile) {
    Store("a.bin", "old");
    EXPECT_TRUE(Read(true));
    EXPECT_EQ(Found, "old");
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(StagedFileTest, GivesTheReadersNoAndTakesThePlainFileAway) {
    Store("a.bin", "old");
    EXPECT_FALSE(Read(false));
    EXPECT_EQ(Steps, 1);
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(StagedFileTest, NeverReadsWhatACrashLeft) {
    Store(".a.bin.tmp", "left behind by a crash");
    EXPECT_FALSE(Read(true));
    EXPECT_EQ(Steps, 0);
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(StagedFileTest, IsNotReadAfterAnyFailureOfTheCopy) {
    Store("a.bin", "old");
    const CallNames failed = FailEach(
        [this] {
            Steps = 0;
            return Read(true);
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            EXPECT_EQ(Steps, IsUntouched ? 1 : 0);
            EXPECT_EQ(Names(), Lines{"a.bin"});
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.OpenUserStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.ReadStorageFile, Watch.SaveFile}));
}

TEST_F(StagedFileTest, IsNotReadWhereSomethingElseTakesThePlainFilesName) {
    const TimeLimit limit;
    Store("a.bin", "old");
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(PathOf(".a.bin.tmp"));
        EXPECT_FALSE(Read(true));
        EXPECT_EQ(Steps, 0);
        ExpectRemoved(special, PathOf(".a.bin.tmp"));
    }
    EXPECT_EQ(Watch.SaveFile.Count(), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
    EXPECT_TRUE(Read(true));
}

TEST_F(StagedFileTest, IsNotWrittenWhereSomethingElseTakesThePlainFilesName) {
    const TimeLimit limit;
    Store("a.bin", "old");
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(PathOf(".a.bin.tmp"));
        // Whatever the step says of it.
        EXPECT_FALSE(WriteStagedFile(File, [](const std::string &) {
            return true;
        }));
        ExpectRemoved(special, PathOf(".a.bin.tmp"));
    }
    EXPECT_EQ(Watch.LoadFile.Count(), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
    EXPECT_TRUE(Write(true));
}

TEST_F(StagedFileTest, IsNeitherReadNorWrittenWhereSomethingElseHasItsName) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(PathOf("a.bin"));
        EXPECT_FALSE(Read(true));
        EXPECT_FALSE(Write(true));
        EXPECT_TRUE(IsSpecialFile(PathOf("a.bin")));
        EXPECT_FALSE(std::filesystem::exists(PathOf(".a.bin.tmp")));
        std::filesystem::remove_all(PathOf("a.bin"));
    }
    EXPECT_EQ(Watch.ReadStorageFile.Count(), 0);
    EXPECT_EQ(Watch.WriteStorageFile.Count(), 0);
    EXPECT_TRUE(Write(true));
}

TEST_F(StagedFileTest, IsReadAndWrittenThroughALink) {
    if (!LinksCanBeMade) {
        GTEST_SKIP() << "the system's C++ library makes no links";
    }
    Store("Elsewhere", "old");
    std::filesystem::create_symlink(PathOf("Elsewhere"), PathOf("a.bin"));
    EXPECT_TRUE(Read(true));
    EXPECT_EQ(Found, "old");
    EXPECT_TRUE(Write(true));
    EXPECT_EQ(Stored("Elsewhere"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(PathOf("a.bin")));
}

} // namespace
