#include "app/KeyHandler.hpp"

#include "app/MainMenuKeys.hpp"
#include "app/OptionsKeys.hpp"
#include "app/PauseMenuKeys.hpp"
#include "sim/FirstAid.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"

namespace {

/// Only two keys mean something in play; what is held is polled. Escape comes first, so an Escape that is
/// bound to healing pauses and does not heal.
void HandlePlayingKey(GameState &State, std::int32_t Scancode) {
    // NOT-BUGS: A dying car can be neither paused nor healed
    if (State.PlayerDying) {
        return;
    }
    if (IsKeyEscape(Scancode)) {
        PushSound(State, SfxId::UiBack);
        State.Screen = ScreenPaused;
        State.PauseSelection = 0;
    } else if (Scancode == BindingOf(State.KeyboardBindings, KeyboardAction::Heal)) {
        UseFirstAid(State);
    }
}

/// On a page of text Return and Escape both go back, with the sound of going back.
/// NOT-BUGS: The space bar does not leave help and credits
void HandleTextPageKey(GameState &State, std::int32_t Scancode, Screen ReturnScreen) {
    if (IsKeyEnter(Scancode) || IsKeyEscape(Scancode)) {
        PushSound(State, SfxId::UiBack);
        State.Screen = ReturnScreen;
    }
}

void HandleGameOverKey(GameState &State, std::int32_t Scancode) {
    if (!IsKeyActivate(Scancode) && !IsKeyEscape(Scancode)) {
        return;
    }
    PushSound(State, IsKeyActivate(Scancode) ? SfxId::UiConfirm : SfxId::UiBack);
    State.Screen = ScreenMainMenu;
    State.MainMenuSelection = 0;
}

} // namespace

void DispatchKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode) {
    if (IsScancode(Scancode)) {
        HandleKey(State, Window, Renderer, Scancode);
    }
}

void HandleKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode) {
    switch (State.Screen) {
    case ScreenMainMenu:
        HandleMainMenuKey(State, Scancode);
        break;
    case ScreenOptions:
        HandleOptionsKey(State, Window, Renderer, Scancode);
        break;
    case ScreenHelp:
        HandleTextPageKey(State, Scancode, State.HelpReturnScreen);
        break;
    case ScreenPlaying:
        HandlePlayingKey(State, Scancode);
        break;
    case ScreenPaused:
        HandlePauseMenuKey(State, Scancode);
        break;
    case ScreenCredits:
        HandleTextPageKey(State, Scancode, ScreenMainMenu);
        break;
    case ScreenGameOver:
        HandleGameOverKey(State, Scancode);
        break;
    }
}
