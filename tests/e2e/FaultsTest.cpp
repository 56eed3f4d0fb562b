#include "tests/e2e/PageSight.hpp"
#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"
#include "tests/support/SpecialFiles.hpp"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

// Writes that cannot succeed: the game says so, tries again and plays on.

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr const char *SaveFailed = "Failed to write save state: SaveState.bin";
constexpr const char *OptionsFailed = "Failed to write options config: Config.ini";
constexpr const char *FirstOptionsFailed = "Failed to create default options config: Config.ini";

int CountLines(OpenedGame &Game, const std::string &Line) {
    const std::string output = Game.Program().Output();
    int count = 0;
    for (std::size_t at = output.find(Line); at != std::string::npos; at = output.find(Line, at + 1)) {
        ++count;
    }
    return count;
}

// How many more such lines the game writes in that time.
int LinesIn(OpenedGame &Game, const std::string &Line, milliseconds Time) {
    const int before = CountLines(Game, Line);
    std::this_thread::sleep_for(Time);
    return CountLines(Game, Line) - before;
}

// Whether the game writes so many more such lines in that time.
bool WritesLines(OpenedGame &Game, const std::string &Line, int Count, milliseconds Time) {
    const int wanted = CountLines(Game, Line) + Count;
    return WaitUntil(
        [&] {
            return CountLines(Game, Line) >= wanted;
        },
        Time);
}

// Whether the game writes such a line again and again, with that time or more between each two.
testing::AssertionResult Repeats(OpenedGame &Game, const std::string &Line, milliseconds Pause) {
    const steady_clock::time_point start = steady_clock::now();
    if (!WritesLines(Game, Line, 4, 2 * PatientDeadline)) {
        return testing::AssertionFailure() << "it has stopped trying";
    }
    const auto passed = std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
    return passed >= 3 * Pause ? testing::AssertionSuccess()
                               : testing::AssertionFailure() << "four times in " << passed.count() << " ms";
}

// How many more such lines the game writes while the road scrolls 120 pixels, as it does in a second of play.
// A frame counts for 33 milliseconds at most, however long it takes, so that these are 30 frames at least.
int LinesInASecondOfPlay(OpenedGame &Game, const std::string &Line) {
    const int before = CountLines(Game, Line);
    ScrollMeter meter;
    const bool hasScrolled = Game.WaitForPicture([&meter](const Screenshot &Seen) {
                                     return meter.Watch(Seen) >= 120;
                                 })
                                 .has_value();
    return hasScrolled ? CountLines(Game, Line) - before : 0;
}

// A folder that stands where a file is wanted, so that no file can be written there.
void Obstruct(const PreparedHome &Home, const std::string &Name) {
    std::filesystem::create_directories(StoredPath(Home, Name));
}

} // namespace

// Once a second on the menu, and 0.8 seconds after the last try in play; on a slow machine it takes longer.
TEST(Faults, ASaveThatFailsIsTriedAgainOnceASecond) {
    const PreparedHome home;
    Obstruct(home, SaveFile);
    OpenedGame game({}, {}, &home);
    EXPECT_TRUE(Repeats(game, SaveFailed, milliseconds{1000}));
    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(4)));
    EXPECT_TRUE(Repeats(game, SaveFailed, milliseconds{800}));
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
    EXPECT_TRUE(game.Tap(Key::Right, CarInLane(8)));

    std::filesystem::remove(StoredPath(home, SaveFile));
    ASSERT_TRUE(WaitUntil([&home] {
        return StoresRun(home) == true;
    })) << "it has stopped trying";
    EXPECT_EQ(LinesIn(game, SaveFailed, milliseconds{2000}), 0);
    EXPECT_EQ(game.Close(), std::optional(0));
}

TEST(Faults, OptionsThatCannotBeWrittenAreTriedInEveryFrame) {
    enum AudioRow { Master, Apply = 7 };
    const PreparedHome home;
    Obstruct(home, OptionsFile);
    OpenedGame game({}, {}, &home);
    EXPECT_EQ(CountLines(game, FirstOptionsFailed), 1);
    EXPECT_EQ(LinesIn(game, OptionsFailed, milliseconds{500}), 0) << "nothing has changed yet";
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Audio));
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(Master, "95%")));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Audio, Apply, PageIs(Page::Audio, Apply)));
    EXPECT_TRUE(WritesLines(game, OptionsFailed, 30, PatientDeadline));
    EXPECT_TRUE(RowShows(Master, "95%")(game.Person().Look()));
    ASSERT_TRUE(game.Tap(Key::Escape, OptionsMenu(2)));
    ASSERT_TRUE(game.Tap(Key::Escape, FiveRowMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Up, FiveRowMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(4)));
    EXPECT_GE(LinesInASecondOfPlay(game, OptionsFailed), 30);
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));

    std::filesystem::remove(StoredPath(home, OptionsFile));
    ASSERT_TRUE(WaitUntil([&home] {
        return StoredOption(home, "Audio", "MasterVolume") == "95";
    })) << "it has stopped trying";
    EXPECT_EQ(LinesIn(game, OptionsFailed, milliseconds{500}), 0);
    EXPECT_EQ(game.Close(), std::optional(0));
}

// Who opened them would wait for ever for somebody at the other end.
TEST(Faults, PipesInThePlacesOfItsFilesAreLeftAloneAndTheGamePlays) {
    const PreparedHome home;
    for (const char *name : {OptionsFile, SaveFile}) {
        MakePipe(StoredPath(home, name));
    }
    PlayedGame game({}, {}, &home);
    EXPECT_EQ(CountLines(game, FirstOptionsFailed), 1);
    EXPECT_TRUE(WritesLines(game, SaveFailed, 2, PatientDeadline));
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
    EXPECT_EQ(game.Close(), std::optional(0));
    for (const char *name : {OptionsFile, SaveFile}) {
        EXPECT_TRUE(IsSpecialFile(StoredPath(home, name))) << name;
    }
}

// Each fails the one read that it meets, which removes it.
TEST(Faults, PipesInThePlacesOfItsPlainFilesDoNotKeepItWaiting) {
    const PreparedHome home;
    const auto plainFiles = {".Config.ini.tmp", ".SaveState.bin.tmp", ".TitleStorageRead.tmp"};
    for (const char *name : plainFiles) {
        MakePipe(StoredPath(home, name));
    }
    PlayedGame game({}, {}, &home);
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
    EXPECT_EQ(game.Close(), std::optional(0));
    for (const char *name : plainFiles) {
        EXPECT_FALSE(std::filesystem::exists(StoredPath(home, name))) << name;
    }
    EXPECT_TRUE(home.Read(OptionsFile).has_value());
    EXPECT_TRUE(home.Read(SaveFile).has_value());
}

// Where the game's folder should be there is a file: nothing can be read, staged or written.
TEST(Faults, WithoutAFolderToWriteToTheGamePlaysAllTheSame) {
    const PreparedHome home;
    const std::filesystem::path folder = StoredPath(home, SaveFile).parent_path();
    std::filesystem::create_directories(folder.parent_path());
    std::ofstream(folder) << "in the way";
    PlayedGame game({}, {}, &home);
    EXPECT_EQ(CountLines(game, FirstOptionsFailed), 1);
    EXPECT_TRUE(WaitUntil([&game] {
        return CountLines(game, SaveFailed) >= 2;
    }));
    EXPECT_TRUE(game.Tap(Key::Left, CarInLane(0)));
    EXPECT_EQ(game.Close(), std::optional(0));
}
