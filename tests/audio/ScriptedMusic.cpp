#include "tests/audio/ScriptedMusic.hpp"

ScriptedMusic::ScriptedMusic() {
    EXPECT_TRUE(SDL_Init(0)) << SDL_GetError();
    Watch.Forget(); // that one
    ScriptTrack();
    ScriptAudio();
    Watch.GetTicks.Answer = [this] {
        return Ticks;
    };
    Runtime.MusicTrack = MusicTrack();
    Runtime.Player.Track = Runtime.MusicTrack;
    Runtime.Player.GainPercent = &Runtime.MusicGainPercent;
    Runtime.MusicGainPercent = 50; // what the options say at first
    Runtime.SfxGainPercent = 75;
    Runtime.Initialised = true;
}

ScriptedMusic::~ScriptedMusic() {
    SDL_Quit();
}

void ScriptedMusic::ScriptTrack() {
    Watch.TrackPlaying.Answer = [this](MIX_Track *) {
        return IsPlaying;
    };
    Watch.GetTrackLoops.Answer = [this](MIX_Track *) {
        return Loops;
    };
    Watch.GetTrackPlaybackPosition.Answer = [this](MIX_Track *) {
        return Position;
    };
    Watch.TrackFramesToMS.Answer = [](MIX_Track *, Sint64 Frames) {
        return Frames / FramesPerMs;
    };
    Watch.SetTrackGain.Answer = [this](MIX_Track *Track, float Gain) {
        EXPECT_EQ(Track, MusicTrack());
        Gains.push_back(Gain);
        return true;
    };
    Watch.SetTrackAudio.Answer = [this](MIX_Track *Track, MIX_Audio *Audio) {
        EXPECT_EQ(Track, MusicTrack());
        TrackAudio = Audio;
        return true;
    };
    Watch.PlayTrack.Answer = [this](MIX_Track *Track, SDL_PropertiesID Options) {
        EXPECT_EQ(Track, MusicTrack());
        return Start(Options);
    };
}

void ScriptedMusic::ScriptAudio() {
    Watch.GetAudioDuration.Answer = [this](MIX_Audio *) {
        return Duration;
    };
    Watch.AudioFramesToMS.Answer = [](MIX_Audio *, Sint64 Frames) {
        return Frames / AudioFramesPerMs;
    };
}

bool ScriptedMusic::Start(SDL_PropertiesID Options) {
    constexpr const char *fadeIn = "SDL_mixer.play.fade_in_milliseconds";
    PlayedLoops = SDL_GetNumberProperty(Options, "SDL_mixer.play.loops", 99);
    HadFadeIn = SDL_HasProperty(Options, fadeIn);
    FadeInMs = SDL_GetNumberProperty(Options, fadeIn, 0);
    Played.push_back(NameOf(TrackAudio));
    IsPlaying = true;
    Position = 0;
    return true;
}

std::string ScriptedMusic::NameOf(const MIX_Audio *Audio) const {
    for (const MusicPattern &pattern : Runtime.Player.Patterns) {
        if (pattern.Audio == Audio) {
            return pattern.Name;
        }
    }
    return "nothing";
}

void ScriptedMusic::AddPattern(const std::string &Name, const std::string &Next) {
    std::vector<MusicPattern> &patterns = Runtime.Player.Patterns;
    MusicPattern pattern;
    pattern.Name = Name;
    pattern.NextName = Next.empty() ? Name : Next;
    pattern.Audio = reinterpret_cast<MIX_Audio *>(&Things.at(patterns.size() + 1));
    patterns.push_back(pattern);
}

void ScriptedMusic::LetPlay(const std::string &Name) {
    MusicPlayer &player = Runtime.Player;
    const MusicPattern *const pattern = FindMusicPattern(player, Name);
    ASSERT_NE(pattern, nullptr) << Name;
    player.CurrentPatternName = pattern->Name;
    player.NextPatternName = pattern->NextName;
    player.LoopBoundaryMs = 1000;
    player.LastPosition = 100;
    IsPlaying = true;
    Loops = -1;
    Position = 100;
    Runtime.StartupFadePending = false;
}

void ScriptedMusic::Update() {
    UpdateMusicRuntime(State, Runtime);
}

void ScriptedMusic::WrapLoop() {
    Runtime.Player.LastPosition = 900;
    Position = 10;
}

std::string ScriptedMusic::Requested() const {
    const MusicPattern *const requested = Runtime.Player.RequestedPattern;
    return requested != nullptr ? requested->Name : "";
}
