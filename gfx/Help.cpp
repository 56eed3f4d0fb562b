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

constexpr std::array<HelpLine, 3> LinesAboveItems{{
    {TextKey::HelpTitle, PageTitleY, TitleScale, PageTitleColor},
    {TextKey::HelpIntro, 124.0F, PageScale, BodyColor},
    {TextKey::HelpItemsTitle, 192.0F, MenuScale, BodyColor},
}};

constexpr std::array<HelpLine, 2> LinesBelowItems{{
    {TextKey::HelpTipBombs, 348.0F, PageScale, BodyColor},
    {TextKey::HelpTipFirstAid, 416.0F, PageScale, BodyColor},
}};

struct HelpItem {
    SpriteId Sprite;
    TextKey Name;
};

constexpr std::array<HelpItem, 4> Items{{
    {SpriteItemFirstAid, TextKey::HelpItemFirstAid},
    {SpriteItemBomb, TextKey::HelpItemBomb},
    {SpriteItemInvincibility, TextKey::HelpItemInvincibility},
    {SpriteItemDualWeapon, TextKey::HelpItemDualWeapon},
}};

constexpr float ItemY = 258.0F;
constexpr float ItemSize = 24.0F;
constexpr float ItemNameY = 280.0F;
constexpr int ItemNameScale = 2;
constexpr float MinItemStep = 32.0F;
constexpr float NameGap = 20.0F;
constexpr float ScreenMargin = 20.0F;
constexpr float HintY = 470.0F;
constexpr float DeviceLineY = 498.0F;

float NameWidth(const HelpItem &Item) {
    return static_cast<float>(MeasureText(GetText(Item.Name), ItemNameScale));
}

/// The distance from item to item: as far as neighbouring names ask, but no farther than the screen has room.
/// Names too wide for that overlap rather than leave the screen.
float ItemStep() {
    float wanted = MinItemStep;
    float widest = NameWidth(Items[0]);
    for (std::size_t i = 1; i < Items.size(); ++i) {
        wanted = std::max(wanted, (NameWidth(Items[i - 1]) + NameWidth(Items[i])) * 0.5F + NameGap);
        widest = std::max(widest, NameWidth(Items[i]));
    }
    const float margin = std::max(ItemSize * 0.5F, widest * 0.5F) + ScreenMargin;
    const float room = std::max((static_cast<float>(LogicalWidth) - 2.0F * margin) / 3.0F, MinItemStep);
    return std::min(room, wanted);
}

void DrawLines(SDL_Renderer *Renderer, std::span<const HelpLine> Lines) {
    for (const HelpLine &line : Lines) {
        DrawTextCentered(Renderer, GetText(line.Text), ScreenCenterX(), line.Y, line.Scale, line.Color);
    }
}

void DrawItems(SDL_Renderer *Renderer) {
    const float step = ItemStep();
    const auto itemX = [step](std::size_t Index) {
        return ScreenCenterX() - 1.5F * step + static_cast<float>(Index) * step;
    };
    for (std::size_t i = 0; i < Items.size(); ++i) {
        DrawSprite(Renderer, Items[i].Sprite, itemX(i), ItemY, ItemSize, ItemSize);
    }
    for (std::size_t i = 0; i < Items.size(); ++i) {
        DrawTextCentered(
            Renderer, GetText(Items[i].Name), itemX(i), ItemNameY, ItemNameScale, OtherNameColor);
    }
}

} // namespace

void RenderHelp(SDL_Renderer *Renderer, const GameState &State, const InputDevices &Devices) {
    const bool isInRun = State.HelpReturnScreen == ScreenPaused;
    const TextKey hint = isInRun ? TextKey::HelpHintBackToPauseMenu : TextKey::HelpHintBackToMainMenu;
    const std::string &back =
        GetText(isInRun ? TextKey::ControllerHintPauseMenu : TextKey::ControllerHintMainMenu);
    ClearToBlack(Renderer);
    DrawLines(Renderer, LinesAboveItems);
    DrawItems(Renderer);
    DrawLines(Renderer, LinesBelowItems);
    DrawHint(Renderer, GetText(hint), ScreenCenterX(), HintY);
    DrawHint(Renderer, ControllerHint(State, Devices, back, back), ScreenCenterX(), DeviceLineY);
}
