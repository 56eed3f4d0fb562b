#include "app/OptionsKeys.hpp"

#include "input/Capture.hpp"
#include "options/AudioPage.hpp"
#include "options/ControlsPage.hpp"
#include "options/GraphicsPage.hpp"
#include "state/GameState.hpp"
#include "state/MenuKeys.hpp"
#include "state/MenuRows.hpp"

namespace {

/// NOT-BUGS: Keys that change nothing on an options page sound all the same
void PushPageSound(GameState &State, std::int32_t Scancode) {
    if (IsKeyUp(Scancode) || IsKeyDown(Scancode) || IsKeyLeft(Scancode) || IsKeyRight(Scancode)) {
        PushSound(State, SfxId::UiMove);
    } else if (IsKeyActivate(Scancode)) {
        PushSound(State, SfxId::UiConfirm);
    } else if (IsKeyEscape(Scancode)) {
        PushSound(State, SfxId::UiBack);
    }
}

void Activate(GameState &State, SDL_Window *Window, OptionsMainRow Row) {
    switch (Row) {
    case OptionsMainRow::Controls:
        State.OptionsPage = OptionsPageControls;
        BeginControlsEdit(State);
        break;
    case OptionsMainRow::Graphics:
        State.OptionsPage = OptionsPageGraphics;
        BeginGraphicsEdit(State, Window);
        break;
    case OptionsMainRow::Audio:
        State.OptionsPage = OptionsPageAudio;
        BeginAudioEdit(State);
        break;
    case OptionsMainRow::Back:
        State.Screen = State.OptionsReturnScreen;
        break;
    }
}

void HandleMainPageKey(GameState &State, SDL_Window *Window, std::int32_t Scancode) {
    if (IsKeyActivate(Scancode)) {
        Activate(State, Window, static_cast<OptionsMainRow>(State.OptionsMainSelection));
    } else if (IsKeyEscape(Scancode)) {
        Activate(State, Window, OptionsMainRow::Back);
    } else {
        MoveSelection(State.OptionsMainSelection, OptionsMainRowCount, Scancode);
    }
}

} // namespace

void EnterOptions(GameState &State, Screen ReturnScreen) {
    State.OptionsReturnScreen = ReturnScreen;
    State.Screen = ScreenOptions;
    State.OptionsPage = OptionsPageMain;
    EndCapture(State);
    State.PendingControlsValid = false;
    State.GraphicsSnapshotValid = false;
    State.PendingAudioValid = false;
}

void HandleOptionsKey(GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode) {
    PushPageSound(State, Scancode);
    switch (State.OptionsPage) {
    case OptionsPageMain:
        HandleMainPageKey(State, Window, Scancode);
        break;
    case OptionsPageControls:
        HandleControlsPageKey(State, Scancode);
        break;
    case OptionsPageGraphics:
        HandleGraphicsPageKey(State, Window, Renderer, Scancode);
        break;
    case OptionsPageAudio:
        HandleAudioPageKey(State, Scancode);
        break;
    }
}
