// Plays the real game on a virtual display with real key presses, leaves a picture of each stop, and says
// whether everything came as it should: `tour <game program> <folder for the pictures>`.

#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/PictureFile.hpp"
#include "tools/desktop/RoadSight.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

namespace {

using Expectation = bool (*)(const Picture &);

constexpr std::size_t MostKeys = 2;

// One stop of the tour: the keys that are held (Nothing ends the list) until the screen shows what is
// expected, the picture's name, and the words that are printed for it.
struct Stop {
    const char *Name;
    std::array<Key, MostKeys> Held;
    Expectation Shows;
    const char *Words;
};

constexpr Key Nothing{};

template <int Lane> bool CarIsInLane(const Picture &Seen) {
    return FindCarLane(Seen) == Lane;
}

bool ShotsFly(const Picture &Seen) {
    return FindShots(Seen).size() >= 3;
}

bool IsHurt(const Picture &Seen) {
    return HealthShown(Seen) < 110;
}

bool RoadIsQuiet(const Picture &Seen) {
    return FindCar(Seen) && FindShots(Seen).empty() && !SeesBlast(Seen);
}

constexpr std::array Stops{
    Stop{"start", {Nothing}, CarIsInLane<4>, "The run begins: the car on the middle of its nine lanes."},
    Stop{"traffic", {Nothing}, SeesEnemy, "An enemy car comes down the road."},
    Stop{"left-edge", {Key::Left}, CarIsInLane<0>, "Left is held: the car has jumped to the leftmost lane."},
    Stop{"right-edge", {Key::Right}, CarIsInLane<8>, "Right is held: the car has crossed the whole road."},
    Stop{"fire", {Key::LeftControl}, ShotsFly, "Left Ctrl is held: shots fly up the road."},
    Stop{"bomb", {Key::X}, SeesBlast, "X throws a bomb: its blast spreads around the car."},
    Stop{"drive-and-fire", {Key::Left, Key::LeftControl},
        [](const Picture &Seen) {
            return CarIsInLane<0>(Seen) && ShotsFly(Seen);
        },
        "Left and left Ctrl together: the car weaves to the left edge and shoots on its way."},
    Stop{"road-ahead", {Nothing}, RoadIsQuiet, "All keys are up: the road scrolls on."},
    Stop{"hurt", {Nothing}, IsHurt, "Shots and cars that are not dodged cost health: the bar has gone down."},
};

void MoveKeys(XClient &Person, const Stop &Here, void (XClient::*Move)(Key)) {
    for (const Key held : Here.Held) {
        if (held != Nothing) {
            (Person.*Move)(held);
        }
    }
}

// Plays one stop and saves what was on the screen when it came out, or when time ran out.
bool Play(GameSession &Session, const Stop &Here, std::size_t Number, const std::filesystem::path &Folder) {
    XClient &person = Session.Person();
    Picture seen;
    MoveKeys(person, Here, &XClient::PressKey);
    const bool cameOut = WaitUntil([&] {
        seen = person.Screenshot();
        return Here.Shows(seen) || !Session.Program().IsRunning();
    }) && Here.Shows(seen);
    MoveKeys(person, Here, &XClient::ReleaseKey);

    const std::string file = (Number < 10 ? "0" : "") + std::to_string(Number) + "-" + Here.Name + ".png";
    SavePicture(seen, Folder / file);
    std::printf("%s  %s%s\n", file.c_str(), cameOut ? "" : "NOT SEEN: ", Here.Words);
    return cameOut;
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

bool EndGame(GameSession &Session) {
    const std::optional<int> result = Session.Close();
    if (!result) {
        std::puts("The game did not end when its window was asked to close.");
        return false;
    }
    if (*result != 0) {
        std::printf("The game ended with result %d.\n", *result);
    }
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
    const bool ended = EndGame(session);
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
