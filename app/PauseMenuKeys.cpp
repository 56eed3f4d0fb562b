#include "app/PauseMenuKeys.hpp"

#include "app/OptionsKeys.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"

namespace {

void Activate(GameState &State, PauseRow Row) {
    switch (Row) {
    case PauseRow::Resume:
        State.Screen = ScreenPlaying;
        break;
    case PauseRow::Options:
        EnterOptions(State, ScreenPaused);
        break;
    case PauseRow::Help:
        State.HelpReturnScreen = ScreenPaused;
        State.Screen = ScreenHelp;
        break;
    case PauseRow::MainMenu:
        // The run stays, and the first row of the main menu, which continues it, is selected.
        State.Screen = ScreenMainMenu;
        State.MainMenuSelection = 0;
        break;
    }
}

} // namespace

void HandlePauseMenuKey(GameState &State, std::int32_t Scancode) {
    if (MoveSelection(State.PauseSelection, PauseRowCount, Scancode)) {
        PushSound(State, SfxId::UiMove);
    } else if (IsKeyActivate(Scancode)) {
        PushSound(State, SfxId::UiConfirm);
        Activate(State, static_cast<PauseRow>(State.PauseSelection));
    } else if (IsKeyEscape(Scancode)) {
        PushSound(State, SfxId::UiBack);
        State.Screen = ScreenPlaying;
    }
}
