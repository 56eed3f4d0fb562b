#include "store/TitleIni.hpp"

#include "tests/store/StoreTest.hpp"
#include "tests/support/SpecialFiles.hpp"

#include <optional>
#include <stdexcept>

namespace {

using Lines = std::vector<std::string>;

constexpr const char *Path = "Music/Patterns.ini";
constexpr const char *TooShort = "INI file cannot be smaller than 6 bytes! (Size in bytes: 5)\n";

/// Title storage and the program's folder are two folders here, so that it shows which one was read.
class TitleIni : public StoreTest {
protected:
    TitleIni() : Title(Home.FilePath("Title")), Base(Home.FilePath("Base")), BaseText(Base.string()) {
        std::filesystem::create_directories(Title / "Music");
        std::filesystem::create_directories(Base / "Music");
        TellTitle(Title.string());
        TellBase(BaseText);
    }

    void TellTitle(const std::string &Folder) {
        Watch.OpenTitleStorage.Answer = [Folder](const char *, SDL_PropertiesID Properties) {
            return SDL_OpenTitleStorage(Folder.c_str(), Properties);
        };
    }
    void TellBase(const std::optional<std::string> &Folder) {
        Watch.GetBasePath.Answer = [Folder] {
            return Folder ? Folder->c_str() : nullptr;
        };
    }
    static void Ship(const std::filesystem::path &Where, std::string_view Text) {
        WriteBytes(Where / Path, Text);
    }
    bool Read(const std::string &File = Path) {
        testing::internal::CaptureStdout();
        const bool read = ReadTitleIni(File, Document);
        Printed = testing::internal::GetCapturedStdout();
        return read;
    }
    std::string Value(const char *Key) const {
        return quillINI::GetIniValue(Document, "Songs", Key, "none");
    }
    void ExpectNoStagingFile() const {
        EXPECT_EQ(Names(), (Lines{"Base", "Title"}));
    }

    std::filesystem::path Title;
    std::filesystem::path Base;
    std::string BaseText;
    quillINI::IniDocument Document;
    std::string Printed;
};

TEST_F(TitleIni, IsReadFromTitleStorageFirst) {
    Ship(Title, "[Songs]\nFrom=title\n");
    Ship(Base, "[Songs]\nFrom=base\nMore=base\n");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "title");
    EXPECT_EQ(Value("More"), "none");
    EXPECT_EQ(Watch.GetBasePath.Count(), 0);
    EXPECT_EQ(Watch.OpenTitleStorage.OnlyCall(), std::tuple(std::nullopt, 0U)); // of its own choice
    EXPECT_EQ(Printed, "");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, IsReadBesideTheProgramIfTitleStorageLacksIt) {
    Ship(Base, "[Songs]\nFrom=base\n");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "base");
    EXPECT_EQ(Printed, "");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, IsReadBesideTheProgramIfTitleStoragesIsEmpty) {
    Ship(Title, "");
    Ship(Base, "[Songs]\nFrom=base\n");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "base");
    EXPECT_EQ(Printed, "");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, IsReadBesideTheProgramIfTitleStoragesIsRefused) {
    Ship(Title, "a=b\r\n");
    Ship(Base, "[Songs]\nFrom=base\n");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "base");
    EXPECT_EQ(Printed, TooShort);
    ExpectNoStagingFile();
}

TEST_F(TitleIni, IsReadBesideTheProgramIfTitleStoragesIsNoRegularFile) {
    const TimeLimit limit;
    Ship(Base, "[Songs]\nFrom=base\n");
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(Title / Path);
        Document = {};
        EXPECT_TRUE(Read());
        EXPECT_EQ(Value("From"), "base");
        EXPECT_EQ(Printed, "");
        ExpectNoStagingFile();
        std::filesystem::remove_all(Title / Path);
    }
}

TEST_F(TitleIni, IsFalseWhereWhatIsShippedIsNoRegularFile) {
    const TimeLimit limit;
    TellTitle(BaseText);
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(Base / Path);
        EXPECT_FALSE(Read());
        EXPECT_EQ(Printed, "Unable to open INI file: " + BaseText + "/Music/Patterns.ini\n");
        ExpectNoStagingFile();
        std::filesystem::remove_all(Base / Path);
    }
}

TEST_F(TitleIni, IsReadBesideTheProgramIfSomethingElseTakesThePlainFilesName) {
    const TimeLimit limit;
    Ship(Title, "[Songs]\nFrom=title\n");
    Ship(Base, "[Songs]\nFrom=base\n");
    for (const SpecialFile &special : SpecialFiles) {
        SCOPED_TRACE(special.Kind);
        special.Make(PathOf(".TitleStorageRead.tmp"));
        Document = {};
        EXPECT_TRUE(Read());
        EXPECT_EQ(Value("From"), "base");
        ExpectRemoved(special, PathOf(".TitleStorageRead.tmp"));
    }
}

