#include "tests/faults/LostPatterns.hpp"

#include <array>

namespace {

struct Pattern {
    std::string_view Name;
    std::string_view File;
    std::string_view Role;     ///< that points to it, if one does
    std::string_view Fallback; ///< of that role
    std::string_view Before;   ///< the pattern that it follows, if not itself
};

constexpr std::array<Pattern, 12> Patterns{{
    {"MENU", "Music/MenuCredits.ogg", "MenuPattern", "MENU_B", "MENU_B"}, // then the first that there is
    {"MENU_B", "Music/MenuCreditsB.ogg", "", "", "MENU"},
    {"GAMEPLAY", "Music/Gameplay.ogg", "GameplayPattern", "MENU", "GAMEPLAY_B"},
    {"GAMEPLAY_B", "Music/GameplayB.ogg", "", "", "GAMEPLAY"},
    {"WATER", "Music/Water.ogg", "WaterPattern", "GAMEPLAY", "WATER_B"},
    {"WATER_B", "Music/WaterB.ogg", "", "", "WATER"},
    {"GAMEOVER", "Music/GameOver.ogg", "GameOverPattern", "GAMEPLAY", "GAMEOVER_B"},
    {"GAMEOVER_B", "Music/GameOverB.ogg", "", "", "GAMEOVER"},
    {"INVINCIBILITY", "Music/Invincibility.ogg", "InvincibilityPattern", "GAMEPLAY", "INVINCIBILITY_B"},
    {"INVINCIBILITY_B", "Music/InvincibilityB.ogg", "", "", "INVINCIBILITY"},
    {"DUALWEAPON", "Music/DualWeapon.ogg", "DualWeaponPattern", "GAMEPLAY", "DUALWEAPON_B"},
    {"DUALWEAPON_B", "Music/DualWeaponB.ogg", "", "", "DUALWEAPON"},
}};

std::string Quoted(std::string_view Text) {
    return "'" + std::string(Text) + "'";
}

std::string WhyLost(std::string_view Function, const Pattern &Lost) {
    if (Function == "SDL_GetBasePath") {
        return "Music pattern " + Quoted(Lost.Name) + " has unsafe FileName " + Quoted(Lost.File) +
               "; skipping";
    }
    return "MIX_LoadAudio failed for pattern " + Quoted(Lost.Name) + " (configured=" + Quoted(Lost.File) +
           ", resolved='*/" + std::string(Lost.File) + "'): refused for the test";
}

} // namespace

std::vector<std::string> LinesWithoutPattern(std::string_view Function, int Call) {
    const Pattern &lost = Patterns.at(static_cast<std::size_t>(Call) - 1);
    std::vector<std::string> lines{WhyLost(Function, lost)};
    if (!lost.Role.empty()) {
        lines.push_back("Music pattern " + Quoted(lost.Role) + " points to missing pattern " +
                        Quoted(lost.Name) + "; using " + Quoted(lost.Fallback) + " instead");
    }
    if (!lost.Before.empty()) {
        lines.push_back("Music pattern " + Quoted(lost.Before) + " has missing NextPatternName " +
                        Quoted(lost.Name) + "; using self loop");
    }
    return lines;
}
