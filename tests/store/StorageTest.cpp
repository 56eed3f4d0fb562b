#include "store/Storage.hpp"

#include "tests/store/StoreTest.hpp"

namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

constexpr const char *TimeOut = "Timed out waiting for SDL user storage";

class StorageTest : public StoreTest {
protected:
    StorageTest() : Storage(SDL_OpenUserStorage("Orrin", "KestrelVolley", 0)) {
        EXPECT_NE(Storage, nullptr) << SDL_GetError();
        Watch.Forget();
    }
    ~StorageTest() override {
        SDL_CloseStorage(Storage);
    }

    std::string Staging() const {
        return PathOf("staging").string();
    }
    void ExpectAllClosed(int Opened) const {
        EXPECT_EQ(Watch.CloseStorage.Count(), Opened);
    }

    SDL_Storage *Storage;
};

using WaitForStorageTest = StorageTest;

TEST_F(WaitForStorageTest, GoesOnAtOnceWithAReadyOne) {
    EXPECT_TRUE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.StorageReady.Count(), 1);
    EXPECT_EQ(Watch.Delay.Count(), 0);
}

TEST_F(WaitForStorageTest, AsksAgainAfterAMillisecond) {
    Watch.StorageReady.Refuse(1);
    EXPECT_TRUE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.OrderOf({Watch.StorageReady, Watch.Delay}),
        (CallNames{Watch.StorageReady, Watch.Delay, Watch.StorageReady}));
    EXPECT_EQ(Watch.Delay.OnlyCall(), std::tuple(1U));
}

TEST_F(WaitForStorageTest, GivesUpAfterTwoSeconds) {
    Watch.StorageReady.Refuse();
    SDL_ClearError();
    const Uint64 start = SDL_GetTicksNS();
    EXPECT_FALSE(WaitForStorage(Storage));
    const Uint64 milliseconds = (SDL_GetTicksNS() - start) / SDL_NS_PER_MS;
    EXPECT_GE(milliseconds, 1999U); // the game's clock has whole milliseconds
    EXPECT_LT(milliseconds, 4000U);
    EXPECT_STREQ(SDL_GetError(), TimeOut);
    EXPECT_GT(Watch.Delay.Count(), 100);
    EXPECT_EQ(Watch.Delay.Calls.front(), std::tuple(1U));
}

TEST_F(WaitForStorageTest, LooksAtTheClockOnlyAfterAsking) {
    Watch.StorageReady.Refuse();
    HurryClock(2000);
    EXPECT_FALSE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.StorageReady.Count(), 1);
    EXPECT_EQ(Watch.Delay.Count(), 0);
    Watch.StorageReady.Refuse(0);
    EXPECT_TRUE(WaitForStorage(Storage));
}

TEST_F(WaitForStorageTest, StillAsksOnceMoreBeforeTheTwoSeconds) {
    Watch.StorageReady.Refuse();
    HurryClock(1000);
    EXPECT_FALSE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.StorageReady.Count(), 2);
    EXPECT_EQ(Watch.Delay.Count(), 1);
}

TEST_F(WaitForStorageTest, HasTheSameWordsForShippedFiles) {
    SDL_Storage *title = SDL_OpenTitleStorage(Folder().string().c_str(), 0);
    Watch.StorageReady.Refuse();
    HurryClock(2000);
    EXPECT_FALSE(WaitForStorage(title));
    EXPECT_STREQ(SDL_GetError(), TimeOut);
    SDL_CloseStorage(title);
}

using CopyStorageFileTest = StorageTest;

TEST_F(CopyStorageFileTest, CopiesEveryByte) {
    std::string bytes = "first\0second\r\n\xFF\x1A"s;
    bytes.resize(300000, '\x7F');
    Store("a.bin", bytes);
    EXPECT_TRUE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_TRUE(ReadBytes(Staging()) == bytes);
    EXPECT_EQ(Stored("a.bin").size(), bytes.size());
}

