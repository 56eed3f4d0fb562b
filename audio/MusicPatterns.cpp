#include "audio/MusicPatterns.hpp"

#include "store/Paths.hpp"
#include "store/Words.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <array>

namespace {

constexpr const char *MusicSection = "Music";
constexpr std::string_view PatternPrefix = "Pattern.";
constexpr std::int32_t MaxFadeMs = 5000;

/// What a pattern is for: its key in the document, its name in the runtime, and the role that stands in where
/// it names no pattern. The first has the first pattern of the list.
struct MusicRole {
    const char *Key;
    std::string MusicRuntime::*Pattern;
    std::string MusicRuntime::*Fallback;
};

constexpr std::array<MusicRole, 6> Roles{{
    {"MenuPattern", &MusicRuntime::MenuPattern, nullptr},
    {"GameplayPattern", &MusicRuntime::GameplayPattern, &MusicRuntime::MenuPattern},
    {"WaterPattern", &MusicRuntime::WaterPattern, &MusicRuntime::GameplayPattern},
    {"GameOverPattern", &MusicRuntime::GameOverPattern, &MusicRuntime::GameplayPattern},
    {"InvincibilityPattern", &MusicRuntime::InvincibilityPattern, &MusicRuntime::GameplayPattern},
    {"DualWeaponPattern", &MusicRuntime::DualWeaponPattern, &MusicRuntime::GameplayPattern},
}};

struct MusicFade {
    const char *Key;
    std::int32_t MusicRuntime::*Milliseconds;
};

constexpr std::array<MusicFade, 2> Fades{{
    {"FadeInMs", &MusicRuntime::FadeInMs},
    {"FadeOutMs", &MusicRuntime::FadeOutMs},
}};

struct DefaultValue {
    const char *Section;
    const char *Key;
    const char *Value;
};

constexpr std::array<DefaultValue, 20> DefaultMusic{{
    {"Music", "MenuPattern", "MENU"},
    {"Music", "GameplayPattern", "GAMEPLAY"},
    {"Music", "WaterPattern", "WATER"},
    {"Music", "GameOverPattern", "GAMEOVER"},
    {"Music", "InvincibilityPattern", "INVINCIBILITY"},
    {"Music", "DualWeaponPattern", "DUALWEAPON"},
    {"Music", "FadeInMs", "350"},
    {"Music", "FadeOutMs", "1500"},
    {"Pattern.MENU", "FileName", "Music/MenuCredits.ogg"},
    {"Pattern.MENU", "NextPatternName", "MENU"},
    {"Pattern.GAMEPLAY", "FileName", "Music/Gameplay.ogg"},
    {"Pattern.GAMEPLAY", "NextPatternName", "GAMEPLAY"},
    {"Pattern.WATER", "FileName", "Music/Water.ogg"},
    {"Pattern.WATER", "NextPatternName", "WATER"},
    {"Pattern.GAMEOVER", "FileName", "Music/GameOver.ogg"},
    {"Pattern.GAMEOVER", "NextPatternName", "GAMEOVER"},
    {"Pattern.INVINCIBILITY", "FileName", "Music/Invincibility.ogg"},
    {"Pattern.INVINCIBILITY", "NextPatternName", "INVINCIBILITY"},
    {"Pattern.DUALWEAPON", "FileName", "Music/DualWeapon.ogg"},
    {"Pattern.DUALWEAPON", "NextPatternName", "DUALWEAPON"},
}};

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

/// Appends the pattern of a section, or leaves it out; what is worth a line is logged.
void LoadPattern(const quillINI::IniDocument &Document, const std::string &Section, MusicRuntime &Runtime) {
    const auto read = [&](const char *Key, const std::string &Default) {
        return quillINI::GetIniValue(Document, Section, Key, Default);
    };
    MusicPattern pattern;
    pattern.Name = read("PatternName", Section.substr(PatternPrefix.size()));
    if (pattern.Name.empty()) {
        return;
    }
    // Before the section may be switched off: one that is can still be reported, and that is meant.
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
    pattern.Audio = MIX_LoadAudio(Runtime.Mixer, pattern.ResolvedPath.c_str(), false); // decoded as it plays
    if (pattern.Audio == nullptr) {
        SDL_Log("MIX_LoadAudio failed for pattern '%s' (configured='%s', resolved='%s'): %s",
            pattern.Name.c_str(), fileName.c_str(), pattern.ResolvedPath.c_str(), SDL_GetError());
        return;
    }
    Runtime.Player.Patterns.push_back(std::move(pattern));
}

void LoadPatterns(const quillINI::IniDocument &Document, MusicRuntime &Runtime) {
    for (const quillINI::IniSection &section : Document.Sections) {
        if (section.Name != quillINI::IniGlobalSection && section.Name.starts_with(PatternPrefix)) {
            LoadPattern(Document, section.Name, Runtime);
        }
    }
}

/// Gives every role a pattern that exists. A fallback is not looked at again.
void MendRoles(MusicRuntime &Runtime) {
    for (const MusicRole &role : Roles) {
        std::string &pattern = Runtime.*role.Pattern;
        if (!pattern.empty() && FindMusicPattern(Runtime.Player, pattern) != nullptr) {
            continue;
        }
        const std::string &fallback =
            role.Fallback != nullptr ? Runtime.*role.Fallback : Runtime.Player.Patterns.front().Name;
        SDL_Log("Music pattern '%s' points to missing pattern '%s'; using '%s' instead", role.Key,
            pattern.c_str(), fallback.c_str());
        pattern = fallback;
    }
}

void MendChain(MusicPlayer &Player) {
    for (MusicPattern &pattern : Player.Patterns) {
        if (pattern.NextName.empty() || FindMusicPattern(Player, pattern.NextName) == nullptr) {
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
    for (const DefaultValue &value : DefaultMusic) {
        quillINI::SetIniValue(Document, value.Section, value.Key, value.Value, false);
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
