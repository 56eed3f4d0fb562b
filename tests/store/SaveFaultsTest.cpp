#include "tests/store/SaveTest.hpp"
#include "tests/store/SmallDisk.hpp"
#include "tests/support/FileSizeLimit.hpp"
#include "tests/support/SpecialFiles.hpp"

namespace {

using Lines = std::vector<std::string>;

class SaveFaultsTest : public SaveTest {
protected:
    SaveFaultsTest() : Old(SaveBytes(SampleRun())) {
        Store("SaveState.bin", Old);
    }

    /// Writes a state that differs from the stored one, and keeps what is said of it.
    bool Write() {
        GameState state;
        state.HighScore = 5;
        return WriteState(state);
    }
    bool WriteState(const GameState &Saved) {
        testing::internal::CaptureStderr();
        const bool written = WriteSaveState(Saved);
        Said = testing::internal::GetCapturedStderr();
        return written;
    }
    bool Read() {
        State = {};
        State.HighScore = 5;
        State.SaveRequested = true;
        testing::internal::CaptureStderr();
        const bool read = LoadSaveState(State);
        Said = testing::internal::GetCapturedStderr();
        return read;
    }
    void ExpectNothingRead() const {
        EXPECT_EQ(State.HighScore, 0);
        EXPECT_FALSE(State.HasRunState);
        EXPECT_FALSE(State.SaveRequested);
    }
    std::string Staging() const {
        return PathOf(".SaveState.bin.tmp").string();
    }
    /// Expects a write to have failed over the plain file, with storage not even opened.
    void ExpectPlainFileFailed(bool Written) {
        EXPECT_FALSE(Written);
        EXPECT_EQ(Said, "Unable to write file: " + Staging() + "\n");
        EXPECT_EQ(Watch.OpenUserStorage.Count(), 0);
        EXPECT_EQ(Stored("SaveState.bin"), Old);
    }

    std::string Old;
    std::string Said;
};

TEST_F(SaveFaultsTest, KeepTheOldFileWhateverFailsInAWrite) {
    const CallNames failed = FailEach(
        [this] {
            return Write();
        },
        [this](bool /*IsUntouched*/, bool Result) {
            EXPECT_EQ(Result, MayBeWritten());
            EXPECT_EQ(Stored("SaveState.bin") == Old, !MayBeWritten());
            EXPECT_EQ(Names(), Lines{"SaveState.bin"});
            Store("SaveState.bin", Old);
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.OpenFile, Watch.LoadFile, Watch.OpenUserStorage,
                          Watch.StorageReady, Watch.GetStoragePathInfo, Watch.WriteStorageFile}));
}

TEST_F(SaveFaultsTest, LoseNothingOfTheFileWhateverFailsInARead) {
    const CallNames failed = FailEach(
        [this] {
            return Read();
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            EXPECT_EQ(Stored("SaveState.bin"), Old);
            EXPECT_EQ(Names(), Lines{"SaveState.bin"});
            IsUntouched ? ExpectSampleRun() : ExpectNothingRead();
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.OpenUserStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.ReadStorageFile, Watch.SaveFile, Watch.OpenFile}));
}

TEST_F(SaveFaultsTest, AreToldOfThePlainFileAlone) {
    const auto expectWords = [this](const std::string &Words) {
        return [this, Words](bool, bool) {
            EXPECT_EQ(Said, Watch.Refused == Watch.OpenFile ? Words : "");
        };
    };
    FailEach(
        [this] {
            return Write();
        },
        expectWords("Unable to write file: " + Staging() + "\n"));
    FailEach(
        [this] {
            return Read();
        },
        expectWords("Unable to read file: " + Staging() + "!\n"));
}

