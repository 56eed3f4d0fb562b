#pragma once

struct Program;

/// Brings up SDL, the window, the renderer, the sprites, the devices and the audio. False after one log line
/// if one of SDL, the window, the renderer and the sprites cannot be had; then all is taken down again. Every
/// other failure but that of a device is logged, and the game goes on without.
bool StartUp(Program &Program);
