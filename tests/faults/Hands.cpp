#include "tests/faults/Hands.hpp"

#include "tests/app/PushEvents.hpp"
#include "tests/support/Keys.hpp"

#include <utility>

Hands::Hands(Launch Start) {
    Wait(2);
    if (Start == Launch::Later) {
        ReadThePages();
        DriveWithThePad();
        DriveWithTheStick();
        ChangeControls();
        ChangeGraphics();
        ChangeAudio();
        Leave();
    }
}

void Hands::PlugInPad() {
    Pad.emplace(GamepadShape);
}

void Hands::Move() {
    if (Moves.empty()) {
        ++IdleFrames;
        PushEvent(SDL_EVENT_QUIT);
        return;
    }
    const std::function<void()> move = std::move(Moves.front());
    Moves.pop_front();
    move();
}

void Hands::Do(std::function<void()> Act) {
    Moves.push_back(std::move(Act));
}

void Hands::Wait(int Frames) {
    for (int i = 0; i < Frames; ++i) {
        Do([] {});
    }
}

void Hands::Press(std::initializer_list<std::int32_t> Keys) {
    for (const std::int32_t key : Keys) {
        Do([key] {
            PushKey(static_cast<SDL_Scancode>(key));
        });
    }
}

void Hands::Repeat(std::int32_t Key, int Times) {
    for (int i = 0; i < Times; ++i) {
        Press({Key});
    }
}

/// From the first row of the main menu, CONTINUE GAME, to help and credits and back into the run.
void Hands::ReadThePages() {
    Repeat(DownKey, 3);
    Press({EnterKey, EscapeKey});
    Press({DownKey, EnterKey, EscapeKey});
    Repeat(UpKey, 4);
    Press({EnterKey});
}

/// Fires, throws a bomb and changes the lane. The life is lost on the way: see PreparedRun.
void Hands::DriveWithThePad() {
    Do([this] {
        Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, true);
    });
    Wait(6);
    Do([this] {
        Pad->SetButton(SDL_GAMEPAD_BUTTON_SOUTH, false);
        Pad->SetButton(SDL_GAMEPAD_BUTTON_WEST, true);
    });
    Do([this] {
        Pad->SetButton(SDL_GAMEPAD_BUTTON_WEST, false);
        Pad->SetAxis(SDL_GAMEPAD_AXIS_LEFTX, SDL_JOYSTICK_AXIS_MIN);
    });
    Wait(2);
    Do([this] {
        Pad.reset();
    });
}

/// Goes on, and fires, until the run has been saved, eight tenths of a second after its first frame.
void Hands::DriveWithTheStick() {
    Do([this] {
        Stick.emplace(JoystickShape);
    });
    Wait(1);
    Do([this] {
        Stick->SetButton(0, true);
        Stick->SetAxis(0, SDL_JOYSTICK_AXIS_MAX);
    });
    Wait(2);
    Do([this] {
        Stick->SetAxis(0, 0);
        Stick->SetHat(0, SDL_HAT_LEFT);
    });
    Wait(16);
    Do([this] {
        Stick->SetButton(0, false);
        Stick->SetHat(0, SDL_HAT_CENTERED);
    });
}

/// By the pause menu to the options; there looks at each device's table and binds a key.
void Hands::ChangeControls() {
    Press({EscapeKey, DownKey, EnterKey, EnterKey});
    Repeat(RightKey, 3);
    Press({DownKey, EnterKey, SDL_SCANCODE_J});
    Repeat(DownKey, 6);
    Press({EnterKey, EscapeKey});
}

/// Applies another size in fullscreen, then in a window, then another shape.
void Hands::ChangeGraphics() {
    Press({DownKey, EnterKey, RightKey});
    for (const int wayToTheMode : {DownKey, UpKey}) {
        Repeat(wayToTheMode, 3);
        Press({EnterKey});
        Repeat(DownKey, 3);
        Press({EnterKey});
    }
    Repeat(UpKey, 5);
    Press({RightKey});
    Repeat(DownKey, 5);
    Press({EnterKey, EscapeKey});
}

/// Applies a lower volume and another language.
void Hands::ChangeAudio() {
    Press({DownKey, EnterKey, LeftKey});
    Repeat(DownKey, 5);
    Press({RightKey, DownKey, DownKey, EnterKey, EscapeKey});
}

/// Back into the run, and by the pause menu and the main menu out of the program.
void Hands::Leave() {
    Press({EscapeKey, UpKey, EnterKey});
    Wait(2);
    Press({EscapeKey, UpKey, EnterKey, EscapeKey});
}
