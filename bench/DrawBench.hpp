#pragma once

/// Announces the drawing of each picture to the benchmarks, by SDL's own renderer and by OpenGL: "Draw/" and
/// the picture and the renderer is the game's drawing, "PlayBack/" the calls that the game is told to make,
/// bare.
void RegisterDrawBenches();
