#include "tests/e2e/OpenedGame.hpp"

#include <csignal>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

bool FirstMenuRow(const Screenshot &Seen) {
    return FiveRowMenu(0)(Seen) || SixRowMenu(0)(Seen);
}

} // namespace

OpenedGame::OpenedGame(ScreenSize Screen, const Environment &Settings, const PreparedHome *Prepared)
    : Session(GameProgram(), Screen, Settings, Prepared) {
    WaitForMenu(Prepared == nullptr ? FiveRowMenu(0) : Sight(FirstMenuRow));
}

OpenedGame::OpenedGame(const PreparedHome &Prepared, const Sight &Shows, ScreenSize Screen, Desk Kind,
    const Environment &Settings)
    : Session(GameProgram(), Screen, Settings, &Prepared, Kind) {
    WaitForMenu(Shows);
}

void OpenedGame::WaitForMenu(const Sight &Shows) {
    const std::optional<DesktopWindow> window = Session.WaitForWindow();
    if (!window) {
        throw std::runtime_error("The game showed no window. It says:\n" + Program().Output());
    }
    if (!WaitForPicture(Shows)) {
        throw std::runtime_error("The main menu does not come. The game says:\n" + Program().Output());
    }
    // Looked for anew: it may have another size by now, or be another window.
    Opened = Session.Person().FindWindow(window->Title).value_or(*window);
    if (!Person().GiveFocus(Opened)) {
        throw std::runtime_error("The game's window does not take the keyboard.");
    }
}

const DesktopWindow &OpenedGame::Window() const {
    return Opened;
}

XClient &OpenedGame::Person() {
    return Session.Person();
}

ChildProcess &OpenedGame::Program() {
    return Session.Program();
}

std::optional<int> OpenedGame::Close() {
    return Session.Close();
}

std::optional<Screenshot> OpenedGame::WaitForPicture(
    const Sight &Shows, std::chrono::milliseconds Deadline, std::chrono::milliseconds Rest) {
    return Session.WaitForPicture(Shows, Deadline, Rest);
}

std::optional<Screenshot> OpenedGame::Tap(Key Tapped, const Sight &Shows) {
    return Session.Tap(Tapped, Shows);
}

// All of it waits in the stopped game's connection and is read at once when the game goes on.
void OpenedGame::TapInOneFrame(const std::vector<Key> &Tapped) {
    constexpr std::chrono::milliseconds held{1};
    constexpr std::chrono::milliseconds arrival{200};
    Program().Send(SIGSTOP);
    for (const Key key : Tapped) {
        Person().TapKey(key, held);
    }
    std::this_thread::sleep_for(arrival);
    Program().Send(SIGCONT);
}

// The press waits in the game's queue of events until a frame takes it, so it is not lost however short it
// is.
testing::AssertionResult OpenedGame::Ignores(Key Tapped, const Sight &Shows) {
    Person().TapKey(Tapped, std::chrono::milliseconds{50});
    return KeepsFor(std::chrono::milliseconds{500}, Shows);
}

testing::AssertionResult OpenedGame::KeepsFor(std::chrono::milliseconds Time, const Sight &Shows) {
    const bool changed = WaitForPicture(
        [&Shows](const Screenshot &Seen) {
            return !Shows(Seen);
        },
        Time)
                             .has_value();
    if (!Program().IsRunning()) {
        return testing::AssertionFailure() << "the game has ended";
    }
    return changed ? testing::AssertionFailure() << "the screen has changed" : testing::AssertionSuccess();
}

Sight FiveRowMenu(int Selected) {
    return MenuIs(SeenScreen::MainMenu, 5, Selected);
}

Sight SixRowMenu(int Selected) {
    return MenuIs(SeenScreen::MainMenu, 6, Selected);
}

Sight PauseMenu(int Selected) {
    return MenuIs(SeenScreen::Paused, 4, Selected);
}

Sight OptionsMenu(int Selected) {
    return MenuIs(SeenScreen::Options, 4, Selected);
}
