#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

/// One decoded file of music. Samples are interleaved, full scale is 1.
struct Piece {
    int Rate = 0;
    int Channels = 0;
    std::vector<float> Samples;
};

inline std::size_t FrameCount(const Piece &Piece) {
    return Piece.Samples.size() / static_cast<std::size_t>(Piece.Channels);
}

/// Decodes an Ogg Vorbis file; nothing if it cannot be opened or is damaged.
std::optional<Piece> DecodePiece(const std::filesystem::path &File);
