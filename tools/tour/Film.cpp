// Plays the real game on a virtual display with real key presses and films it from shortly before the second
// stage on: `film <game program> <folder for the pictures>` leaves a numbered picture for each moment, in
// place of those that an earlier film left there.

#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/ScreenshotFile.hpp"
#include "tools/desktop/Sights.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Milliseconds = std::chrono::milliseconds;

constexpr Milliseconds FrameTime = 80ms; // told to img2webp as well: see the Makefile
constexpr Milliseconds FilmStart = 22s;
constexpr Milliseconds FilmEnd = 31s;

// What the driver does again and again: each key goes down at its time of the round and up after some more.
struct Move {
    Key Pressed;
    Milliseconds At;
    Milliseconds Held;
};

constexpr Milliseconds RoundTime = 4s;
constexpr std::array Round{
    Move{Key::Right, 0ms, 240ms},
    Move{Key::LeftControl, 320ms, 480ms},
    Move{Key::Left, 880ms, 400ms},
    Move{Key::LeftControl, 1280ms, 800ms},
    Move{Key::X, 2240ms, 160ms},
    Move{Key::Right, 2640ms, 240ms},
    Move{Key::LeftControl, 2960ms, 640ms},
    Move{Key::Left, 3600ms, 160ms},
};

constexpr bool FitsRound(const Move &Made) {
    return Made.At % FrameTime == Milliseconds::zero() && Made.Held % FrameTime == Milliseconds::zero() &&
           Made.At + Made.Held < RoundTime;
}
static_assert(RoundTime % FrameTime == Milliseconds::zero() && std::ranges::all_of(Round, FitsRound),
    "each key moves at the time of a picture, and is up again within the round");

// A key that is held and let go by one call would keep the pictures waiting.
void MoveKeys(XClient &Person, Milliseconds Time) {
    const Milliseconds now = Time % RoundTime;
    for (const Move &move : Round) {
        if (now == move.At) {
            Person.PressKey(move.Pressed);
        } else if (now == move.At + move.Held) {
            Person.ReleaseKey(move.Pressed);
        }
    }
}

// The picture at half its size, each pixel the mean of four.
Screenshot Halved(const Screenshot &Seen) {
    Screenshot half{Seen.Width / 2, Seen.Height / 2, {}};
    half.Pixels.reserve(Seen.Pixels.size() / 4);
    for (int y = 0; y < half.Height; ++y) {
        for (int x = 0; x < half.Width; ++x) {
            int red = 0;
            int green = 0;
            int blue = 0;
            ForEachPixel(Seen, {2 * x, 2 * y, 2 * x + 2, 2 * y + 2}, [&](int, int, const Pixel &Dot) {
                red += Dot.Red;
                green += Dot.Green;
                blue += Dot.Blue;
            });
            const auto mean = [](int Sum) {
                return static_cast<std::uint8_t>(Sum / 4);
            };
            half.Pixels.push_back(Packed({mean(red), mean(green), mean(blue)}));
        }
    }
    return half;
}

std::vector<Screenshot> Film(XClient &Person) {
    std::vector<Screenshot> pictures;
    const auto start = std::chrono::steady_clock::now();
    for (Milliseconds time{}; time < FilmEnd; time += FrameTime) {
        std::this_thread::sleep_until(start + time);
        if (time >= FilmStart) {
            pictures.push_back(Person.Look());
        }
        MoveKeys(Person, time);
    }
    return pictures;
}

bool StartRun(GameSession &Session) {
    constexpr Milliseconds held = 60ms;
    if (!Session.WaitForWindow() || !Session.WaitForPicture(ScreenIs(SeenScreen::MainMenu))) {
        return false;
    }
    Session.Person().TapKey(Key::Return, held);
    return Session.WaitForPicture(ScreenIs(SeenScreen::Playing)).has_value();
}

// Names sort as the pictures follow one another.
std::filesystem::path PictureIn(const std::filesystem::path &Folder, std::size_t Place) {
    return Folder / (std::to_string(1001 + Place) + ".png");
}

void SavePictures(const std::vector<Screenshot> &Pictures, const std::filesystem::path &Folder) {
    std::filesystem::create_directories(Folder);
    std::size_t place = 0;
    for (const Screenshot &picture : Pictures) {
        SaveScreenshot(Halved(picture), PictureIn(Folder, place++));
    }
    // The rest of a longer film.
    while (std::filesystem::remove(PictureIn(Folder, place))) {
        ++place;
    }
}

bool RunFilm(const std::filesystem::path &Program, const std::filesystem::path &Folder) {
    GameSession session(Program);
    if (!StartRun(session)) {
        std::printf("The game showed no run. It says:\n%s", session.Program().Output().c_str());
        return false;
    }
    SavePictures(Film(session.Person()), Folder);
    if (session.Close() != 0) {
        std::printf("The game did not end as it should. It says:\n%s", session.Program().Output().c_str());
        return false;
    }
    return true;
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    if (ArgumentCount != 3) {
        std::fputs("usage: film <game program> <folder for the pictures>\n", stderr);
        return 2;
    }
    try {
        return RunFilm(std::filesystem::absolute(Arguments[1]), Arguments[2]) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