TEST_F(CopyStorageFileTest, ReplacesWhatWasThere) {
    WriteBytes(Staging(), "longer than what comes");
    Store("a.bin", "short");
    EXPECT_TRUE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(ReadBytes(Staging()), "short");
}

TEST_F(CopyStorageFileTest, TakesASingleByte) {
    Store("a.bin", "\0"s);
    EXPECT_TRUE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(ReadBytes(Staging()), "\0"s);
}

TEST_F(CopyStorageFileTest, RefusesToGoWithoutAName) {
    EXPECT_FALSE(CopyStorageFile(Storage, nullptr, Staging()));
    EXPECT_FALSE(CopyStorageFile(Storage, "", Staging()));
    EXPECT_EQ(Watch.Order(), CallNames());
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(CopyStorageFileTest, FailsWithoutWaitingIfThereIsNoFile) {
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(
        Watch.OrderOf({Watch.StorageReady, Watch.Delay, Watch.GetStoragePathInfo, Watch.ReadStorageFile}),
        (CallNames{Watch.StorageReady, Watch.GetStoragePathInfo}));
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(CopyStorageFileTest, CountsAnEmptyFileAsAbsent) {
    Store("a.bin", "");
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(Watch.ReadStorageFile.Count(), 0);
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(CopyStorageFileTest, RefusesAFolder) {
    std::filesystem::create_directory(PathOf("a.bin"));
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(Watch.ReadStorageFile.Count(), 0);
}

TEST_F(CopyStorageFileTest, RefusesWhateverIsNoFileThoughItHasASize) {
    Store("a.bin", "bytes");
    for (const SDL_PathType type : {SDL_PATHTYPE_DIRECTORY, SDL_PATHTYPE_OTHER}) {
        Watch.GetStoragePathInfo.Answer = [type](SDL_Storage *Asked, const char *Path, SDL_PathInfo *Info) {
            const bool found = SDL_GetStoragePathInfo(Asked, Path, Info);
            Info->type = type;
            return found;
        };
        EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    }
    EXPECT_EQ(Watch.ReadStorageFile.Count(), 0);
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(CopyStorageFileTest, FailsIfTheStorageIsNeverReady) {
    Store("a.bin", "bytes");
    Watch.StorageReady.Refuse();
    HurryClock(700);
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(Watch.GetStoragePathInfo.Count(), 0);
}

TEST_F(CopyStorageFileTest, FailsIfThePlainFileCannotBeWritten) {
    Store("a.bin", "bytes");
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", PathOf("a.bin").string() + "/staging"));
}

TEST_F(CopyStorageFileTest, FailsWithEachOfItsCalls) {
    Store("a.bin", "bytes");
    const CallNames failed = FailEach(
        [this] {
            return CopyStorageFile(Storage, "a.bin", Staging());
        },
        [](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
        });
    EXPECT_EQ(failed,
        (CallNames{Watch.StorageReady, Watch.GetStoragePathInfo, Watch.ReadStorageFile, Watch.SaveFile}));
}

using CopyUserStorageFileTest = StorageTest;

TEST_F(CopyUserStorageFileTest, OpensStorageForTheOneCopy) {
    Store("a.bin", "bytes");
    EXPECT_TRUE(CopyUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(ReadBytes(Staging()), "bytes");
    EXPECT_EQ(Watch.OrderOf({Watch.OpenUserStorage, Watch.ReadStorageFile, Watch.CloseStorage}),
        (CallNames{Watch.OpenUserStorage, Watch.ReadStorageFile, Watch.CloseStorage}));
}

TEST_F(CopyUserStorageFileTest, RefusesToGoWithoutAName) {
    EXPECT_FALSE(CopyUserStorageFile("", Staging()));
    EXPECT_EQ(Watch.OpenUserStorage.Count(), 0);
}

TEST_F(CopyUserStorageFileTest, ClosesStorageWithoutAFile) {
    EXPECT_FALSE(CopyUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.OpenUserStorage.Count(), 1);
    ExpectAllClosed(1);
}

TEST_F(CopyUserStorageFileTest, FailsWithEachOfItsCallsAndClosesStorage) {
    Store("a.bin", "bytes");
    const CallNames failed = FailEach(
        [this] {
            return CopyUserStorageFile("a.bin", Staging());
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            const bool wasOpened = Watch.StorageReady.Count() > 0;
            ExpectAllClosed(wasOpened ? 1 : 0);
            Watch.Forget();
        });
    EXPECT_EQ(failed, (CallNames{Watch.OpenUserStorage, Watch.StorageReady, Watch.GetStoragePathInfo,
                          Watch.ReadStorageFile, Watch.SaveFile}));
}

using WriteUserStorageFileTest = StorageTest;

TEST_F(WriteUserStorageFileTest, HandsThePlainFileOverInOneWrite) {
    const std::string bytes = "first\0second\r\n\xFF"s;
    WriteBytes(Staging(), bytes);
    EXPECT_TRUE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Stored("a.bin"), bytes);
    EXPECT_EQ(ReadBytes(Staging()), bytes);
    EXPECT_EQ(Watch.OrderOf({Watch.LoadFile, Watch.OpenUserStorage, Watch.StorageReady,
                  Watch.WriteStorageFile, Watch.CloseStorage}),
        (CallNames{Watch.LoadFile, Watch.OpenUserStorage, Watch.StorageReady, Watch.WriteStorageFile,
            Watch.CloseStorage}));
}

TEST_F(WriteUserStorageFileTest, ReplacesALongerFile) {
    Store("a.bin", "longer than what comes");
    WriteBytes(Staging(), "short");
    EXPECT_TRUE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Stored("a.bin"), "short");
}

TEST_F(WriteUserStorageFileTest, RefusesToGoWithoutAName) {
    WriteBytes(Staging(), "bytes");
    EXPECT_FALSE(WriteUserStorageFile("", Staging()));
    EXPECT_EQ(Watch.Order(), CallNames());
}

TEST_F(WriteUserStorageFileTest, FailsWithoutAPlainFile) {
    Store("a.bin", "old");
    EXPECT_FALSE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.OpenUserStorage.Count(), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
}

TEST_F(WriteUserStorageFileTest, RefusesAnEmptyPlainFile) {
    Store("a.bin", "old");
    WriteBytes(Staging(), "");
    EXPECT_FALSE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.OpenUserStorage.Count(), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
}

TEST_F(WriteUserStorageFileTest, FailsWhereTheNameIsAFolder) {
    std::filesystem::create_directory(PathOf("a.bin"));
    WriteBytes(Staging(), "bytes");
    EXPECT_FALSE(WriteUserStorageFile("a.bin", Staging()));
    ExpectAllClosed(1);
}

TEST_F(WriteUserStorageFileTest, AsksWhatHasTheNameBeforeItOpensIt) {
    WriteBytes(Staging(), "bytes");
    EXPECT_TRUE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.OrderOf({Watch.StorageReady, Watch.GetStoragePathInfo, Watch.WriteStorageFile}),
        (CallNames{Watch.StorageReady, Watch.GetStoragePathInfo, Watch.WriteStorageFile}));
}

TEST_F(WriteUserStorageFileTest, FailsWithEachOfItsCallsAndTheOldFileStands) {
    WriteBytes(Staging(), "new");
    Store("a.bin", "old");
    const CallNames failed = FailEach(
        [this] {
            return WriteUserStorageFile("a.bin", Staging());
        },
        [this](bool /*IsUntouched*/, bool Result) {
            EXPECT_EQ(Result, MayBeWritten());
            EXPECT_EQ(Stored("a.bin"), MayBeWritten() ? "new" : "old");
            EXPECT_EQ(ReadBytes(Staging()), "new");
            const bool wasOpened = Watch.StorageReady.Count() > 0;
            ExpectAllClosed(wasOpened ? 1 : 0);
            Watch.Forget();
            Store("a.bin", "old");
        });
    EXPECT_EQ(failed, (CallNames{Watch.LoadFile, Watch.OpenUserStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.WriteStorageFile}));
}

} // namespace
