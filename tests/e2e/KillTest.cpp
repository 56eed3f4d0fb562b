#include "tests/e2e/OpenedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <future>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

// What a game that is killed without a warning leaves behind for the next start.

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// What the kills have left.
struct Tally {
    int Kills = 0;
    int Own = 0;          // a save that was written since the start
    int Older = 0;        // the one that the start had found
    int Empty = 0;        // none, or one without a byte
    int Cut = 0;          // one that ends before its end
    int EmptyOptions = 0; // an options file without a byte
    int RunsFound = 0;    // by starts
    std::int64_t HighScore = 0;
};

constexpr int Killed = 128 + SIGKILL;

// Draws a number from 0 on, below Below.
int Draw(std::mt19937 &Random, int Below) {
    return static_cast<int>(Random() % static_cast<unsigned>(Below));
}

// A moment of a person who only wants to score, in a run.
void Play(OpenedGame &Game, std::mt19937 &Random) {
    constexpr std::array keys{Key::Left, Key::Right, Key::X, Key::Space, Key::Escape};
    // Escape twice: a pause that goes on at once.
    const Key key = keys[static_cast<std::size_t>(Draw(Random, static_cast<int>(keys.size())))];
    Game.Person().TapKey(key, milliseconds{20});
    if (key == Key::Escape) {
        Game.Person().TapKey(key, milliseconds{20});
    }
    std::this_thread::sleep_for(milliseconds{20 + Draw(Random, 180)});
}

// A moment of somebody who looks around in menus.
void Wander(OpenedGame &Game, std::mt19937 &Random) {
    constexpr std::array keys{Key::Up, Key::Down, Key::Down, Key::Down, Key::Left, Key::Right, Key::Return,
        Key::Return, Key::Escape};
    Game.Person().TapKey(
        keys[static_cast<std::size_t>(Draw(Random, static_cast<int>(keys.size())))], milliseconds{20});
}

// Uses the game for a while, three times out of four to play. Whether it was killed then: it may have been
// left before.
bool UseAndKill(OpenedGame &Game, std::mt19937 &Random, int MostMilliseconds) {
    const bool plays = Draw(Random, 4) > 0;
    // A few are over on the menu already.
    const auto end = steady_clock::now() + milliseconds{Draw(Random, MostMilliseconds)};
    if (plays) {
        Game.Person().TapKey(Key::Return, milliseconds{20});
        Game.Person().PressKey(Key::LeftControl);
    }
    while (steady_clock::now() < end && Game.Program().IsRunning()) {
        if (plays) {
            Play(Game, Random);
        } else {
            Wander(Game, Random);
        }
    }
    Game.Program().Send(SIGKILL);
    return Game.Program().WaitForExit(PatientDeadline) == Killed;
}

void Count(const PreparedHome &Home, const std::string &SaveAtStart, Tally &Sum) {
    ++Sum.Kills;
    const std::string save = Home.Read(SaveFile).value_or("");
    if (save.empty()) {
        ++Sum.Empty;
    } else if (!SaveIsWhole(save)) {
        ++Sum.Cut;
    } else if (save == SaveAtStart) {
        ++Sum.Older;
    } else {
        ++Sum.Own;
    }
    Sum.EmptyOptions += Home.Read(OptionsFile).value_or("").empty() ? 1 : 0;
}

