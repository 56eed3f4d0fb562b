#include "tests/e2e/RecordedGame.hpp"

#include "store/SaveState.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tools/support/Files.hpp"

#include <stdexcept>

namespace {

constexpr const char *RecordingName = "recording.raw";

std::string SavedText(const GameState &Run) {
    const TemporaryHome home;
    if (!WriteSaveState(Run)) {
        throw std::runtime_error("the run cannot be saved");
    }
    return ReadBytes(home.FilePath(SaveStateFileName));
}

Environment RecordingTo(const std::filesystem::path &File) {
    return {{"SDL_AUDIO_DRIVER", "disk"}, {"SDL_AUDIO_DISK_OUTPUT_FILE", File.string()},
        {"SDL_AUDIO_DEVICE_SAMPLE_FRAMES", std::to_string(BlockFrames)}};
}

} // namespace

GameState QuietRun() {
    constexpr float never = 1000.0F;
    GameState run;
    run.HasRunState = true;
    run.SpawnTimer = never;
    run.ObstacleSpawnTimer = never;
    run.ItemSpawnTimer = never;
    return run;
}

RecordedGame::RecordedGame(const std::string &Options, const GameState *Run) {
    if (!Options.empty()) {
        Home.Put("Config.ini", "[Audio]\r\n" + Options);
    }
    if (Run != nullptr) {
        Home.Put(SaveStateFileName, SavedText(*Run));
    }
    Opened.emplace(ScreenSize{}, RecordingTo(Home.Path() / RecordingName), &Home);
}

OpenedGame &RecordedGame::Game() {
    return *Opened;
}

Sound RecordedGame::Heard() const {
    return ReadRecording(Home.Path() / RecordingName);
}

bool RecordedGame::Listen(double Time) {
    const std::size_t end = Heard().size() + static_cast<std::size_t>(Time * FrameRate);
    return WaitUntil(
        [&] {
            return Heard().size() >= end;
        },
        PatientDeadline, std::chrono::milliseconds{20});
}

bool RecordedGame::TapAndHear(Key Tapped, const Sight &Shows) {
    return Game().Tap(Tapped, Shows) && HearMore();
}

bool RecordedGame::HearMore() {
    constexpr std::size_t quiet = FrameRate / 5;
    return WaitUntil(
        [&] {
            const Sound heard = Heard();
            const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
            if (sounds.size() <= KnownSounds || sounds.back().End + quiet > heard.size()) {
                return false;
            }
            KnownSounds = sounds.size();
            return true;
        },
        PatientDeadline, std::chrono::milliseconds{20});
}

std::size_t RecordedGame::SoundsSoFar() const {
    return KnownSounds;
}

Sound RecordedGame::End() {
    return Opened->Close() == 0 ? Heard() : Sound{};
}