TEST_F(SaveFaultsTest, EndAWriteIntoAStorageThatIsNeverReadyAfterTwoSeconds) {
    Watch.StorageReady.Refuse();
    const Uint64 start = SDL_GetTicksNS();
    EXPECT_FALSE(Write());
    EXPECT_GE((SDL_GetTicksNS() - start) / SDL_NS_PER_MS, 1999U);
    EXPECT_STREQ(SDL_GetError(), "Timed out waiting for SDL user storage");
    EXPECT_EQ(Stored("SaveState.bin"), Old);
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
}

TEST_F(SaveFaultsTest, KeepTheOldFileIfThePlainFileTakesNothing) {
    Watch.WriteToFile.Refuse();
    ExpectPlainFileFailed(Write());
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
}

TEST_F(SaveFaultsTest, KeepTheOldFileIfThePlainFileDoesNotTakeTheLastByte) {
    Watch.WriteToFile.Answer = [](const void *Bytes, std::size_t Size, std::size_t Count, std::FILE *File) {
        return std::fwrite(Bytes, Size, Count - 1, File);
    };
    ExpectPlainFileFailed(Write());
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
}

TEST_F(SaveFaultsTest, KeepTheOldFileIfThePlainFileCannotBeClosed) {
    Watch.CloseFile.Answer = [](std::FILE *File) {
        std::fclose(File);
        return EOF;
    };
    ExpectPlainFileFailed(Write());
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
    Watch.CloseFile.Answer = nullptr;
    EXPECT_TRUE(Write());
    EXPECT_TRUE(Read());
    EXPECT_EQ(State.HighScore, 5);
}

TEST_F(SaveFaultsTest, EndWhereSomethingElseTakesThePlainFilesPlace) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        Watch.Forget();
        special.Make(Staging());
        ExpectPlainFileFailed(Write());
        ExpectRemoved(special, Staging());
        special.Make(Staging());
        EXPECT_FALSE(Read());
        ExpectNothingRead();
        EXPECT_EQ(Said, "");
        EXPECT_EQ(Stored("SaveState.bin"), Old);
        ExpectRemoved(special, Staging());
    }
    EXPECT_TRUE(Read());
    ExpectSampleRun();
}

TEST_F(SaveFaultsTest, EndWhereSomethingElseTakesTheFilesPlace) {
    const TimeLimit limit;
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        std::filesystem::remove_all(PathOf("SaveState.bin"));
        special.Make(PathOf("SaveState.bin"));
        EXPECT_FALSE(Write());
        EXPECT_EQ(Said, "");
        EXPECT_FALSE(Read());
        EXPECT_EQ(Said, "");
        ExpectNothingRead();
        EXPECT_TRUE(IsSpecialFile(PathOf("SaveState.bin")));
        EXPECT_FALSE(std::filesystem::exists(Staging()));
    }
}

TEST_F(SaveFaultsTest, EndWhereTheHomeIsAFile) {
    const EnvironmentScope home("XDG_DATA_HOME", PathOf("SaveState.bin").string());
    EXPECT_FALSE(Write());
    EXPECT_FALSE(Read());
    ExpectNothingRead();
    EXPECT_EQ(Stored("SaveState.bin"), Old);
}

TEST_F(SaveFaultsTest, AreOvercomeByTheNextWrite) {
    Store(".SaveState.bin.tmp", "left by a crash");
    MovePreferences("");
    EXPECT_FALSE(Write());
    Watch.GetPrefPath.Answer = nullptr;
    EXPECT_TRUE(Write());
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
    EXPECT_TRUE(Read());
    EXPECT_EQ(State.HighScore, 5);
    EXPECT_FALSE(State.HasRunState);
}

// Disks.

/// A run of which the save state takes several pages.
GameState LongRun() {
    GameState state;
    state.HasRunState = true;
    state.HighScore = 5;
    state.Bullets.resize(600);
    return state;
}

