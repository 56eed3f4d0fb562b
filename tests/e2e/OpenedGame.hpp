#pragma once

#include "tests/e2e/GameProgram.hpp"
#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/Sights.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <chrono>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

// The real program in a real window, on its main menu as a person finds it the first time: without a run,
// unless a prepared home holds one.
class OpenedGame {
public:
    // Starts the program and waits for the main menu. Throws std::runtime_error, with what the program wrote,
    // if that does not come.
    explicit OpenedGame(
        ScreenSize Screen = {}, const Environment &Settings = {}, const PreparedHome *Prepared = nullptr);
    // The same with a main menu that looks otherwise: the first picture is one that satisfies Shows.
    OpenedGame(const PreparedHome &Prepared, const Sight &Shows, ScreenSize Screen = {},
        Desk Kind = Desk::Bare, const Environment &Settings = {});

    const DesktopWindow &Window() const;
    XClient &Person();
    ChildProcess &Program();
    // Asks the window to close and gives the program's result; nothing if it does not end.
    std::optional<int> Close();

    // As GameSession has them.
    std::optional<Screenshot> WaitForPicture(const Sight &Shows,
        std::chrono::milliseconds Deadline = PatientDeadline, std::chrono::milliseconds Rest = ShortRest);
    std::optional<Screenshot> Tap(Key Tapped, const Sight &Shows);
    // Taps the keys so fast that one frame of the game takes them all.
    void TapInOneFrame(const std::vector<Key> &Tapped);

    // Taps a key that should do nothing: whether all pictures of the next half second satisfy Shows still.
    testing::AssertionResult Ignores(Key Tapped, const Sight &Shows);
    // Whether all pictures of that time satisfy Shows.
    testing::AssertionResult KeepsFor(std::chrono::milliseconds Time, const Sight &Shows);

private:
    void WaitForMenu(const Sight &Shows);

    GameSession Session;
    DesktopWindow Opened;
};

// The main menu has five rows without a run and six with one; the selected row is counted from 0.
Sight FiveRowMenu(int Selected);
Sight SixRowMenu(int Selected);
Sight PauseMenu(int Selected);
Sight OptionsMenu(int Selected);
