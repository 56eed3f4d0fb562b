#pragma once

// Under which name the player's files are kept.

inline constexpr const char *Organisation = "Orrin";
inline constexpr const char *Application = "KestrelVolley";
