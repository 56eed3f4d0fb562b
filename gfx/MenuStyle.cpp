#include "gfx/MenuStyle.hpp"

#include "gfx/Draw.hpp"
#include "gfx/Text.hpp"
#include "state/LogicalScreen.hpp"
#include "text/Localization.hpp"

#include <algorithm>

float ScreenCenterX() {
    return static_cast<float>(LogicalWidth) * 0.5F;
}

BlackPage::BlackPage(SDL_Renderer *Renderer) : Target(Renderer) {
    SDL_GetRenderDrawBlendMode(Target, &OldMode);
    SDL_SetRenderDrawBlendMode(Target, SDL_BLENDMODE_NONE);
    FillRect(Target, 0.0F, 0.0F, static_cast<float>(LogicalWidth), LogicalHeightF, 0xFF000000);
}

BlackPage::~BlackPage() {
    SDL_SetRenderDrawBlendMode(Target, OldMode);
}

int WidestText(std::span<const TextKey> Keys, int Scale) {
    int widest = 0;
    for (const TextKey key : Keys) {
        widest = std::max(widest, MeasureText(GetText(key), Scale));
    }
    return widest;
}

int WidestHint(std::initializer_list<std::string_view> Hints) {
    int widest = 0;
    for (const std::string_view hint : Hints) {
        widest = std::max(widest, MeasureText(hint, HintScale));
    }
    return widest;
}

void DrawMarkedLabel(
    SDL_Renderer *Renderer, std::string_view Label, float X, float Y, bool Selected, const RowStyle &Style) {
    if (Selected) {
        DrawText(
            Renderer, RowMarker, X - Style.MarkerGap, Y + Style.MarkerDrop, RowMarkerScale, SelectedColor);
    }
    DrawText(Renderer, Label, X, Y, Style.Scale, Selected ? SelectedColor : Style.UnselectedColor);
}

void DrawLabelRows(SDL_Renderer *Renderer, std::span<const TextKey> Labels, std::size_t Selected,
    float CenterX, float Top, const RowStyle &Style) {
    const float left = CenterX - static_cast<float>(WidestText(Labels, Style.Scale)) * 0.5F;
    for (std::size_t i = 0; i < Labels.size(); ++i) {
        const float y = Top + static_cast<float>(i) * Style.Distance;
        DrawMarkedLabel(Renderer, GetText(Labels[i]), left, y, i == Selected, Style);
    }
}

void DrawHint(
    SDL_Renderer *Renderer, std::string_view Hint, float CenterX, float Y, std::uint32_t PackedColor) {
    DrawTextCentered(Renderer, Hint, CenterX, Y, HintScale, PackedColor);
}
