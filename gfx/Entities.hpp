#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

struct GameState;

/// Width and height of the player's car in logical pixels, on the road and as the icon of the spare lives.
inline constexpr float CarSize = 31.2F;

/// Draws all that is on the road, each list in order: items, obstacles, shots, enemies, explosions, the
/// player.
void DrawEntities(SDL_Renderer *Renderer, const GameState &State);

/// Draws one shot in units of the snap step, so that it keeps its shape in a small window: 3 wide and 6 high,
/// of which 5 lie above Y for a shot that flies up, 5 below it for another. Colours are packed 0xAABBGGRR.
void DrawBullet(SDL_Renderer *Renderer, float X, float Y, int SnapStep, bool FliesUp,
    std::uint32_t OuterColor, std::uint32_t InnerColor);
