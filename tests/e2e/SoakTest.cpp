#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <random>
#include <string>
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

// The memory that the program holds, in KiB.
int ResidentMemory(pid_t Id) {
    std::ifstream status("/proc/" + std::to_string(Id) + "/status");
    for (std::string word; status >> word;) {
        if (word == "VmRSS:") {
            int size = 0;
            status >> size;
            return size;
        }
    }
    return 0;
}

// How fast the credits scroll, in pixels a second: 42, unless a frame takes longer than 33 milliseconds, for
// then the game runs slower. From the main menu without its row being known, and back to it.
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

// Someone before the game, who always does the same for the same number.
class Player {
public:
    Player(OpenedGame &Played, unsigned Number) : Game(Played), Random(Number) {}

    // Does something that the screen allows.
    void Act() {
        const Screenshot seen = Game.Person().Look();
        switch (FindScreen(seen)) {
        case SeenScreen::MainMenu:
            ++Visits[SeenScreen::MainMenu];
            ChooseFromMainMenu(seen);
            break;
        case SeenScreen::Playing:
            ++Visits[SeenScreen::Playing];
            PlayOn(seen);
            break;
        case SeenScreen::Paused:
            ++Visits[SeenScreen::Paused];
            ChooseFromPause(seen);
            break;
        case SeenScreen::Options:
            ++Visits[SeenScreen::Options];
            ChangeOptions(seen);
            break;
        default:
            ++Visits[FindScreen(seen)];
            Tap({Key::Return});
            break;
        }
    }

    // Whether each screen that a run leads to was met.
    bool HasMetAll() {
        constexpr std::array all{SeenScreen::MainMenu, SeenScreen::Playing, SeenScreen::Paused,
            SeenScreen::Options, SeenScreen::GameOver};
        return std::all_of(all.begin(), all.end(), [this](SeenScreen Screen) {
            return Visits[Screen] > 0;
        });
    }

    // How often each screen was met.
    std::map<SeenScreen, int> Visits;

private:
    int Draw(int Below) {
        return static_cast<int>(Random() % static_cast<unsigned>(Below));
    }

    void Tap(const std::vector<Key> &Keys) {
        for (const Key key : Keys) {
            Game.Person().TapKey(key, Held);
        }
        // Past the last key, and long enough for the next picture to show it.
        std::this_thread::sleep_for(Held * (static_cast<int>(Keys.size()) + 4));
    }

    static void Repeat(std::vector<Key> &Keys, Key Repeated, int Times) {
        Keys.insert(Keys.end(), static_cast<std::size_t>(Times), Repeated);
    }

    // Goes down to a row, which QUIT is not, from the selected one: to the first, which goes on with the run,
    // until there was a game over, for a new run could last longer than the test.
    void ChooseFromMainMenu(const Screenshot &Seen) {
        const std::optional<SeenMenu> menu = FindMenu(Seen);
        if (!menu) {
            return;
        }
        const bool isFree = Visits[SeenScreen::GameOver] > 0 && Draw(4) == 0;
        const int wanted = isFree ? Draw(menu->Rows - 1) : 0;
        std::vector<Key> keys;
        Repeat(keys, Key::Down, (wanted + menu->Rows - menu->Selected) % menu->Rows);
        keys.push_back(Key::Return);
        Tap(keys);
    }

    void ChooseFromPause(const Screenshot &Seen) {
        const std::optional<SeenMenu> menu = FindMenu(Seen);
        if (!menu) {
            return;
        }
        std::vector<Key> keys;
        Repeat(keys, Key::Down, Draw(menu->Rows));
        keys.push_back(Key::Return);
        Tap(keys);
    }

    // A moment at the wheel, into the traffic or just anywhere, with a finger on the trigger at times.
    void PlayOn(const Screenshot &Seen) {
        constexpr std::array keys{Key::Left, Key::Right, Key::Left, Key::Right, Key::X, Key::Space};
        if (Draw(100) == 0) {
            Tap({Key::Escape});
            return;
        }
        if (Draw(10) == 0) {
            Game.Person().PressKey(Key::LeftControl);
        } else if (Draw(10) == 0) {
            Game.Person().ReleaseKey(Key::LeftControl);
        }
        const std::optional<int> car = FindCarLane(Seen);
        const std::optional<int> enemy = FindEnemyLane(Seen);
        if (Draw(10) == 0) {
            Game.Person().TapKey(keys[static_cast<std::size_t>(Draw(static_cast<int>(keys.size())))], Held);
        } else if (car && enemy && *car != *enemy) {
            Game.Person().TapKey(*enemy < *car ? Key::Left : Key::Right, Held);
        }
        std::this_thread::sleep_for(Held);
    }

