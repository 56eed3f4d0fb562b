#pragma once

#include "audio/SfxRecipes.hpp"
#include "state/Screen.hpp"

#include <SDL3_mixer/SDL_mixer.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

/// One looping piece of music.
struct MusicPattern {
    std::string Name;           ///< not empty, unique in the list, compared byte by byte
    std::string NextName;       ///< what follows at a loop boundary; names a pattern of the list
    std::string ResolvedPath;   ///< where it was loaded from
    MIX_Audio *Audio = nullptr; ///< owned by the list, never null in it
};

/// The length of a pattern whose length is unknown: its boundary is never reached.
inline constexpr std::int32_t UnknownLoopMs = std::numeric_limits<std::int32_t>::max();

/// No track position has been seen yet.
inline constexpr std::int64_t NoPosition = -1;

/// What plays on the music track, and what is to play next. It refers to the runtime's track and gain, so
/// that who plays a pattern needs no more than this.
struct MusicPlayer {
    std::int32_t LoopBoundaryMs = 0;                ///< length of the playing pattern, or UnknownLoopMs
    std::int64_t LastPosition = NoPosition;         ///< in sample frames, as the last update saw it
    std::vector<MusicPattern> Patterns;             ///< in the order of the file
    std::string CurrentPatternName;                 ///< empty until something has played
    std::string NextPatternName;                    ///< what follows the playing pattern
    const MusicPattern *RequestedPattern = nullptr; ///< to start at the next opportunity; not owning
    MIX_Track *Track = nullptr;                     ///< the runtime's music track; not owning
    const std::int32_t *GainPercent = nullptr;      ///< the runtime's MusicGainPercent; null until the start
};

/// Every object of the mixer, for the sounds as well as the music, owned by the main program as a single
/// instance and used on the main thread alone. It stays where it was made, for its player points into it.
struct MusicRuntime {
    MusicRuntime() = default;
    MusicRuntime(const MusicRuntime &) = delete;
    MusicRuntime &operator=(const MusicRuntime &) = delete;

    MIX_Mixer *Mixer = nullptr;
    MIX_Track *MusicTrack = nullptr;              ///< destroyed with the mixer
    std::array<MIX_Audio *, SfxCount> SfxAudio{}; ///< by SfxIndex; null for a sound that could not be made
    std::vector<MIX_Track *> SfxTracks;           ///< the voices; the game makes no null one
    std::size_t NextSfxTrack = 0;                 ///< round-robin cursor into the voices
    MusicPlayer Player;
    std::int32_t MusicGainPercent = 0; ///< the last effective gains, 0 to 100
    std::int32_t SfxGainPercent = 0;
    std::int32_t FadeInMs = 350;   ///< of the first menu music
    std::int32_t FadeOutMs = 1500; ///< at shutdown
    // What the game plays when: names of patterns, none of them empty once patterns are loaded.
    std::string MenuPattern = "MENU";
    std::string GameplayPattern = "GAMEPLAY";
    std::string WaterPattern = "WATER";
    std::string GameOverPattern = "GAMEOVER";
    std::string InvincibilityPattern = "INVINCIBILITY";
    std::string DualWeaponPattern = "DUALWEAPON";
    Screen LastScreen = ScreenMainMenu;      ///< as the last update saw it
    bool StartupFadePending = true;          ///< until the first play of any pattern
    bool StartupFadeActive = false;          ///< while the first menu music rises
    std::uint64_t StartupFadeStartTicks = 0; ///< milliseconds of SDL_GetTicks
    bool Initialised = false;                ///< while false, nothing is played and no gain is set
};
