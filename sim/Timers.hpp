#pragma once

struct GameState;

/// Lowers a timer by dt seconds, to exactly 0 and never below.
void CountDown(float &Timer, float dt);

/// Counts down the player's timers, the power-ups, the READY banner and a running bomb's flash.
void RunTimers(GameState &State, float dt);
