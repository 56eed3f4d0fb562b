// Plays the real game on a virtual display with real key presses, leaves a picture of each stop, and says
// whether everything came as it should: `tour <game program> <folder for the pictures>`.

#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/MenuSight.hpp"
#include "tools/desktop/RoadSight.hpp"
#include "tools/desktop/ScreenshotFile.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>

namespace {

using Expectation = bool (*)(const Screenshot &);

constexpr std::size_t MostKeys = 4;

enum class Manner {
    Hold, // all keys together, until the screen shows what is expected
    Tap,  // one key after the other, each only for a moment
};

// One stop of the tour: the keys (Nothing ends the list) and how they are pressed, what the screen then comes
// to show, the picture's name, and the words that are printed for it.
struct Stop {
    const char *Name;
    Manner Pressed;
    std::array<Key, MostKeys> Keys;
    Expectation Shows;
    const char *Words;
};

constexpr Key Nothing{};

template <int Rows, int Selected> bool IsMainMenu(const Screenshot &Seen) {
    return FindMenu(Seen) == SeenMenu{SeenScreen::MainMenu, Rows, Selected};
}

template <int Selected> bool IsPauseMenu(const Screenshot &Seen) {
    return FindMenu(Seen) == SeenMenu{SeenScreen::Paused, 4, Selected};
}

bool IsOptionsMenu(const Screenshot &Seen) {
    return FindMenu(Seen) == SeenMenu{SeenScreen::Options, 4, 0};
}

bool IsHelp(const Screenshot &Seen) {
    return FindScreen(Seen) == SeenScreen::Help;
}

bool CreditsHaveRisen(const Screenshot &Seen) {
    const std::optional<Area> text = FindCreditsText(Seen);
    return text && text->Top < Seen.Height / 2;
}

template <int Lane> bool CarIsInLane(const Screenshot &Seen) {
    return FindScreen(Seen) == SeenScreen::Playing && FindCarLane(Seen) == Lane;
}

bool ShotsFly(const Screenshot &Seen) {
    return FindShots(Seen).size() >= 3;
}

bool IsHurt(const Screenshot &Seen) {
    return HealthShown(Seen) < 110;
}

bool RoadIsQuiet(const Screenshot &Seen) {
    return FindCar(Seen) && FindShots(Seen).empty() && !SeesBlast(Seen);
}

constexpr std::array Stops{
    Stop{"main-menu", Manner::Tap, {Nothing}, IsMainMenu<5, 0>, "The game opens on its main menu."},
    Stop{"help", Manner::Tap, {Key::Down, Key::Down, Key::Return}, IsHelp,
        "Two rows down, Return: the help page."},
    Stop{"help-left", Manner::Tap, {Key::Escape}, IsMainMenu<5, 2>,
        "Escape leads back to the row it came from."},
    Stop{"credits", Manner::Tap, {Key::Down, Key::Return}, CreditsHaveRisen, "The credits roll."},
    Stop{
        "credits-left", Manner::Tap, {Key::Return}, IsMainMenu<5, 3>, "Return leaves them before their end."},
    Stop{"options", Manner::Tap, {Key::Up, Key::Up, Key::Space}, IsOptionsMenu,
        "The space bar opens a row as well: the options."},
    Stop{"options-left", Manner::Tap, {Key::Up, Key::Return}, IsMainMenu<5, 1>,
        "Up from the first row goes round to BACK."},
    Stop{"new-game", Manner::Tap, {Key::Up, Key::Return}, CarIsInLane<4>,
        "NEW GAME: the car stands on the middle of its nine lanes."},
    Stop{"traffic", Manner::Hold, {Nothing}, SeesEnemy, "An enemy car comes down the road."},
    Stop{"left-edge", Manner::Hold, {Key::Left}, CarIsInLane<0>,
        "Left is held: the car has jumped to the leftmost lane."},
    Stop{"right-edge", Manner::Hold, {Key::Right}, CarIsInLane<8>,
        "Right is held: the car has crossed the whole road."},
    Stop{"fire", Manner::Hold, {Key::LeftControl}, ShotsFly, "Left Ctrl is held: shots fly up the road."},
    Stop{"bomb", Manner::Hold, {Key::X}, SeesBlast, "X throws a bomb: its blast spreads around the car."},
    Stop{"drive-and-fire", Manner::Hold, {Key::Left, Key::LeftControl},
        [](const Screenshot &Seen) {
            return CarIsInLane<0>(Seen) && ShotsFly(Seen);
        },
        "Left and left Ctrl together: the car weaves to the left edge and shoots on its way."},
    Stop{"road-ahead", Manner::Hold, {Nothing}, RoadIsQuiet, "All keys are up: the road scrolls on."},
    Stop{"pause", Manner::Tap, {Key::Escape}, IsPauseMenu<0>,
        "Escape pauses: the road stands still under the menu."},
    Stop{"continue", Manner::Tap, {Key::Up, Key::Return}, IsMainMenu<6, 0>,
        "MAIN MENU keeps the run: CONTINUE GAME is the first row now."},
    Stop{"continued", Manner::Tap, {Key::Return}, CarIsInLane<0>, "The run goes on where it stood."},
    Stop{"hurt", Manner::Hold, {Nothing}, IsHurt,
        "Shots and cars that are not dodged cost health: the bar has gone down."},
    Stop{"quit", Manner::Tap, {Key::Escape, Key::Up, Key::Return, Key::Up}, IsMainMenu<6, 5>,
        "Pause, main menu, and up once more: QUIT."},
};

constexpr std::chrono::milliseconds TapTime{60};

// How long a stop may take to show what is expected: some of it, such as the credits, takes its time on a
// busy machine.
constexpr std::chrono::minutes StopDeadline{3};

void MoveKeys(XClient &Person, const Stop &Here, void (XClient::*Move)(Key)) {
    for (const Key key : Here.Keys) {
        if (key != Nothing) {
            (Person.*Move)(key);
        }
    }
}

void TapKeys(XClient &Person, const Stop &Here) {
    for (const Key key : Here.Keys) {
        if (key != Nothing) {
            Person.TapKey(key, TapTime);
        }
    }
}

std::optional<Screenshot> PressKeys(GameSession &Session, const Stop &Here) {
    if (Here.Pressed == Manner::Tap) {
        TapKeys(Session.Person(), Here);
        return Session.WaitForPicture(Here.Shows, StopDeadline);
    }
    MoveKeys(Session.Person(), Here, &XClient::PressKey);
    std::optional<Screenshot> seen = Session.WaitForPicture(Here.Shows, StopDeadline);
    MoveKeys(Session.Person(), Here, &XClient::ReleaseKey);
    return seen;
}

// Plays one stop and saves what was on the screen when it came out, or when time ran out.
bool Play(GameSession &Session, const Stop &Here, std::size_t Number, const std::filesystem::path &Folder) {
    const std::optional<Screenshot> seen = PressKeys(Session, Here);
    const std::string file = (Number < 10 ? "0" : "") + std::to_string(Number) + "-" + Here.Name + ".png";
    SaveScreenshot(seen ? *seen : Session.Person().Look(), Folder / file);
    std::printf("%s  %s%s\n", file.c_str(), seen ? "" : "NOT SEEN: ", Here.Words);
    return seen.has_value();
}

bool PlayAll(GameSession &Session, const std::filesystem::path &Folder) {
    std::size_t number = 0;
    for (const Stop &stop : Stops) {
        if (!Play(Session, stop, ++number, Folder)) {
            return false;
        }
    }
    return true;
}

// Leaves the game by the row that the last stop selected, or by its window if the tour did not get there.
bool EndGame(GameSession &Session, bool Played) {
    if (Played) {
        Session.Person().TapKey(Key::Return, TapTime);
    }
    const std::optional<int> result =
        Played ? Session.Program().WaitForExit(PatientDeadline) : Session.Close();
    if (!result) {
        std::puts("The game did not end when it was asked to.");
        return false;
    }
    std::printf("The game has ended with result %d.\n", *result);
    return *result == 0;
}

bool RunTour(const std::filesystem::path &Program, const std::filesystem::path &Folder) {
    std::filesystem::create_directories(Folder);
    GameSession session(Program);
    const std::optional<DesktopWindow> window = session.WaitForWindow();
    if (!window) {
        std::printf("The game showed no window. It says:\n%s", session.Program().Output().c_str());
        return false;
    }
    const bool played = PlayAll(session, Folder);
    const bool ended = EndGame(session, played);
    if (!played || !ended) {
        std::printf("The game says:\n%s", session.Program().Output().c_str());
    }
    return played && ended;
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    if (ArgumentCount != 3) {
        std::fputs("usage: tour <game program> <folder for the pictures>\n", stderr);
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    try {
        return RunTour(std::filesystem::absolute(Arguments[1]), Arguments[2]) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
