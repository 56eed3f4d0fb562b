#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

// The Graphics page edits the live options, so that the lists of resolutions and rates can follow them, and
// keeps a snapshot of what was last applied. The window changes only with APPLY.

/// Takes the snapshot and rebuilds the lists.
void BeginGraphicsEdit(GameState &State, SDL_Window *Window);

/// Whether the page is in edit and an option differs from the snapshot.
bool GraphicsEditDirty(const GameState &State);

/// Brings the options back to the snapshot, if there is one.
void RevertGraphicsEdit(GameState &State, SDL_Window *Window);

/// Changes the option of the selected row. Direction is -1 or 1.
void AdjustGraphicsRow(GameState &State, SDL_Window *Window, std::int32_t Direction);

/// Acts on a key on the page.
void HandleGraphicsPageKey(
    GameState &State, SDL_Window *Window, SDL_Renderer *Renderer, std::int32_t Scancode);
