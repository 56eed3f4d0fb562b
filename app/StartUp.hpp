#pragma once

struct Program;

/// Starts the program in a Game that is new or did not start. What can fail:
/// - SDL, the window, the renderer, the sprites: one log line, all is taken down again, the result is false;
/// - the icon, the first options file, the audio: a log line, and the game goes on without;
/// - a file that is missing or cannot be read, a device that cannot be opened: the game goes on without.
bool StartUp(Program &Game);
