#include "tests/audio/GameFolder.hpp"

#include "tests/audio/OggFile.hpp"
#include "tools/support/Files.hpp"

MixerTest::MixerTest() {
    ChooseSoftwareDrivers();
    EXPECT_TRUE(SDL_Init(0)) << SDL_GetError();
}

MixerTest::~MixerTest() {
    SDL_Quit();
}

GameFolderTest::GameFolderTest() {
    const std::filesystem::path folder = Home.FilePath("Program");
    std::filesystem::create_directories(folder);
    MoveProgram(folder.string() + "/");
}

void GameFolderTest::MoveProgram(const std::string &BasePath) {
    Base = BasePath;
    Watch.GetBasePath.Answer = [this] {
        return Base.c_str();
    };
}

void GameFolderTest::AddMusic(const std::string &Name, int Frames) const {
    WriteOggTone(PathOf(Name), Frames, 440.0F);
}

void GameFolderTest::AddText(const std::string &Name, std::string_view Text) const {
    WriteBytes(PathOf(Name), Text);
}

void GameFolderTest::AddTune() const {
    AddMusic("Music/Tune.ogg");
    AddText("Music/MusicPatterns.ini", R"([Music]
MenuPattern = TUNE
GameplayPattern = TUNE
WaterPattern = TUNE
GameOverPattern = TUNE
InvincibilityPattern = TUNE
DualWeaponPattern = TUNE
FadeInMs = 0
FadeOutMs = 120
[Pattern.TUNE]
FileName = "Music/Tune.ogg"
)");
}

quillINI::IniDocument GameFolderTest::Read(std::string_view Text) const {
    AddText("Read.ini", Text);
    quillINI::IniDocument document;
    EXPECT_TRUE(quillINI::ReadIniFile(document, PathOf("Read.ini")));
    return document;
}
