#pragma once

struct Program;

/// Starts the program; Game is new, or one for which this was false. One that was shut down starts, too, but
/// without the rise of the first menu music. True if it runs. What can fail:
/// - SDL, the window, the renderer, the sprites: one log line, all is taken down again, the result is false;
/// - the icon, the first options file, the audio: a log line, and the game goes on without;
/// - a file that is missing or cannot be read, a device that cannot be opened: the game goes on without.
/// Throws what ReadIniFile throws; nothing is taken down then.
bool StartUp(Program &Game);
