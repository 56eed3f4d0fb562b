#include "gfx/Help.hpp"

#include "gfx/Draw.hpp"
#include "gfx/MenuStyle.hpp"
#include "gfx/Text.hpp"
#include "input/ControllerHint.hpp"
#include "state/GameState.hpp"
#include "state/LogicalScreen.hpp"
#include "text/Localization.hpp"

#include <algorithm>
#include <array>

namespace {

/// One line of the page, centred.
struct HelpLine {
    TextKey Text;
    float Y;
    int Scale;
    std::uint32_t Color;
};

constexpr auto LinesAboveItems = std::to_array<HelpLine>({
    {TextKey::HelpTitle, PageTitleY, TitleScale, PageTitleColor},
    {TextKey::HelpIntro, 124.0F, PageScale, BodyColor},
    {TextKey::HelpItemsTitle, 192.0F, MenuScale, BodyColor},
});

constexpr auto LinesBelowItems = std::to_array<HelpLine>({
    {TextKey::HelpTipBombs, 348.0F, PageScale, BodyColor},
    {TextKey::HelpTipFirstAid, 416.0F, PageScale, BodyColor},
});

struct HelpItem {
    SpriteId Sprite;
    TextKey Name;
};

constexpr auto Items = std::to_array<HelpItem>({
    {SpriteItemFirstAid, TextKey::HelpItemFirstAid},
    {SpriteItemBomb, TextKey::HelpItemBomb},
    {SpriteItemInvincibility, TextKey::HelpItemInvincibility},
    {SpriteItemDualWeapon, TextKey::HelpItemDualWeapon},
});
constexpr auto StepCount = static_cast<float>(Items.size() - 1); ///< from the first item to the last

constexpr float ItemY = 258.0F;
constexpr float ItemSize = 24.0F;
constexpr float ItemNameY = 280.0F;
constexpr int ItemNameScale = 2;
constexpr float MinItemStep = 32.0F;
constexpr float NameGap = 20.0F;      ///< between neighbouring names
constexpr float ScreenMargin = 20.0F; ///< left and right
constexpr float HintY = 470.0F;
constexpr float DeviceLineY = 498.0F;

float NameWidth(std::size_t Index) {
    return static_cast<float>(MeasureText(GetText(Items[Index].Name), ItemNameScale));
}

/// The distance from item to item: wide enough for neighbouring names, but not wider than lets the outer ones
/// stay on the screen, as long as that leaves MinItemStep. Names too wide for both overlap.
float ItemStep() {
    float wanted = MinItemStep;
    float widest = NameWidth(0);
    for (std::size_t i = 1; i < Items.size(); ++i) {
        wanted = std::max(wanted, (NameWidth(i - 1) + NameWidth(i)) * 0.5F + NameGap);
        widest = std::max(widest, NameWidth(i));
    }
    const float margin = std::max(ItemSize, widest) * 0.5F + ScreenMargin;
    const float room = (static_cast<float>(LogicalWidth) - 2.0F * margin) / StepCount;
    return std::min(std::max(room, MinItemStep), wanted);
}

void DrawLines(SDL_Renderer *Renderer, std::span<const HelpLine> Lines) {
    for (const HelpLine &line : Lines) {
        DrawTextCentered(Renderer, GetText(line.Text), ScreenCenterX(), line.Y, line.Scale, line.Color);
    }
}

void DrawItems(SDL_Renderer *Renderer) {
    const float step = ItemStep();
    const float firstX = ScreenCenterX() - StepCount * 0.5F * step;
    const auto itemX = [firstX, step](std::size_t Index) {
        return firstX + static_cast<float>(Index) * step;
    };
    for (std::size_t i = 0; i < Items.size(); ++i) {
        DrawSprite(Renderer, Items[i].Sprite, itemX(i), ItemY, ItemSize, ItemSize);
    }
    for (std::size_t i = 0; i < Items.size(); ++i) {
        DrawTextCentered(Renderer, GetText(Items[i].Name), itemX(i), ItemNameY, ItemNameScale, NameColor);
    }
}

} // namespace

void RenderHelp(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const bool isInRun = State.HelpReturnScreen == ScreenPaused;
    const TextKey hint = isInRun ? TextKey::HelpHintBackToPauseMenu : TextKey::HelpHintBackToMainMenu;
    const std::string &back =
        GetText(isInRun ? TextKey::ControllerHintPauseMenu : TextKey::ControllerHintMainMenu);
    const BlackPage page(Renderer);
    DrawLines(Renderer, LinesAboveItems);
    DrawItems(Renderer);
    DrawLines(Renderer, LinesBelowItems);
    DrawHint(Renderer, GetText(hint), ScreenCenterX(), HintY);
    DrawHint(Renderer, ControllerHint(State, Devices, back, back), ScreenCenterX(), DeviceLineY);
}
