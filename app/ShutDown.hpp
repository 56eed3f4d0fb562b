#pragma once

struct Program;

/// Writes the options and the save state if that is due, closes the devices, fades the music out, which it
/// waits for, and takes the rest down.
/// NOT-BUGS: The last moments of a run can be missing after a quit
void ShutDown(Program &Game);

/// Destroys the renderer and the window, each if it is there, and quits SDL: the end of ShutDown, and of a
/// start that fails once SDL is up.
void TakeDown(Program &Game);
