#pragma once

#include <filesystem>

/// Writes a short tone as a stereo OGG file at 44100 Hz, of exactly that many frames.
void WriteOggTone(const std::filesystem::path &Path, int Frames, float Hertz);

/// Writes a file that begins like OGG music and breaks off within its headers.
void WriteDamagedOgg(const std::filesystem::path &Path);
