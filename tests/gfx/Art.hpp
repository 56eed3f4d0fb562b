#pragma once

#include <cstdint>

/// The colour of one pixel of a sprite (X and Y 0 to 15) by the master list, packed 0xAABBGGRR; 0 where the
/// sprite is transparent.
std::uint32_t ArtPixel(std::int32_t Id, int X, int Y);
