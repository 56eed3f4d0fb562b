#include "tests/store/SaveTest.hpp"
#include "tests/store/SmallDisk.hpp"

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

    std::string Old;
    std::string Said;
};

TEST_F(SaveFaultsTest, KeepTheOldFileWhateverFailsInAWrite) {
    const CallNames failed = FailEach(
        [this] {
            return Write();
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            EXPECT_EQ(Stored("SaveState.bin") == Old, !IsUntouched);
            EXPECT_EQ(Names(), Lines{"SaveState.bin"});
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.OpenFile, Watch.LoadFile, Watch.OpenUserStorage,
                          Watch.StorageReady, Watch.WriteStorageFile}));
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

TEST_F(SaveFaultsTest, EndWhereAFolderTakesThePlainFilesPlace) {
    std::filesystem::create_directories(PathOf(".SaveState.bin.tmp") / "kept");
    EXPECT_FALSE(Write());
    EXPECT_EQ(Said, "Unable to write file: " + Staging() + "\n");
    EXPECT_EQ(Stored("SaveState.bin"), Old);
    EXPECT_FALSE(Read());
    ExpectNothingRead();
}

TEST_F(SaveFaultsTest, EndWhereAFolderTakesTheFilesPlace) {
    std::filesystem::remove(PathOf("SaveState.bin"));
    std::filesystem::create_directories(PathOf("SaveState.bin") / "kept");
    EXPECT_FALSE(Write());
    EXPECT_FALSE(Read());
    ExpectNothingRead();
    EXPECT_EQ(Names(), Lines{"SaveState.bin"});
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

TEST_F(SaveFaultsTest, KeepTheOldFileOnADiskWithoutRoomForAPlainFile) {
    const SmallDisk disk(Folder(), 64);
    if (!disk.IsThere) {
        GTEST_SKIP() << "needs the right to mount a file system";
    }
    Store("SaveState.bin", Old);
    disk.FillUpTo(0);
    EXPECT_FALSE(WriteState(LongRun()));
    EXPECT_EQ(Stored("SaveState.bin"), Old);
    EXPECT_EQ(Names(), (Lines{"SaveState.bin", "filler"}));
}

/// The plain file fits or is cut, and storage empties the old file before it finds that the new one has no
/// room. What storage says of it counts; nothing is looked at again.
TEST_F(SaveFaultsTest, TakeStoragesWordOnADiskThatFillsUp) {
    for (const int room : {4, 8, 16, 24, 32}) {
        SCOPED_TRACE(room);
        const SmallDisk disk(Folder(), 160);
        if (!disk.IsThere) {
            GTEST_SKIP() << "needs the right to mount a file system";
        }
        Store("SaveState.bin", Old);
        disk.FillUpTo(room);
        Watch.Forget();
        const bool written = WriteState(LongRun());
        const std::vector<bool> &writes = Watch.WriteStorageFile.Results;
        EXPECT_EQ(written, !writes.empty() && writes.back());
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
