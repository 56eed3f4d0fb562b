#include "audio/MusicPatterns.hpp"

#include "store/Paths.hpp"
#include "store/PlainFile.hpp"
#include "store/Words.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <array>

namespace {

constexpr const char *MusicSection = "Music";
constexpr std::string_view PatternPrefix = "Pattern.";
constexpr std::int32_t MaxFadeMs = 5000;

/// A use of a pattern in the game.
struct MusicRole {
    const char *Key;                    ///< in the section "Music"
    std::string MusicRuntime::*Pattern; ///< the name of its pattern
    /// The role whose pattern stands in for one that does not exist; null for the first pattern of the list.
    std::string MusicRuntime::*Fallback;
    const char *BuiltInFile; ///< of its pattern in the built-in document
};

// A role stands behind its fallback.
constexpr auto Roles = std::to_array<MusicRole>({
    {"MenuPattern", &MusicRuntime::MenuPattern, nullptr, "Music/MenuCredits.ogg"},
    {"GameplayPattern", &MusicRuntime::GameplayPattern, &MusicRuntime::MenuPattern, "Music/Gameplay.ogg"},
    {"WaterPattern", &MusicRuntime::WaterPattern, &MusicRuntime::GameplayPattern, "Music/Water.ogg"},
    {"GameOverPattern", &MusicRuntime::GameOverPattern, &MusicRuntime::GameplayPattern, "Music/GameOver.ogg"},
    {"InvincibilityPattern", &MusicRuntime::InvincibilityPattern, &MusicRuntime::GameplayPattern,
        "Music/Invincibility.ogg"},
    {"DualWeaponPattern", &MusicRuntime::DualWeaponPattern, &MusicRuntime::GameplayPattern,
        "Music/DualWeapon.ogg"},
});

struct MusicFade {
    const char *Key;
    std::int32_t MusicRuntime::*Milliseconds;
};

constexpr auto Fades = std::to_array<MusicFade>({
    {"FadeInMs", &MusicRuntime::FadeInMs},
    {"FadeOutMs", &MusicRuntime::FadeOutMs},
});

void ForgetPatterns(MusicPlayer &Player) {
    DestroyMusicPatterns(Player);
    Player.CurrentPatternName.clear();
    Player.NextPatternName.clear();
    Player.LastPosition = NoPosition;
    Player.LoopBoundaryMs = 0;
}

void ReadRoles(const quillINI::IniDocument &Document, MusicRuntime &Runtime) {
    for (const MusicRole &role : Roles) {
        std::string &pattern = Runtime.*role.Pattern;
        pattern = quillINI::GetIniValue(Document, MusicSection, role.Key, pattern);
    }
}

void ReadFades(const quillINI::IniDocument &Document, MusicRuntime &Runtime) {
    for (const MusicFade &fade : Fades) {
        std::int32_t &milliseconds = Runtime.*fade.Milliseconds;
        // A missing key reads as the present value, so that this is brought into its range like a written
        // one; what is no number leaves it as it is.
        const std::string present = std::to_string(milliseconds);
        const std::string text = quillINI::GetIniValue(Document, MusicSection, fade.Key, present);
        if (ParseInt32(text, milliseconds)) {
            milliseconds = std::clamp(milliseconds, 0, MaxFadeMs);
        }
    }
}

/// Where a pattern's file lies; empty after a log line if the name is unsafe or the program's folder unknown.
std::string ResolvePath(const std::string &Name, const std::string &FileName) {
    std::string path = IsSafeRelativePath(FileName) ? BaseFilePath(FileName) : std::string();
    if (path.empty()) {
        SDL_Log("Music pattern '%s' has unsafe FileName '%s'; skipping", Name.c_str(), FileName.c_str());
    }
    return path;
}

/// The music of a file, decoded as it plays; null with the reason as SDL's error.
MIX_Audio *LoadMusic(MIX_Mixer *Mixer, const std::string &Path) {
    if (IsOtherThanFile(Path)) {
        SDL_SetError("not a regular file");
        return nullptr;
    }
    return MIX_LoadAudio(Mixer, Path.c_str(), false);
}

/// Appends the pattern of a section, or leaves it out: silently if it is switched off or has no name or file.
void LoadPattern(const quillINI::IniDocument &Document, const std::string &Section, MusicRuntime &Runtime) {
    const auto read = [&](const char *Key, const std::string &Default) {
        return quillINI::GetIniValue(Document, Section, Key, Default);
    };
    MusicPattern pattern;
    pattern.Name = read("PatternName", Section.substr(PatternPrefix.size()));
    if (pattern.Name.empty()) {
        return;
    }
    // NOT-BUGS: A music section that is switched off still counts as a duplicate
    if (FindMusicPattern(Runtime.Player, pattern.Name) != nullptr) {
        SDL_Log("Duplicate music pattern name '%s' in section '%s'; ignoring duplicate", pattern.Name.c_str(),
            Section.c_str());
        return;
    }
    if (!ParseBoolWord(read("Enabled", "1"), true)) {
        return;
    }
    const std::string fileName = read("FileName", "");
    if (fileName.empty()) {
        return;
    }
    pattern.NextName = read("NextPatternName", pattern.Name);
    pattern.ResolvedPath = ResolvePath(pattern.Name, fileName);
    if (pattern.ResolvedPath.empty()) {
        return;
    }
    pattern.Audio = LoadMusic(Runtime.Mixer, pattern.ResolvedPath);
    if (pattern.Audio == nullptr) {
        SDL_Log("MIX_LoadAudio failed for pattern '%s' (configured='%s', resolved='%s'): %s",
            pattern.Name.c_str(), fileName.c_str(), pattern.ResolvedPath.c_str(), SDL_GetError());
        return;
    }
    Runtime.Player.Patterns.push_back(std::move(pattern));
}

void LoadPatterns(const quillINI::IniDocument &Document, MusicRuntime &Runtime) {
    for (const quillINI::IniSection &section : Document.Sections) {
        // What stands before the first heading is no pattern, whatever the library calls that section.
        if (section.Name != quillINI::IniGlobalSection && section.Name.starts_with(PatternPrefix)) {
            LoadPattern(Document, section.Name, Runtime);
        }
    }
}

/// Gives every role a pattern that exists. A fallback needs no test: its own role was mended before.
void MendRoles(MusicRuntime &Runtime) {
    for (const MusicRole &role : Roles) {
        std::string &pattern = Runtime.*role.Pattern;
        if (FindMusicPattern(Runtime.Player, pattern) != nullptr) {
            continue;
        }
        const std::string &fallback =
            role.Fallback != nullptr ? Runtime.*role.Fallback : Runtime.Player.Patterns.front().Name;
        SDL_Log("Music pattern '%s' points to missing pattern '%s'; using '%s' instead", role.Key,
            pattern.c_str(), fallback.c_str());
        pattern = fallback;
    }
}

/// Lets a pattern whose follower does not exist follow itself.
void MendChain(MusicPlayer &Player) {
    for (MusicPattern &pattern : Player.Patterns) {
        if (FindMusicPattern(Player, pattern.NextName) == nullptr) {
            SDL_Log("Music pattern '%s' has missing NextPatternName '%s'; using self loop",
                pattern.Name.c_str(), pattern.NextName.c_str());
            pattern.NextName = pattern.Name;
        }
    }
}

} // namespace

