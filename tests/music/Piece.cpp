#include "tests/music/Piece.hpp"

#define OV_EXCLUDE_STATIC_CALLBACKS
#include <vorbis/vorbisfile.h>

namespace {

/// Appends the next decoded block; false at the end. A gap in the data counts as damage.
bool DecodeBlock(OggVorbis_File &Stream, Piece &Piece, bool &Damaged) {
    float **channels = nullptr;
    int section = 0;
    const long frames = ov_read_float(&Stream, &channels, 4096, &section);
    Damaged = frames < 0;
    for (long frame = 0; frame < frames; ++frame) {
        for (int channel = 0; channel < Piece.Channels; ++channel) {
            Piece.Samples.push_back(channels[channel][frame]);
        }
    }
    return frames > 0;
}

} // namespace

std::optional<Piece> DecodePiece(const std::filesystem::path &File) {
    OggVorbis_File stream;
    if (ov_fopen(File.string().c_str(), &stream) != 0) {
        return std::nullopt;
    }
    const vorbis_info *info = ov_info(&stream, -1);
    Piece piece{static_cast<int>(info->rate), info->channels, {}};
    bool damaged = false;
    while (DecodeBlock(stream, piece, damaged)) {
    }
    ov_clear(&stream);
    return damaged ? std::nullopt : std::optional(piece);
}
