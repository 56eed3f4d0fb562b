#include "store/Storage.hpp"

#include "tests/store/StoreTest.hpp"
#include "tests/support/watch/SdlWatch.hpp"

namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

constexpr const char *TimeOut = "Timed out waiting for SDL user storage";

class StorageTest : public StoreTest {
protected:
    StorageTest() : Storage(SDL_OpenUserStorage("Orrin", "KestrelVolley", 0)) {
        EXPECT_NE(Storage, nullptr) << SDL_GetError();
        Watch.Calls.clear();
    }
    ~StorageTest() override {
        SDL_CloseStorage(Storage);
    }

    std::string Staging() const {
        return PathOf("staging").string();
    }
    void ExpectAllClosed(int Opened) const {
        EXPECT_EQ(Watch.Count("SDL_CloseStorage"), Opened);
    }

    SdlWatch Watch;
    SDL_Storage *Storage;
};

using WaitForStorageTest = StorageTest;

TEST_F(WaitForStorageTest, GoesOnAtOnceWithAReadyOne) {
    EXPECT_TRUE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.Count("SDL_StorageReady"), 1);
    EXPECT_EQ(Watch.Count("SDL_Delay"), 0);
}

TEST_F(WaitForStorageTest, AsksAgainAfterAMillisecond) {
    Watch.Refuse("SDL_StorageReady", 1);
    EXPECT_TRUE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.NamesAmong({"SDL_StorageReady", "SDL_Delay"}),
        (Lines{"SDL_StorageReady", "SDL_Delay", "SDL_StorageReady"}));
    EXPECT_EQ(Watch.CallsOf("SDL_Delay"), (std::vector<SdlCall>{{"SDL_Delay", {1}}}));
}

TEST_F(WaitForStorageTest, GivesUpAfterTwoSeconds) {
    Calls.IsNeverReady = true;
    SDL_ClearError();
    const Uint64 start = SDL_GetTicksNS();
    EXPECT_FALSE(WaitForStorage(Storage));
    const Uint64 milliseconds = (SDL_GetTicksNS() - start) / SDL_NS_PER_MS;
    EXPECT_GE(milliseconds, 1999U); // the game's clock has whole milliseconds
    EXPECT_LT(milliseconds, 4000U);
    EXPECT_STREQ(SDL_GetError(), TimeOut);
    EXPECT_GT(Watch.Count("SDL_Delay"), 100);
    EXPECT_EQ(Watch.CallsOf("SDL_Delay").front(), (SdlCall{"SDL_Delay", {1}}));
}

TEST_F(WaitForStorageTest, LooksAtTheClockOnlyAfterAsking) {
    Calls.IsNeverReady = true;
    Calls.ClockStep = 2000;
    EXPECT_FALSE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.Count("SDL_StorageReady"), 1);
    EXPECT_EQ(Watch.Count("SDL_Delay"), 0);
    Calls.IsNeverReady = false;
    EXPECT_TRUE(WaitForStorage(Storage));
}

TEST_F(WaitForStorageTest, StillAsksOnceMoreBeforeTheTwoSeconds) {
    Calls.IsNeverReady = true;
    Calls.ClockStep = 1000;
    EXPECT_FALSE(WaitForStorage(Storage));
    EXPECT_EQ(Watch.Count("SDL_StorageReady"), 2);
    EXPECT_EQ(Watch.Count("SDL_Delay"), 1);
}

