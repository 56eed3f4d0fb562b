#include "app/MainMenuKeys.hpp"

#include "app/OptionsKeys.hpp"
#include "sim/NewRun.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"

namespace {

void Activate(GameState &State, MainMenuRow Row) {
    switch (Row) {
    case MainMenuRow::ContinueGame:
        State.Screen = ScreenPlaying;
        State.PauseSelection = 0;
        break;
    case MainMenuRow::NewGame:
        // NOT-BUGS: NEW GAME makes no sound
        StartNewRun(State);
        break;
    case MainMenuRow::Options:
        EnterOptions(State, ScreenMainMenu);
        break;
    case MainMenuRow::Help:
        State.HelpReturnScreen = ScreenMainMenu;
        State.Screen = ScreenHelp;
        break;
    case MainMenuRow::Credits:
        State.CreditsScroll = 0.0F;
        State.Screen = ScreenCredits;
        break;
    case MainMenuRow::Quit:
        State.Running = false;
        break;
    }
}

} // namespace

void HandleMainMenuKey(GameState &State, std::int32_t Scancode) {
    const std::uint32_t count = MainMenuRowCount(State.HasRunState);
    // NOT-BUGS: The selected row stays a number
    if (State.MainMenuSelection >= count) {
        State.MainMenuSelection = 0;
    }
    if (MoveSelection(State.MainMenuSelection, count, Scancode)) {
        PushSound(State, SfxId::UiMove);
    } else if (IsKeyActivate(Scancode)) {
        PushSound(State, SfxId::UiConfirm);
        Activate(State, MainMenuRowAt(State.MainMenuSelection, State.HasRunState));
    } else if (IsKeyEscape(Scancode)) {
        PushSound(State, SfxId::UiBack);
        State.Running = false;
    }
}
