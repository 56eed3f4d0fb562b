#pragma once

#include "tools/desktop/Screenshot.hpp"

#include <optional>
#include <vector>

// What a person sees of a run in a picture of the game's screen, told by the colours that nothing else there
// has. All of it holds for screens 720 pixels high, where a logical pixel is a pixel of the screen.

inline constexpr int RoadLanes = 9;

// The road's outer edges, Right the first column outside, found by the two edge lines that run down the whole
// screen; nothing where these are not seen.
struct RoadPlace {
    int Left = 0;
    int Right = 0;

    bool operator==(const RoadPlace &) const = default;
};
std::optional<RoadPlace> FindRoad(const Screenshot &Seen);

// The bounds of the body of the player's car, in its plain colours, at the place where it drives.
std::optional<Area> FindCar(const Screenshot &Seen);

// The lane, 0 to 8 from the left, on whose centre the car stands. Nothing if there is no car, or it stands
// more than two pixels off each centre.
std::optional<int> FindCarLane(const Screenshot &Seen);

// The player's shots, from the top of the screen downwards.
std::vector<Area> FindShots(const Screenshot &Seen);

// Whether an enemy car is on the road.
bool SeesEnemy(const Screenshot &Seen);

// The lanes of the enemy car and of the first aid kit on the road that come to the car next; nothing if there
// is none.
std::optional<int> FindEnemyLane(const Screenshot &Seen);
std::optional<int> FindKitLane(const Screenshot &Seen);

// How far the road has scrolled, in pixels, as far as the dashes of its centre line tell: modulo DashPeriod.
// Nothing if no dash can be seen whole.
inline constexpr int DashPeriod = 62;
std::optional<int> FindDashPhase(const Screenshot &Seen);

// Whether the pale yellow light of a bomb lies on the road around the car.
bool SeesBlast(const Screenshot &Seen);

// How wide the fills of the bars are, 0 to 110.
int HealthShown(const Screenshot &Seen);
int AmmoShown(const Screenshot &Seen);

// How many bombs and first aid kits are shown in the panel, 0 to 3.
int BombsShown(const Screenshot &Seen);
int KitsShown(const Screenshot &Seen);

// Whether the score shows eight times the digit 0, and whether it reads the same as the high score, or as the
// score of another picture. All hold for scores of eight digits.
bool ScoreIsZero(const Screenshot &Seen);
bool ScoreEqualsHighScore(const Screenshot &Seen);
bool ScoreEquals(const Screenshot &Seen, const Screenshot &Other);
