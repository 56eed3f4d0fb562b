#include "gfx/OptionsRows.hpp"

#include "gfx/MenuStyle.hpp"
#include "gfx/Text.hpp"
#include "text/Localization.hpp"

#include <algorithm>

namespace {

constexpr float FirstRowY = 150.0F;
constexpr int ColumnGap = 32;

struct Columns {
    float LabelX;
    float ValueX;
};

Columns PlaceColumns(std::span<const OptionsRow> Rows) {
    int labelWidth = 0;
    int valueWidth = 0;
    for (const OptionsRow &row : Rows) {
        labelWidth = std::max(labelWidth, MeasureText(GetText(row.Label), PageScale));
        valueWidth = std::max(valueWidth, MeasureText(row.Value, PageScale));
    }
    const float labelX = ScreenCenterX() - static_cast<float>(labelWidth + ColumnGap + valueWidth) * 0.5F;
    return {labelX, labelX + static_cast<float>(labelWidth + ColumnGap)};
}

} // namespace

void DrawOptionsRows(SDL_Renderer *Renderer, std::span<const OptionsRow> Rows, std::int32_t Selection) {
    const Columns columns = PlaceColumns(Rows);
    for (std::size_t i = 0; i < Rows.size(); ++i) {
        const float y = FirstRowY + static_cast<float>(i) * OptionsRowStyle.Distance;
        const bool selected = static_cast<std::int32_t>(i) == Selection;
        DrawMenuRow(
            Renderer, GetText(Rows[i].Label), Rows[i].Value, y, selected, columns.LabelX, columns.ValueX);
    }
}

void DrawMenuRow(SDL_Renderer *Renderer, std::string_view Label, std::string_view Value, float Y,
    bool Selected, float LabelX, float ValueX) {
    DrawMarkedLabel(Renderer, Label, LabelX, Y, Selected, OptionsRowStyle);
    DrawText(Renderer, Value, ValueX, Y, OptionsRowStyle.Scale,
        Selected ? SelectedColor : OptionsRowStyle.UnselectedColor);
}

void DrawValueHints(SDL_Renderer *Renderer, std::string_view DeviceLine, float FirstY, float SecondY) {
    const std::string_view keys = GetText(TextKey::OptionsHintEnterSelectEscBack);
    DrawHint(Renderer, GetText(TextKey::OptionsHintLeftRightChange), ScreenCenterX(), FirstY);
    DrawHint(Renderer, DeviceLine.empty() ? keys : DeviceLine, ScreenCenterX(), SecondY);
}

const std::string &SwitchText(bool On) {
    return GetText(On ? TextKey::CommonOn : TextKey::CommonOff);
}