// Kills one game after the other, each of which goes on with what the one before has left. On a slow machine,
// on which no run has lasted until its first save, it goes on with longer ones.
void KillAgainAndAgain(unsigned Seed, int Times, Tally &Sum) {
    const PreparedHome home;
    std::mt19937 random(Seed);
    std::string options;
    for (int round = 0; Sum.Kills < Times || (Sum.RunsFound == 0 && round < 5 * Times); ++round) {
        // It waits for a main menu with five or six rows.
        OpenedGame game({}, {}, &home);
        const std::optional<std::int64_t> loaded = StoredHighScore(home);
        ASSERT_TRUE(loaded) << "round " << round;
        ASSERT_GE(*loaded, Sum.HighScore) << "round " << round;
        Sum.HighScore = *loaded;
        const bool hasRun = SixRowMenu(0)(game.Person().Look());
        ASSERT_EQ(StoresRun(home), std::optional(hasRun)) << "round " << round;
        Sum.RunsFound += hasRun ? 1 : 0;
        ASSERT_EQ(game.Program().Output(), "") << "round " << round;
        // The next start shall find the same words and sizes, whatever is applied now.
        options = options.empty() ? home.Read(OptionsFile).value_or("") : options;
        const std::string save = home.Read(SaveFile).value_or("");
        if (UseAndKill(game, random, 2500 * (1 + round / Times))) {
            Count(home, save, Sum);
        }
        // Nothing is left of it then, and the next start begins with none.
        Sum.HighScore = home.Read(SaveFile).value_or("").empty() ? 0 : Sum.HighScore;
        home.Put(OptionsFile, options);
    }
}

int WantedKills() {
    const char *wanted = std::getenv("KILLS");
    return wanted == nullptr ? 8 : std::atoi(wanted);
}

// Few are done one after the other, many two at a time on each core: most of the time they wait.
std::vector<Tally> KillSideBySide(int Kills) {
    const auto cores = static_cast<int>(std::thread::hardware_concurrency());
    const int rows = std::clamp(Kills / 8, 1, std::max(2 * cores, 1));
    std::vector<Tally> tallies(static_cast<std::size_t>(rows));
    std::vector<std::future<void>> ends;
    for (int row = 0; row < rows; ++row) {
        const int times = Kills / rows + (row < Kills % rows ? 1 : 0);
        ends.push_back(
            std::async(std::launch::async, [&tally = tallies[static_cast<std::size_t>(row)], row, times] {
                KillAgainAndAgain(20260211U + static_cast<unsigned>(row), times, tally);
            }));
    }
    for (std::future<void> &end : ends) {
        end.get();
    }
    return tallies;
}

Tally SumOf(const std::vector<Tally> &Tallies) {
    Tally sum;
    for (const Tally &tally : Tallies) {
        sum.Kills += tally.Kills;
        sum.Own += tally.Own;
        sum.Older += tally.Older;
        sum.Empty += tally.Empty;
        sum.Cut += tally.Cut;
        sum.EmptyOptions += tally.EmptyOptions;
        sum.RunsFound += tally.RunsFound;
        sum.HighScore = std::max(sum.HighScore, tally.HighScore);
    }
    return sum;
}

} // namespace

TEST(Kills, ASaveIsTakenForWholeOnlyIfItIs) {
    const std::string save = MadeSave({.HighScore = 7000});
    EXPECT_TRUE(SaveIsWhole(save));
    for (std::size_t length = 0; length < save.size(); ++length) {
        EXPECT_FALSE(SaveIsWhole(save.substr(0, length))) << length;
    }
    EXPECT_FALSE(SaveIsWhole(save + save));
}

// KILLS sets how many. SDL empties the file before it writes it: a kill in that quarter of a millisecond
// costs the high score, once in thousands of kills. More than one in 200 would be another matter.
TEST(Kills, AtAnyMomentTheNextStartLoadsAndTheHighScoreNeverFalls) {
    const int wanted = WantedKills();
    const Tally sum = SumOf(KillSideBySide(wanted));
    std::cout << sum.Kills << " kills left " << sum.Own << " saves of their own session, " << sum.Older
              << " of an older one, " << sum.Empty << " empty and " << sum.Cut << " cut ones, and "
              << sum.EmptyOptions << " empty options. The highest score is " << sum.HighScore << ".\n";
    EXPECT_GE(sum.Kills, wanted);
    EXPECT_LE(sum.Empty + sum.Cut + sum.EmptyOptions, wanted / 200);
    EXPECT_GT(sum.RunsFound, 0) << "no run was ever saved";
}
