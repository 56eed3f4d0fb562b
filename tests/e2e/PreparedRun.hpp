#pragma once

#include "state/GameState.hpp"
#include "tools/desktop/PreparedHome.hpp"

// Runs that lie in the save file before the game starts, so that a test begins where it has something to see.

// A run that can be continued, on a road on which nothing comes.
GameState QuietRun();

// Lets a shot fly down at the car in the middle lane, which costs it 10 hit points after a second or two.
void ShootDownwards(GameState &Run);

// Puts a light enemy, worth 200 points, into the middle lane and a shot of the car on its way to it.
void ShootEnemy(GameState &Run);

// Saves the run in a home, as the game itself would. Throws std::runtime_error if that fails.
void PutRun(const PreparedHome &Home, const GameState &Run);
