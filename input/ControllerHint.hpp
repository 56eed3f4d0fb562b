#pragma once

#include <string>
#include <string_view>

struct GameState;
struct InputDevices;

/// The second hint line of a menu, as in "PAD A SELECT B BACK": which buttons of the open devices confirm and
/// go back, by the applied bindings. Empty without an open device. An empty label becomes "SELECT" or "BACK",
/// and equal labels are said once, as in "PAD A OR B MAIN MENU". The labels are copied.
std::string ControllerHint(const GameState &State, const InputDevices &Devices, std::string_view ConfirmLabel,
    std::string_view BackLabel);