TEST_F(WaitForStorageTest, HasTheSameWordsForShippedFiles) {
    SDL_Storage *title = SDL_OpenTitleStorage(Folder().string().c_str(), 0);
    Calls.IsNeverReady = true;
    Calls.ClockStep = 2000;
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
    EXPECT_EQ(Watch.Calls, std::vector<SdlCall>{});
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(CopyStorageFileTest, FailsWithoutWaitingIfThereIsNoFile) {
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(
        Watch.NamesAmong({"SDL_StorageReady", "SDL_Delay", "SDL_GetStoragePathInfo", "SDL_ReadStorageFile"}),
        (Lines{"SDL_StorageReady", "SDL_GetStoragePathInfo"}));
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(CopyStorageFileTest, CountsAnEmptyFileAsAbsent) {
    Store("a.bin", "");
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(Watch.Count("SDL_ReadStorageFile"), 0);
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(CopyStorageFileTest, RefusesAFolder) {
    std::filesystem::create_directory(PathOf("a.bin"));
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(Watch.Count("SDL_ReadStorageFile"), 0);
}

TEST_F(CopyStorageFileTest, RefusesWhateverIsNoFileThoughItHasASize) {
    Store("a.bin", "bytes");
    for (const SDL_PathType type : {SDL_PATHTYPE_DIRECTORY, SDL_PATHTYPE_OTHER}) {
        Calls.ToldType = type;
        EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    }
    EXPECT_EQ(Watch.Count("SDL_ReadStorageFile"), 0);
    EXPECT_EQ(Names(), Lines{"a.bin"});
}

TEST_F(CopyStorageFileTest, FailsIfTheStorageIsNeverReady) {
    Store("a.bin", "bytes");
    Calls.IsNeverReady = true;
    Calls.ClockStep = 700;
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", Staging()));
    EXPECT_EQ(Watch.Count("SDL_GetStoragePathInfo"), 0);
}

TEST_F(CopyStorageFileTest, FailsIfThePlainFileCannotBeWritten) {
    Store("a.bin", "bytes");
    EXPECT_FALSE(CopyStorageFile(Storage, "a.bin", PathOf("a.bin").string() + "/staging"));
}

TEST_F(CopyStorageFileTest, FailsWithEachOfItsCalls) {
    Store("a.bin", "bytes");
    const Lines failed = FailEach(
        [this] {
            return CopyStorageFile(Storage, "a.bin", Staging());
        },
        [](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
        });
    EXPECT_EQ(
        failed, (Lines{"SDL_StorageReady", "SDL_GetStoragePathInfo", "SDL_ReadStorageFile", "SDL_SaveFile"}));
}

using CopyUserStorageFileTest = StorageTest;

TEST_F(CopyUserStorageFileTest, OpensStorageForTheOneCopy) {
    Store("a.bin", "bytes");
    EXPECT_TRUE(CopyUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(ReadBytes(Staging()), "bytes");
    EXPECT_EQ(Watch.NamesAmong({"SDL_OpenUserStorage", "SDL_ReadStorageFile", "SDL_CloseStorage"}),
        (Lines{"SDL_OpenUserStorage", "SDL_ReadStorageFile", "SDL_CloseStorage"}));
}

TEST_F(CopyUserStorageFileTest, RefusesToGoWithoutAName) {
    EXPECT_FALSE(CopyUserStorageFile("", Staging()));
    EXPECT_EQ(Watch.Count("SDL_OpenUserStorage"), 0);
}

TEST_F(CopyUserStorageFileTest, ClosesStorageWithoutAFile) {
    EXPECT_FALSE(CopyUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.Count("SDL_OpenUserStorage"), 1);
    ExpectAllClosed(1);
}

TEST_F(CopyUserStorageFileTest, FailsWithEachOfItsCallsAndClosesStorage) {
    Store("a.bin", "bytes");
    const Lines failed = FailEach(
        [this] {
            return CopyUserStorageFile("a.bin", Staging());
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            const bool wasOpened = Watch.Count("SDL_StorageReady") > 0;
            ExpectAllClosed(wasOpened ? 1 : 0);
            Watch.Calls.clear();
        });
    EXPECT_EQ(failed, (Lines{"SDL_OpenUserStorage", "SDL_StorageReady", "SDL_GetStoragePathInfo",
                          "SDL_ReadStorageFile", "SDL_SaveFile"}));
}

using WriteUserStorageFileTest = StorageTest;

TEST_F(WriteUserStorageFileTest, HandsThePlainFileOverInOneWrite) {
    const std::string bytes = "first\0second\r\n\xFF"s;
    WriteBytes(Staging(), bytes);
    EXPECT_TRUE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Stored("a.bin"), bytes);
    EXPECT_EQ(ReadBytes(Staging()), bytes);
    EXPECT_EQ(Watch.NamesAmong({"SDL_LoadFile", "SDL_OpenUserStorage", "SDL_StorageReady",
                  "SDL_WriteStorageFile", "SDL_CloseStorage"}),
        (Lines{"SDL_LoadFile", "SDL_OpenUserStorage", "SDL_StorageReady", "SDL_WriteStorageFile",
            "SDL_CloseStorage"}));
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
    EXPECT_EQ(Watch.Calls, std::vector<SdlCall>{});
}

TEST_F(WriteUserStorageFileTest, FailsWithoutAPlainFile) {
    Store("a.bin", "old");
    EXPECT_FALSE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.Count("SDL_OpenUserStorage"), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
}

TEST_F(WriteUserStorageFileTest, RefusesAnEmptyPlainFile) {
    Store("a.bin", "old");
    WriteBytes(Staging(), "");
    EXPECT_FALSE(WriteUserStorageFile("a.bin", Staging()));
    EXPECT_EQ(Watch.Count("SDL_OpenUserStorage"), 0);
    EXPECT_EQ(Stored("a.bin"), "old");
}

TEST_F(WriteUserStorageFileTest, FailsWhereTheNameIsAFolder) {
    std::filesystem::create_directory(PathOf("a.bin"));
    WriteBytes(Staging(), "bytes");
    EXPECT_FALSE(WriteUserStorageFile("a.bin", Staging()));
    ExpectAllClosed(1);
}

TEST_F(WriteUserStorageFileTest, FailsWithEachOfItsCallsAndTheOldFileStands) {
    Store("a.bin", "old");
    WriteBytes(Staging(), "new");
    const Lines failed = FailEach(
        [this] {
            return WriteUserStorageFile("a.bin", Staging());
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_EQ(Result, IsUntouched);
            EXPECT_EQ(Stored("a.bin"), IsUntouched ? "new" : "old");
            EXPECT_EQ(ReadBytes(Staging()), "new");
            const bool wasOpened = Watch.Count("SDL_StorageReady") > 0;
            ExpectAllClosed(wasOpened ? 1 : 0);
            Watch.Calls.clear();
        });
    EXPECT_EQ(
        failed, (Lines{"SDL_LoadFile", "SDL_OpenUserStorage", "SDL_StorageReady", "SDL_WriteStorageFile"}));
}

} // namespace
