#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

// The Graphics page edits the live options, so that the lists of resolutions and rates can follow them, and
// keeps a snapshot of what was last applied. The window changes with APPLY alone, which sets OptionsDirty if
// anything was changed. Without a window (null) the lists are those of the first display.

/// Takes the snapshot, so that the page is in edit, and rebuilds the lists.
void BeginGraphicsEdit(GameState &State, SDL_Window *Window);

/// Whether the page is in edit and an option differs from the snapshot.
bool GraphicsEditDirty(const GameState &State);

/// Brings the options back to the snapshot, if there is one, and rebuilds the lists.
void RevertGraphicsEdit(GameState &State, SDL_Window *Window);

/// Changes the option of the selected row, if it has one: to the value before (Direction -1) or behind (1),
/// round the ends.
void AdjustGraphicsRow(GameState &State, SDL_Window *Window, std::int32_t Direction);

/// Acts on a key on the page, beginning its edit if need be.
void HandleGraphicsPageKey(
    GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode);