TEST_F(TitleIni, IsRefusedTwiceWhereTitleStorageIsTheProgramsFolder) {
    TellTitle(BaseText);
    Ship(Base, "a=b\r\n");
    EXPECT_FALSE(Read());
    EXPECT_EQ(Printed, std::string(TooShort) + TooShort);
    ExpectNoStagingFile();
}

TEST_F(TitleIni, StaysTitleStoragesWithASyntaxError) {
    Ship(Title, "[Songs]\nFrom=title\nno separator\nLater=title\n");
    Ship(Base, "[Songs]\nFrom=base\nLater=base\n");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "title");
    EXPECT_EQ(Value("Later"), "none");
    EXPECT_EQ(Printed, "Error while reading INI file: No \"=\" or \":\" sign found!\n\n");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, IsFalseWhereNothingIsShipped) {
    EXPECT_FALSE(Read());
    EXPECT_EQ(Printed, "Unable to open INI file: " + BaseText + "/Music/Patterns.ini\n");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, IsFalseWithoutTheProgramsFolder) {
    Ship(Base, "[Songs]\nFrom=base\n");
    TellBase(std::nullopt);
    EXPECT_FALSE(Read());
    TellBase("");
    EXPECT_FALSE(Read());
    EXPECT_EQ(Printed, "");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, JoinsTheProgramsFolderWithASeparatorUnlessItEndsInOne) {
    if (std::filesystem::path::preferred_separator == '\\') {
        GTEST_SKIP() << "both separators lead to the same folder here";
    }
    WriteBytes(Base / "a.ini", "[Songs]\nFrom=folder\n");
    WriteBytes(BaseText + "\\a.ini", "[Songs]\nFrom=backslash\n");
    EXPECT_TRUE(Read("a.ini"));
    EXPECT_EQ(Value("From"), "folder");
    TellBase(BaseText + '/');
    Document = {};
    EXPECT_TRUE(Read("a.ini"));
    EXPECT_EQ(Value("From"), "folder");
    TellBase(BaseText + '\\');
    Document = {};
    EXPECT_TRUE(Read("a.ini"));
    EXPECT_EQ(Value("From"), "backslash");
}

TEST_F(TitleIni, IsNotLookedForOnAnUnsafePath) {
    WriteBytes(Home.FilePath("outside.ini"), "[Songs]\nFrom=outside\n");
    for (const char *path :
        {"", "../outside.ini", "Music/../../outside.ini", "/etc/hostname", "\\a", "C:a", "./a"}) {
        EXPECT_FALSE(Read(path)) << path;
        EXPECT_EQ(Printed, "") << path;
    }
    EXPECT_EQ(Watch.Order(), CallNames());
    EXPECT_EQ(Value("From"), "none");
}

TEST_F(TitleIni, FallsBackWhateverFailsOnTheWayThroughTitleStorage) {
    Ship(Title, "[Songs]\nFrom=title\n");
    Ship(Base, "[Songs]\nFrom=base\n");
    const CallNames failed = FailEach(
        [this] {
            Document = {};
            return Read();
        },
        [this](bool IsUntouched, bool Result) {
            EXPECT_TRUE(Result);
            EXPECT_EQ(Value("From"), IsUntouched ? "title" : "base");
            EXPECT_EQ(Watch.CloseStorage.Count(), Watch.StorageReady.Count() > 0 ? 1 : 0);
            ExpectNoStagingFile();
            Watch.Forget();
        });
    EXPECT_EQ(failed, (CallNames{Watch.GetPrefPath, Watch.OpenTitleStorage, Watch.StorageReady,
                          Watch.GetStoragePathInfo, Watch.ReadStorageFile, Watch.SaveFile}));
}

TEST_F(TitleIni, DoesNotOpenTitleStorageWithoutThePreferencesFolder) {
    Ship(Title, "[Songs]\nFrom=title\n");
    Ship(Base, "[Songs]\nFrom=base\n");
    MovePreferences("");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "base");
    EXPECT_EQ(Watch.OpenTitleStorage.Count(), 0);
}

TEST_F(TitleIni, TakesNothingFromALeftStagingFile) {
    Store(".TitleStorageRead.tmp", "[Songs]\nFrom=crash\n");
    Ship(Base, "[Songs]\nFrom=base\n");
    EXPECT_TRUE(Read());
    EXPECT_EQ(Value("From"), "base");
    ExpectNoStagingFile();
}

TEST_F(TitleIni, RaisesWhatTheReaderRaises) {
    Ship(Title, "[Songs]\nFrom=\\x12\n\\x1");
    Document = {};
    EXPECT_THROW(ReadTitleIni(Path, Document), std::runtime_error);
}

} // namespace
