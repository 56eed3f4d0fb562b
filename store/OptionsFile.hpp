#pragma once

struct GameState;

inline constexpr const char *OptionsFileName = "Config.ini";

/// Reads the options file. False if there is none that can be read; then nothing has changed. A key that is
/// missing or bad leaves what was there; volumes and rates are brought into range. A size that fits the
/// aspect mode joins Resolutions; RefreshRates and LogicalWidth are set anew. A RefreshRate above 0 is
/// taken if RefreshRates has it or DisplayModes is empty, as at the start; otherwise the one there was stays
/// if RefreshRates has it, or becomes 0. Throws what ReadIniFile throws.
bool LoadOptions(GameState &State);

/// Writes the options file anew; nothing of an older one is kept. False if it did not reach the user's
/// storage.
bool SaveOptions(const GameState &State);
