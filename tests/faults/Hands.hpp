#pragma once

#include "tests/support/VirtualDevice.hpp"

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>

/// What stands in the user's folder when the program starts: nothing, or options and a run in progress.
enum class Launch { First, Later };

/// Who plays a session: keys and devices, one move for each frame, by heart, whatever is on the screen.
class Hands {
public:
    explicit Hands(Launch Start);

    /// Plugs a gamepad in. SDL's joysticks are up.
    void PlugInPad();

    /// Makes the move of the next frame; when all are made, asks the program to quit.
    void Move();

    /// How many frames there were since the last move.
    int IdleFrames = 0;

private:
    void Do(std::function<void()> Act);
    void Wait(int Frames);
    void Press(std::initializer_list<std::int32_t> Keys);
    void Repeat(std::int32_t Key, int Times);

    void ReadThePages();
    void DriveWithThePad();
    void DriveWithTheStick();
    void ChangeControls();
    void ChangeGraphics();
    void ChangeAudio();
    void Leave();

    std::deque<std::function<void()>> Moves;
    std::optional<VirtualDevice> Pad;
    std::optional<VirtualDevice> Stick;
};
