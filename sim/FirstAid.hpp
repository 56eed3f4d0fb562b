#pragma once

struct GameState;

/// Uses a first aid kit, on ScreenPlaying and not while dying. Without a kit or at full health nothing
/// happens and nothing sounds.
void UseFirstAid(GameState &State);
