#include "tests/e2e/Recording.hpp"

#include "tools/support/Files.hpp"

#include <SDL3_mixer/SDL_mixer.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

// A piece that is heard differs from its file by rounding alone.
constexpr float RoundingError = 2.0F * FinestStep;

float FromSixteenBits(std::uint8_t Low, std::uint8_t High) {
    const auto sample = static_cast<std::int16_t>(static_cast<std::uint16_t>(Low | (High << 8)));
    return static_cast<float>(sample) * FinestStep;
}

struct DestroyDecoder {
    void operator()(MIX_AudioDecoder *Decoder) const {
        MIX_DestroyAudioDecoder(Decoder);
    }
};

[[noreturn]] void FailToRead(const std::filesystem::path &File) {
    throw std::runtime_error(File.string() + " cannot be read: " + SDL_GetError());
}

Sound Decode(const std::filesystem::path &File) {
    constexpr SDL_AudioSpec format{SDL_AUDIO_F32, 2, FrameRate};
    const std::unique_ptr<MIX_AudioDecoder, DestroyDecoder> decoder(
        MIX_CreateAudioDecoder(File.string().c_str(), 0));
    if (decoder == nullptr) {
        FailToRead(File);
    }
    Sound sound;
    std::array<Frame, 4096> piece{};
    int bytes = 0;
    while ((bytes = MIX_DecodeAudio(decoder.get(), piece.data(), sizeof piece, &format)) > 0) {
        sound.insert(
            sound.end(), piece.begin(), piece.begin() + bytes / static_cast<std::ptrdiff_t>(sizeof(Frame)));
    }
    if (bytes < 0 || sound.empty()) {
        FailToRead(File);
    }
    return sound;
}

bool IsHeardAt(const Sound &Heard, const Sound &Piece, std::size_t Start) {
    constexpr std::size_t tenth = FrameRate / 10;
    for (std::size_t after = 0; after < 20 * tenth; after += tenth) {
        const std::size_t from = Start + after;
        if (from + BlockFrames > Heard.size()) {
            return false;
        }
        const Comparison found = Compare(Heard, Piece, Start, from, BlockFrames);
        if (found.Gain > 0.05 && found.Error <= RoundingError) {
            return true;
        }
    }
    return false;
}

// Whether the frames [From, To) hold the piece at that gain and nothing else.
bool HoldsPiece(const Sound &Heard, const Sound &Piece, std::size_t Start, std::size_t From, std::size_t To,
    double Gain) {
    const auto gain = static_cast<float>(Gain);
    for (std::size_t i = From; i < To; ++i) {
        const Frame &wanted = Piece[(i - Start) % Piece.size()];
        if (std::abs(Heard[i].Left - gain * wanted.Left) > RoundingError ||
            std::abs(Heard[i].Right - gain * wanted.Right) > RoundingError) {
            return false;
        }
    }
    return true;
}

// The frame at which it begins for good, whether or not a block begins there.
std::size_t FindBegin(const Sound &Heard, const Sound &Piece, std::size_t From, double Gain) {
    constexpr std::size_t after = FrameRate / 5;
    for (std::size_t begin = From; begin + after + BlockFrames <= Heard.size(); ++begin) {
        if (HoldsPiece(Heard, Piece, begin, begin + after, begin + after + BlockFrames, Gain)) {
            return begin;
        }
    }
    return Heard.size();
}

} // namespace

Sound ReadRecording(const std::filesystem::path &File) {
    const std::string bytes = FindBytes(File).value_or("");
    const auto byte = [&bytes](std::size_t Index) {
        return static_cast<std::uint8_t>(bytes[Index]);
    };
    Sound sound(bytes.size() / BytesPerFrame);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] = {
            FromSixteenBits(byte(4 * i), byte(4 * i + 1)), FromSixteenBits(byte(4 * i + 2), byte(4 * i + 3))};
    }
    return sound;
}

Sound ReadMusic(const std::filesystem::path &File) {
    if (!MIX_Init()) {
        FailToRead(File);
    }
    const std::unique_ptr<const void, void (*)(const void *)> quit(&File, [](const void *) {
        MIX_Quit();
    });
    return Decode(File);
}

Comparison Compare(
    const Sound &Heard, const Sound &Piece, std::size_t Start, std::size_t From, std::size_t Count) {
    double product = 0.0;
    double power = 0.0;
    for (std::size_t i = From; i < From + Count; ++i) {
        const Frame &heard = Heard[i];
        const Frame &wanted = Piece[(i - Start) % Piece.size()];
        product += static_cast<double>(heard.Left * wanted.Left + heard.Right * wanted.Right);
        power += static_cast<double>(wanted.Left * wanted.Left + wanted.Right * wanted.Right);
    }
    Comparison result{power > 0.0 ? product / power : 0.0};
    const auto gain = static_cast<float>(result.Gain);
    for (std::size_t i = From; i < From + Count; ++i) {
        const Frame &heard = Heard[i];
        const Frame &wanted = Piece[(i - Start) % Piece.size()];
        result.Error = std::max({result.Error, std::abs(heard.Left - gain * wanted.Left),
            std::abs(heard.Right - gain * wanted.Right)});
    }
    return result;
}

std::size_t FindPiece(const Sound &Heard, const Sound &Piece) {
    for (std::size_t start = 0; start < Heard.size(); start += BlockFrames) {
        if (IsHeardAt(Heard, Piece, start)) {
            return start;
        }
    }
    return Heard.size();
}

Change FindChange(const Sound &Heard, const Sound &Piece, std::size_t From, double Gain) {
    constexpr std::size_t most = 4; // blocks, however late the second call comes on a busy machine
    const Change none{Heard.size(), Heard.size()};
    const std::size_t begin = FindBegin(Heard, Piece, From, Gain);
    if (begin == Heard.size()) {
        return none;
    }
    // The block in which it begins, or which begins with it, may hold the press's sound, too.
    const std::size_t block = begin / BlockFrames * BlockFrames;
    for (std::size_t early = most * BlockFrames; early > 0; early -= BlockFrames) {
        if (early <= block && HoldsPiece(Heard, Piece, block - early, block - early, block, Gain)) {
            return {block - early, begin};
        }
    }
    return begin == block ? Change{begin, begin} : none;
}

void TakeOut(
    Sound &Heard, const Sound &Piece, std::size_t Start, std::size_t From, std::size_t To, double Gain) {
    const auto gain = static_cast<float>(Gain);
    for (std::size_t i = From; i < To; ++i) {
        const Frame &wanted = Piece[(i - Start) % Piece.size()];
        Heard[i].Left -= gain * wanted.Left;
        Heard[i].Right -= gain * wanted.Right;
    }
}

std::vector<Stretch> FindSounds(const Sound &Heard, float Quiet) {
    constexpr std::size_t pause = FrameRate / 100;
    std::vector<Stretch> sounds;
    for (std::size_t i = 0; i < Heard.size(); ++i) {
        if (std::abs(Heard[i].Left) <= Quiet && std::abs(Heard[i].Right) <= Quiet) {
            continue;
        }
        if (sounds.empty() || i >= sounds.back().End + pause) {
            sounds.push_back({i, i});
        }
        sounds.back().End = i + 1;
    }
    return sounds;
}