    // From the options' main page to another page, over its rows with changes, applied or not, and back to
    // where the options were opened. The language, the last row that is changed, goes once around.
    void ChangeOptions(const Screenshot &Seen) {
        const std::optional<SeenMenu> menu = FindMenu(Seen);
        if (!menu) {
            Tap({Key::Escape});
            return;
        }
        const int wanted = Draw(3);
        std::vector<Key> keys;
        Repeat(keys, Key::Down, (wanted + 4 - menu->Selected) % 4);
        keys.push_back(Key::Return);
        switch (wanted) {
        case 0:
            AddControls(keys);
            break;
        case 1:
            AddGraphics(keys);
            break;
        default:
            AddAudio(keys);
            break;
        }
        Repeat(keys, Key::Escape, 2);
        Tap(keys);
    }

    // Each begins and ends on the first row of its page.
    static void AddControls(std::vector<Key> &Keys) {
        Repeat(Keys, Key::Right, 3);
        Keys.insert(Keys.end(), {Key::Down, Key::Return, Key::A, Key::Down, Key::Return, Key::Escape});
        Repeat(Keys, Key::Down, 4);
        Keys.push_back(Key::Return); // DEFAULT SETTINGS
        Keys.push_back(Key::Down);
        Keys.push_back(Key::Return); // APPLY
        Repeat(Keys, Key::Down, 3);
    }

    void AddGraphics(std::vector<Key> &Keys) {
        Repeat(Keys, Key::Right, Draw(5));
        Keys.insert(Keys.end(), {Key::Down, Key::Right}); // the other shape
        Repeat(Keys, Key::Down, 3);
        Repeat(Keys, Key::Return, Draw(3)); // vertical sync
        Repeat(Keys, Key::Down, 2);
        Repeat(Keys, Key::Return, Draw(2)); // APPLY
        Repeat(Keys, Key::Down, 3);
    }

    void AddAudio(std::vector<Key> &Keys) {
        for (int row = 0; row < 5; ++row) {
            Repeat(Keys, Draw(2) == 0 ? Key::Left : Key::Right, Draw(6));
            Keys.push_back(Key::Down);
        }
        const int steps = 1 + Draw(3);
        Repeat(Keys, Key::Right, steps);
        Keys.insert(Keys.end(), {Key::Down, Key::Down, Key::Return, Key::Up, Key::Up}); // APPLY
        Repeat(Keys, Key::Left, steps);
        Keys.insert(Keys.end(), {Key::Down, Key::Down, Key::Return}); // APPLY, and English again
        Repeat(Keys, Key::Down, 3);
    }

    OpenedGame &Game;
    std::mt19937 Random;
};

class Soak : public Measuring {};

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

// Goes to the credits and measures them.
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

// SOAK_SECONDS sets how long it lasts.
TEST_F(Soak, PlayedOnAndOnTheGameKeepsItsPaceItsMemoryAndItsSilence) {
    const PreparedHome home;
    // The first run has not much to lose, so that there is a game over early on.
    home.Put(SaveFile, MadeSave({.Hp = 1, .Stocks = 0}));
    OpenedGame game({}, {}, &home);
    const double firstPace = MeasuredPace(game);
    Player someone(game, 20260304);
    const pid_t id = game.Program().ProcessId();
    std::vector<int> memory;
    const steady_clock::time_point start = steady_clock::now();
    // On a slow machine it takes longer until each screen was met; five minutes are enough for any.
    const auto isOver = [&] {
        const auto time = steady_clock::now() - start;
        return time >= SoakTime() && (someone.HasMetAll() || time > std::chrono::minutes{5});
    };
    while (!isOver() && game.Program().IsRunning()) {
        someone.Act();
        memory.push_back(ResidentMemory(id));
    }
    ASSERT_TRUE(game.Program().IsRunning()) << "it has ended. It says:\n" << game.Program().Output();
    ASSERT_TRUE(ComesToMainMenu(game));
    const double lastPace = MeasuredPace(game);
    EXPECT_TRUE(someone.HasMetAll());
    EXPECT_GT(lastPace, firstPace * 0.7) << "pixels of credits a second";
    // A third of the time for everything to be loaded once.
    const auto third = memory.begin() + static_cast<std::ptrdiff_t>(memory.size() / 3);
    const int settled = *std::max_element(memory.begin(), third);
    const int most = *std::max_element(third, memory.end());
    constexpr int allowance = 8 * 1024;
    EXPECT_LE(most, settled + allowance) << "KiB";
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
    EXPECT_TRUE(StoredHighScore(home)) << "the save is damaged";
    std::cout << "memory " << settled << " then " << most << " KiB, pace " << firstPace << " then "
              << lastPace << ", screens";
    for (const auto &[screen, visits] : someone.Visits) {
        std::cout << ' ' << static_cast<int>(screen) << ':' << visits;
    }
    std::cout << '\n';
}
