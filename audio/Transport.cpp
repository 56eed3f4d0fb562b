#include "audio/Transport.hpp"

#include "audio/Gains.hpp"
#include "audio/MusicPatterns.hpp"
#include "audio/StartupFade.hpp"
#include "sim/Stages.hpp"
#include "state/GameState.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <stdexcept>

namespace {

void UpdateGains(const GameState &State, MusicRuntime &Runtime) {
    const std::int32_t music = EffectiveMusicGain(State);
    if (music != Runtime.MusicGainPercent) {
        Runtime.MusicGainPercent = music;
        if (!ApplyMusicGain(Runtime.Player)) {
            SDL_Log("MIX_SetTrackGain failed: %s", SDL_GetError());
        }
    }
    const std::int32_t sfx = EffectiveSfxGain(State);
    if (sfx != Runtime.SfxGainPercent) {
        Runtime.SfxGainPercent = sfx;
        ApplySfxGain(Runtime, TrackGain(sfx));
    }
}

/// A role without a name has no music of its own; LoadMusicPatterns leaves none such.
const std::string &PatternOfRun(const GameState &State, const MusicRuntime &Runtime) {
    if (State.InvincibilityPowerTimer > 0.0F && !Runtime.InvincibilityPattern.empty()) {
        return Runtime.InvincibilityPattern;
    }
    if (State.DualWeaponPowerTimer > 0.0F && !Runtime.DualWeaponPattern.empty()) {
        return Runtime.DualWeaponPattern;
    }
    const bool isWater = IsWaterStage(State.Stage) && !Runtime.WaterPattern.empty();
    return isWater ? Runtime.WaterPattern : Runtime.GameplayPattern;
}

/// NOT-BUGS: Options and help have the menu's music, also within a run
const std::string &WantedPattern(const GameState &State, const MusicRuntime &Runtime) {
    switch (State.Screen) {
    case ScreenPlaying:
    case ScreenPaused:
        return PatternOfRun(State, Runtime);
    case ScreenGameOver:
        return Runtime.GameOverPattern.empty() ? Runtime.GameplayPattern : Runtime.GameOverPattern;
    default:
        return Runtime.MenuPattern;
    }
}

/// Whether the music follows a change of screen at once.
/// NOT-BUGS: From the pause menu to the main menu the loop is played to its end
bool CutsMusic(Screen Previous, Screen Present) {
    return (Previous == ScreenMainMenu && Present == ScreenPlaying) ||
           (Previous == ScreenPlaying && Present == ScreenMainMenu) ||
           (Previous == ScreenGameOver && Present == ScreenMainMenu);
}

/// Asks for a pattern and logs the failure; false if nothing is asked for.
/// NOT-BUGS: A piece of music that is missing is an exception
bool TryRequest(MusicPlayer &Player, std::string_view Name) {
    try {
        RequestMusicPattern(Player, Name);
    } catch (const std::runtime_error &failure) {
        SDL_Log("%s", failure.what());
    }
    return Player.RequestedPattern != nullptr;
}

/// Plays the pattern that is asked for, and ends a running fade where it stands.
/// NOT-BUGS: The menu's music fades in once, at the start of the program
bool PlayRequested(MusicRuntime &Runtime, const char *FailureText) {
    if (!PlayMusicPattern(Runtime.Player, Runtime.Player.RequestedPattern, 0)) {
        SDL_Log("%s: %s", FailureText, SDL_GetError());
        return false;
    }
    Runtime.StartupFadePending = false;
    Runtime.StartupFadeActive = false;
    Runtime.Player.RequestedPattern = nullptr;
    return true;
}

/// Asks for the wanted pattern, and plays it if that is not to wait for the end of the loop.
void FollowWanted(MusicRuntime &Runtime, std::string_view Wanted, Screen Previous, Screen Present) {
    MusicPlayer &player = Runtime.Player;
    // Asked first: what follows goes by the track as the update found it.
    const bool isPlaying = MIX_TrackPlaying(player.Track);
    if (Wanted.empty()) {
        return;
    }
    if (Wanted == player.CurrentPatternName) {
        // NOT-BUGS: Music changes at the end of a loop
        player.RequestedPattern = nullptr;
        return;
    }
    if (!TryRequest(player, Wanted)) {
        return;
    }
    const bool isFirst = player.CurrentPatternName.empty();
    if (!isFirst && isPlaying && !CutsMusic(Previous, Present)) {
        return;
    }
    const bool startsFade = isFirst && Runtime.StartupFadePending && Wanted == Runtime.MenuPattern;
    if (PlayRequested(Runtime, "PlayMusicPattern failed") && startsFade) {
        BeginStartupFade(Runtime);
    }
}

/// Whether the playing pattern has come to the end of its loop: its position has fallen back. Since it loops
/// without end, the mixer reports no loops only for a track that never began or has stopped, as after an
/// error in its file; that is at its end by its length or, without a position, if it does not play. Position
/// is in sample frames, negative if there is none.
bool IsAtLoopBoundary(const MusicPlayer &Player, std::int64_t Position) {
    const bool loops = MIX_GetTrackLoops(Player.Track) != 0;
    if (Position >= 0) {
        return loops ? Player.LastPosition > Position
                     : Player.LoopBoundaryMs <= MIX_TrackFramesToMS(Player.Track, Position);
    }
    return !loops && !MIX_TrackPlaying(Player.Track);
}

/// A pattern that was asked for comes before the one that follows in the chain; one that follows itself goes
/// on looping.
void PassLoopBoundary(MusicRuntime &Runtime) {
    MusicPlayer &player = Runtime.Player;
    if (player.RequestedPattern == nullptr) {
        const bool loopsOn =
            player.NextPatternName.empty() || player.NextPatternName == player.CurrentPatternName;
        if (loopsOn || !TryRequest(player, player.NextPatternName)) {
            return;
        }
    }
    PlayRequested(Runtime, "PlayMusicPattern failed at loop boundary");
}

void WatchLoop(MusicRuntime &Runtime) {
    MusicPlayer &player = Runtime.Player;
    const std::int64_t position = MIX_GetTrackPlaybackPosition(player.Track);
    if (IsAtLoopBoundary(player, position)) {
        player.LastPosition = std::max(position, NoPosition);
        PassLoopBoundary(Runtime);
    } else if (position >= 0) {
        player.LastPosition = position;
    }
}

/// The length in milliseconds, at most UnknownLoopMs, which also stands for a length that the mixer lacks.
std::int32_t LoopLengthMs(MIX_Audio *Audio) {
    const Sint64 duration = MIX_GetAudioDuration(Audio);
    if (duration <= 0) {
        return UnknownLoopMs;
    }
    return static_cast<std::int32_t>(
        std::clamp<Sint64>(MIX_AudioFramesToMS(Audio, duration), 0, UnknownLoopMs));
}

/// Starts the track's audio as an endless loop; false if the mixer or SDL refuses.
bool StartLooping(MIX_Track *Track, std::int32_t FadeInMs) {
    const SDL_PropertiesID properties = SDL_CreateProperties();
    if (properties == 0) {
        return false;
    }
    SDL_SetNumberProperty(properties, MIX_PROP_PLAY_LOOPS_NUMBER, -1);
    if (FadeInMs > 0) {
        SDL_SetNumberProperty(properties, MIX_PROP_PLAY_FADE_IN_MILLISECONDS_NUMBER, FadeInMs);
    }
    const bool played = MIX_PlayTrack(Track, properties);
    SDL_DestroyProperties(properties);
    return played;
}

} // namespace

