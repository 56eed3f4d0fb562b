#include "tests/e2e/PlayedGame.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <stdexcept>
#include <string>

namespace {

// With AddressSanitizer the game draws by SDL's own renderer: a system's OpenGL driver may keep a little
// memory when it is unloaded, which would count as the game's leak.
Environment Adapted(Environment Settings) {
    if (GAME_IS_SANITIZED != 0) {
        Settings["SDL_RENDER_DRIVER"] = "software";
        Settings["SDL_FRAMEBUFFER_ACCELERATION"] = "0";
    }
    return Settings;
}

} // namespace

const char *GameProgram() {
    return GAME_PROGRAM;
}

std::function<bool(const Picture &)> CarInLane(int Lane) {
    return [Lane](const Picture &Seen) {
        return FindCarLane(Seen) == Lane;
    };
}

PlayedGame::PlayedGame(ScreenSize Screen, const Environment &Settings)
    : Session(GameProgram(), Screen, Adapted(Settings)) {
    const std::optional<DesktopWindow> window = Session.WaitForWindow();
    if (!window) {
        throw std::runtime_error("The game showed no window. It says:\n" + Program().Output());
    }
    if (!WaitForPicture(CarInLane(LaneCount / 2))) {
        throw std::runtime_error("No car stands in the middle lane. The game says:\n" + Program().Output());
    }
    // Read anew: the first frame may have given the window another size.
    Opened = Session.Person().FindWindow(window->Title).value_or(*window);
}

const DesktopWindow &PlayedGame::Window() const {
    return Opened;
}

XClient &PlayedGame::Person() {
    return Session.Person();
}

ChildProcess &PlayedGame::Program() {
    return Session.Program();
}

std::optional<int> PlayedGame::Close() {
    return Session.Close();
}

std::optional<Picture> PlayedGame::WaitForPicture(
    const std::function<bool(const Picture &)> &Shows, std::chrono::milliseconds Deadline) {
    Picture seen;
    bool shown = false;
    WaitUntil(
        [&] {
            seen = Person().Screenshot();
            shown = Shows(seen);
            return shown || !Program().IsRunning();
        },
        Deadline);
    return shown ? std::optional(seen) : std::nullopt;
}

testing::AssertionResult PlayedGame::StaysFor(int Frames, const std::function<bool(const Picture &)> &Shows) {
    std::optional<int> lastPhase;
    int frames = 0;
    while (frames < Frames) {
        const std::optional<Picture> next = WaitForPicture([&](const Picture &Seen) {
            const std::optional<int> phase = FindDashPhase(Seen);
            return FindCar(Seen) && (!Shows(Seen) || (phase && phase != lastPhase));
        });
        if (!next) {
            return testing::AssertionFailure() << "the road stood still after frame " << frames;
        }
        if (!Shows(*next)) {
            return testing::AssertionFailure() << "no longer so at frame " << frames;
        }
        lastPhase = FindDashPhase(*next);
        ++frames;
    }
    return testing::AssertionSuccess();
}
