#include "tests/e2e/RestlessPlayer.hpp"
#include "tests/e2e/SoakLog.hpp"
#include "tests/e2e/StoredFiles.hpp"
#include "tools/support/Files.hpp"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <span>
#include <thread>
#include <vector>

// The game played on and on by someone who tries everything, as a long evening of it does.

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr milliseconds Held{30};

seconds SoakTime() {
    const char *wanted = std::getenv("SOAK_SECONDS");
    return seconds(wanted == nullptr ? 60 : std::atoi(wanted));
}

// How far apart it is measured: often enough for a plot, and seldom enough to be played meanwhile.
seconds RowDistance() {
    return std::max(SoakTime() / 100, seconds{5});
}

// How fast the credits scroll, in pixels a second, unless a frame takes longer than 33 milliseconds, for then
// the game runs slower.
constexpr double FullPace = 42.0;

// That speed as it is seen on the credits; 0 if they cannot be seen.
double CreditsSpeed(OpenedGame &Game) {
    constexpr milliseconds seen{1500};
    if (!Game.WaitForPicture([](const Screenshot &Seen) {
            return FindCreditsText(Seen).has_value();
        })) {
        return 0.0;
    }
    const Screenshot first = Game.Person().Look();
    const steady_clock::time_point start = steady_clock::now();
    std::this_thread::sleep_for(seen);
    const Screenshot last = Game.Person().Look();
    const std::chrono::duration<double> time = steady_clock::now() - start;
    const std::optional<Area> above = FindCreditsText(last);
    const std::optional<Area> below = FindCreditsText(first);
    return above && below ? (below->Top - above->Top) / time.count() : 0.0;
}

class Soak : public Measuring {};

// A third of the time is for everything to be loaded once.
void ExpectSteady(std::span<const SoakRow> Rows) {
    const std::size_t third = (Rows.size() + 2) / 3;
    ASSERT_GT(Rows.size(), third);
    // It was being played up to the end.
    EXPECT_GT(Rows.back().Seconds, 0.9 * static_cast<double>(SoakTime().count()) - 30.0);
    const int settled = std::ranges::max(Rows.first(third), {}, &SoakRow::Memory).Memory;
    const int most = std::ranges::max(Rows.subspan(third), {}, &SoakRow::Memory).Memory;
    constexpr int allowance = 8 * 1024;
    EXPECT_LE(most, settled + allowance) << "KiB";
    // A file that is being written is open for a moment.
    const int fewestLate = std::ranges::min(Rows.last(third), {}, &SoakRow::Handles).Handles;
    EXPECT_LE(fewestLate, std::ranges::max(Rows.first(third), {}, &SoakRow::Handles).Handles);
    std::cout << "memory " << settled << " then " << most << " KiB\n";
}

void WritePlot(const std::vector<SoakRow> &Rows) {
    if (const char *wanted = std::getenv("SOAK_PLOT")) {
        WriteBytes(std::filesystem::absolute(wanted), PlotOf(Rows));
        std::cout << "plotted in " << wanted << '\n';
    }
}

// Leaves whatever is shown for the main menu. False if it does not come.
bool ComesToMainMenu(OpenedGame &Game) {
    constexpr milliseconds rest{300};
    return WaitUntil(
        [&Game] {
            const SeenScreen screen = FindScreen(Game.Person().Look());
            if (screen == SeenScreen::Paused) {
                Game.Person().TapKey(Key::Up, Held); // a new pause begins on its first row
                Game.Person().TapKey(Key::Return, Held);
            } else if (screen != SeenScreen::MainMenu) {
                Game.Person().TapKey(Key::Escape, Held);
            }
            return screen == SeenScreen::MainMenu;
        },
        PatientDeadline, rest);
}

// Goes from the main menu to the credits, measures them, and comes back. 0 if they cannot be seen.
double MeasuredPace(OpenedGame &Game) {
    const std::optional<Screenshot> menu = Game.WaitForPicture([](const Screenshot &Seen) {
        return FindScreen(Seen) == SeenScreen::MainMenu && FindMenu(Seen);
    });
    if (!menu) {
        return 0.0;
    }
    const SeenMenu shown = *FindMenu(*menu);
    const int credits = shown.Rows - 2;
    for (int row = shown.Selected; row != credits;) {
        row += row < credits ? 1 : -1;
        Game.Tap(row > shown.Selected ? Key::Down : Key::Up, MenuIs(SeenScreen::MainMenu, shown.Rows, row));
    }
    Game.Tap(Key::Return, ScreenIs(SeenScreen::Credits));
    const double speed = CreditsSpeed(Game);
    Game.Tap(Key::Escape, ScreenIs(SeenScreen::MainMenu));
    return speed;
}

} // namespace

// SOAK_SECONDS sets how long it lasts, SOAK_PLOT names a file for a picture of it.
TEST_F(Soak, PlayedOnAndOnTheGameKeepsItsPaceItsMemoryAndItsSilence) {
    const PreparedHome home;
    // The first run has not much to lose, so that there is a game over early on.
    home.Put(SaveFile, MadeSave({.Hp = 1, .Stocks = 0}));
    OpenedGame game({}, {}, &home);
    const double firstPace = MeasuredPace(game);
    RestlessPlayer someone(game, 20260304);
    SoakLog log(game, RowDistance());
    const steady_clock::time_point start = steady_clock::now();
    // On a slow machine it takes longer until each screen was met; five minutes are enough for any.
    const auto isOver = [&] {
        const auto time = steady_clock::now() - start;
        return time >= SoakTime() && (someone.HasMetAll() || time > std::chrono::minutes{5});
    };
    while (!isOver() && game.Program().IsRunning()) {
        someone.Act();
        log.Look();
    }
    WritePlot(log.Rows);
    ASSERT_TRUE(game.Program().IsRunning()) << "it has ended. It says:\n" << game.Program().Output();
    ASSERT_TRUE(ComesToMainMenu(game));
    const double lastPace = MeasuredPace(game);
    EXPECT_TRUE(someone.HasMetAll());
    EXPECT_NEAR(firstPace, FullPace, FullPace * 0.3) << "pixels of credits a second";
    EXPECT_GT(lastPace, firstPace * 0.7) << "pixels of credits a second";
    ExpectSteady(log.Rows);
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
    EXPECT_TRUE(StoredHighScore(home)) << "the save is damaged";
    std::cout << "pace " << firstPace << " then " << lastPace << ", screens";
    for (const auto &[screen, visits] : someone.Visits) {
        std::cout << ' ' << static_cast<int>(screen) << ':' << visits;
    }
    std::cout << '\n';
}
