#pragma once

// Under which name the player's files are kept.

constexpr const char *Organisation = "Orrin";
constexpr const char *Application = "KestrelVolley";
