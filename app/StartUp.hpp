#pragma once

struct Program;

/// Starts the program: a new one, one for which this was false, or one that was shut down, whose menu music
/// does not fade in a second time. True if it runs. What can fail:
/// - SDL, the window, the renderer, the sprites: one log line, all is taken down again, the result is false;
/// - the icon, the first options file, the audio: a log line, and the game goes on without;
/// - a file that is missing or cannot be read, a device that cannot be opened: the game goes on without.
/// Throws what ReadIniFile throws; nothing is taken down then.
bool StartUp(Program &Game);
