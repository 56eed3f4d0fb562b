#pragma once

struct GameState;

/// Uses a first aid kit, which restores hit points up to MaxHp. Without a kit, at full health, while dying
/// and off ScreenPlaying nothing happens and nothing sounds. Called on a press, not in the step.
void UseFirstAid(GameState &State);
