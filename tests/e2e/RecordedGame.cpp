#include "tests/e2e/RecordedGame.hpp"

#include "tests/e2e/StoredFiles.hpp"
#include "tools/desktop/WaitUntil.hpp"

#include <filesystem>

namespace {

constexpr const char *RecordingName = "recording.raw";

Environment RecordingTo(const std::filesystem::path &File) {
    return {{"SDL_AUDIO_DRIVER", "disk"}, {"SDL_AUDIO_DISK_OUTPUT_FILE", File.string()},
        {"SDL_AUDIO_DEVICE_SAMPLE_FRAMES", std::to_string(BlockFrames)}};
}

} // namespace

RecordedGame::RecordedGame(const std::string &Options, const GameState *Run) {
    if (!Options.empty()) {
        Home.Put(OptionsFile, "[Audio]\r\n" + Options);
    }
    if (Run != nullptr) {
        PutRun(Home, *Run);
    }
    Opened.emplace(ScreenSize{}, RecordingTo(Home.Path() / RecordingName), &Home);
}

OpenedGame &RecordedGame::Game() {
    return *Opened;
}

Sound RecordedGame::Heard() const {
    return ReadRecording(Home.Path() / RecordingName);
}

std::size_t RecordedGame::FramesSoFar() const {
    return std::filesystem::file_size(Home.Path() / RecordingName) / BytesPerFrame;
}

bool RecordedGame::Listen(double Time) const {
    const std::size_t end = FramesSoFar() + static_cast<std::size_t>(Time * FrameRate);
    return WaitUntil([&] {
        return FramesSoFar() >= end;
    });
}

bool RecordedGame::TapAndHear(Key Tapped, const Sight &Shows) {
    return Game().Tap(Tapped, Shows) && HearMore();
}

bool RecordedGame::HearMore() {
    constexpr std::size_t quiet = FrameRate / 5;
    return WaitUntil([&] {
        const Sound heard = Heard();
        const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
        if (sounds.size() <= KnownSounds || sounds.back().End + quiet > heard.size()) {
            return false;
        }
        KnownSounds = sounds.size();
        return true;
    });
}

std::size_t RecordedGame::SoundsSoFar() const {
    return KnownSounds;
}

Sound RecordedGame::End() {
    return Opened->Close() == 0 ? Heard() : Sound{};
}
