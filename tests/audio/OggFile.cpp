#include "tests/audio/OggFile.hpp"

#include "tools/support/Files.hpp"

#include <gtest/gtest.h>
#include <vorbis/vorbisenc.h>

#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>

namespace {

constexpr int Rate = 44100;

/// One stream of music on its way into a file.
class OggEncoder {
public:
    OggEncoder() {
        vorbis_info_init(&Info);
        EXPECT_EQ(vorbis_encode_init_vbr(&Info, 2, Rate, 0.2F), 0);
        vorbis_comment_init(&Comment);
        vorbis_analysis_init(&Dsp, &Info);
        vorbis_block_init(&Dsp, &Block);
        ogg_stream_init(&Stream, 1);
    }
    ~OggEncoder() {
        ogg_stream_clear(&Stream);
        vorbis_block_clear(&Block);
        vorbis_dsp_clear(&Dsp);
        vorbis_comment_clear(&Comment);
        vorbis_info_clear(&Info);
    }
    OggEncoder(const OggEncoder &) = delete;
    OggEncoder &operator=(const OggEncoder &) = delete;

    void WriteHeaders() {
        ogg_packet identification;
        ogg_packet comments;
        ogg_packet codebooks;
        vorbis_analysis_headerout(&Dsp, &Comment, &identification, &comments, &codebooks);
        ogg_stream_packetin(&Stream, &identification);
        ogg_stream_packetin(&Stream, &comments);
        ogg_stream_packetin(&Stream, &codebooks);
        ogg_page page;
        while (ogg_stream_flush(&Stream, &page) != 0) {
            Append(page);
        }
    }

    void WriteTone(int Frames, float Hertz) {
        float **const channels = vorbis_analysis_buffer(&Dsp, Frames);
        for (int frame = 0; frame < Frames; ++frame) {
            const float seconds = static_cast<float>(frame) / static_cast<float>(Rate);
            channels[0][frame] = 0.4F * std::sin(2.0F * std::numbers::pi_v<float> * Hertz * seconds);
            channels[1][frame] = channels[0][frame];
        }
        vorbis_analysis_wrote(&Dsp, Frames);
        vorbis_analysis_wrote(&Dsp, 0);
        while (vorbis_analysis_blockout(&Dsp, &Block) == 1) {
            WriteBlock();
        }
    }

    std::string Bytes;

private:
    void WriteBlock() {
        vorbis_analysis(&Block, nullptr);
        vorbis_bitrate_addblock(&Block);
        ogg_packet packet;
        while (vorbis_bitrate_flushpacket(&Dsp, &packet) != 0) {
            ogg_stream_packetin(&Stream, &packet);
            ogg_page page;
            while (ogg_stream_pageout(&Stream, &page) != 0) {
                Append(page);
            }
        }
    }

    void Append(const ogg_page &Page) {
        Bytes.append(Page.header, Page.header + Page.header_len);
        Bytes.append(Page.body, Page.body + Page.body_len);
    }

    vorbis_info Info{};
    vorbis_comment Comment{};
    vorbis_dsp_state Dsp{};
    vorbis_block Block{};
    ogg_stream_state Stream{};
};

} // namespace

void WriteOggTone(const std::filesystem::path &Path, int Frames, float Hertz) {
    OggEncoder encoder;
    encoder.WriteHeaders();
    encoder.WriteTone(Frames, Hertz);
    WriteBytes(Path, encoder.Bytes);
}

void WriteDamagedOgg(const std::filesystem::path &Path) {
    OggEncoder encoder;
    encoder.WriteHeaders();
    WriteBytes(Path, encoder.Bytes.substr(0, 100));
}