TEST_F(SaveFaultsTest, KeepTheOldFileUnlessThereIsRoomForEveryByte) {
    if (!FileSizeLimit::Exists) {
        GTEST_SKIP() << "the system limits no process's files";
    }
    ASSERT_TRUE(WriteState(LongRun()));
    const std::size_t size = Stored("SaveState.bin").size();
    ASSERT_GT(size, 600U * 71U); // a bullet's tokens take 71 bytes
    for (const std::size_t room : {std::size_t{0}, std::size_t{1}, std::size_t{4095}, std::size_t{4096},
             std::size_t{4097}, size / 2, size - 4097, size - 4096, size - 2, size - 1, size}) {
        SCOPED_TRACE(room);
        Store("SaveState.bin", Old);
        Watch.Forget();
        const FileSizeLimit disk(room);
        const bool written = WriteState(LongRun());
        EXPECT_EQ(written, room == size);
        EXPECT_EQ(Watch.OpenUserStorage.Count(), written ? 1 : 0);
        EXPECT_EQ(Stored("SaveState.bin") == Old, !written);
        EXPECT_EQ(Names(), Lines{"SaveState.bin"});
        if (room >= 4095) { // else the line has no room either
            EXPECT_EQ(Said, written ? "" : "Unable to write file: " + Staging() + "\n");
        }
    }
}

TEST_F(SaveFaultsTest, EndOnAReadOnlyDisk) {
    const SmallDisk disk(Folder(), 64);
    if (!disk.IsThere) {
        GTEST_SKIP() << "needs the right to mount a file system";
    }
    Store("SaveState.bin", Old);
    disk.MakeReadOnly();
    EXPECT_FALSE(Write());
    EXPECT_EQ(Said, "Unable to write file: " + Staging() + "\n");
    EXPECT_EQ(Stored("SaveState.bin"), Old);
    EXPECT_FALSE(Read());
    ExpectNothingRead();
}

/// How many kilobytes a long run takes on a disk of whole pages.
int KilobytesOfLongRun(std::size_t Size) {
    return static_cast<int>((Size + 4095) / 4096) * 4;
}

TEST_F(SaveFaultsTest, KeepTheOldFileOnADiskWithoutRoomForAPlainFile) {
    ASSERT_TRUE(WriteState(LongRun()));
    const int needed = KilobytesOfLongRun(Stored("SaveState.bin").size());
    for (int room = 0; room < needed; room += 4) {
        SCOPED_TRACE(room);
        const SmallDisk disk(Folder(), 160);
        if (!disk.IsThere) {
            GTEST_SKIP() << "needs the right to mount a file system";
        }
        Store("SaveState.bin", Old);
        disk.FillUpTo(room);
        Watch.Forget();
        ExpectPlainFileFailed(WriteState(LongRun()));
        EXPECT_EQ(Names(), (Lines{"SaveState.bin", "filler"}));
    }
}

/// The plain file fits, and storage empties the old file before it finds that the new one has no room. What
/// storage says of it counts; nothing is looked at again.
TEST_F(SaveFaultsTest, TakeStoragesWordOnADiskThatFillsUp) {
    ASSERT_TRUE(WriteState(LongRun()));
    const int needed = KilobytesOfLongRun(Stored("SaveState.bin").size());
    for (int room = needed; room <= 2 * needed; room += needed / 4) {
        SCOPED_TRACE(room);
        const SmallDisk disk(Folder(), 160);
        if (!disk.IsThere) {
            GTEST_SKIP() << "needs the right to mount a file system";
        }
        Store("SaveState.bin", Old);
        disk.FillUpTo(room);
        Watch.Forget();
        const bool written = WriteState(LongRun());
        EXPECT_EQ(Watch.WriteStorageFile.Results, std::vector<bool>{written});
        EXPECT_EQ(Said, "");
        EXPECT_EQ(Names(), (Lines{"SaveState.bin", "filler"}));
        Read();
        EXPECT_EQ(Names(), (Lines{"SaveState.bin", "filler"}));
        std::filesystem::remove(PathOf("filler"));
        EXPECT_TRUE(WriteState(LongRun()));
        EXPECT_TRUE(Read());
        EXPECT_EQ(State.Bullets.size(), 600U);
    }
}

} // namespace