void UpdateMusicRuntime(const GameState &State, MusicRuntime &Runtime) {
    if (!Runtime.Initialised) {
        return;
    }
    const Screen previous = Runtime.LastScreen;
    Runtime.LastScreen = State.Screen;
    UpdateGains(State, Runtime);
    if (Runtime.Player.Track == nullptr || Runtime.Player.Patterns.empty()) {
        return;
    }
    FollowWanted(Runtime, WantedPattern(State, Runtime), previous, State.Screen);
    WatchLoop(Runtime);
    UpdateStartupFade(Runtime);
}

bool PlayMusicPattern(MusicPlayer &Player, const MusicPattern *Pattern, std::int32_t FadeInMs) {
    if (Pattern == nullptr || Player.Track == nullptr) {
        return false;
    }
    // NOT-BUGS: The first instant of a piece is now and then heard twice
    if (!MIX_SetTrackAudio(Player.Track, Pattern->Audio) || !StartLooping(Player.Track, FadeInMs)) {
        return false;
    }
    Player.LoopBoundaryMs = LoopLengthMs(Pattern->Audio);
    Player.CurrentPatternName = Pattern->Name;
    Player.NextPatternName = Pattern->NextName;
    Player.LastPosition = NoPosition;
    return true;
}

void RequestMusicPattern(MusicPlayer &Player, std::string_view Name) {
    Player.RequestedPattern = FindMusicPattern(Player, Name);
    if (Player.RequestedPattern == nullptr) {
        throw std::runtime_error("Requested music pattern could not be found: " + std::string(Name));
    }
}