bool LoadMusicPatterns(const quillINI::IniDocument &Document, MusicRuntime &Runtime) {
    ForgetPatterns(Runtime.Player);
    ReadRoles(Document, Runtime);
    ReadFades(Document, Runtime);
    LoadPatterns(Document, Runtime);
    if (Runtime.Player.Patterns.empty()) {
        return false;
    }
    MendRoles(Runtime);
    MendChain(Runtime.Player);
    return true;
}

void BuildDefaultMusicPatterns(quillINI::IniDocument &Document) {
    const MusicRuntime defaults;
    const auto set = [&Document](const std::string &Section, const char *Key, const std::string &Value) {
        quillINI::SetIniValue(Document, Section, Key, Value, false);
    };
    for (const MusicRole &role : Roles) {
        set(MusicSection, role.Key, defaults.*role.Pattern);
    }
    for (const MusicFade &fade : Fades) {
        set(MusicSection, fade.Key, std::to_string(defaults.*fade.Milliseconds));
    }
    for (const MusicRole &role : Roles) {
        const std::string &name = defaults.*role.Pattern;
        const std::string section = std::string(PatternPrefix) + name;
        set(section, "FileName", role.BuiltInFile);
        set(section, "NextPatternName", name);
    }
}

const MusicPattern *FindMusicPattern(const MusicPlayer &Player, std::string_view Name) {
    const auto found = std::ranges::find(Player.Patterns, Name, &MusicPattern::Name);
    return found != Player.Patterns.end() ? &*found : nullptr;
}

void DestroyMusicPatterns(MusicPlayer &Player) {
    for (const MusicPattern &pattern : Player.Patterns) {
        MIX_DestroyAudio(pattern.Audio);
    }
    Player.Patterns.clear();
    Player.RequestedPattern = nullptr;
}
