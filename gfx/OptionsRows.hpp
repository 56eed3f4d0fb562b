#pragma once

#include "text/TextKeys.hpp"

#include <SDL3/SDL.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// A row of a page of options: its label, and its value, which may be empty.
struct OptionsRow {
    TextKey Label;
    std::string Value;
};

/// The tops of the two hints below ten rows.
inline constexpr float OptionsFirstHintY = 498.0F;
inline constexpr float OptionsSecondHintY = 526.0F;

/// Draws a page's rows, their two columns centred together by the widest label and the widest value.
void DrawOptionsRows(SDL_Renderer *Renderer, std::span<const OptionsRow> Rows, std::int32_t Selection);

/// Draws one row of a page of options in two columns, with the marker before a selected one.
void DrawMenuRow(SDL_Renderer *Renderer, std::string_view Label, std::string_view Value, float Y,
    bool Selected, float LabelX, float ValueX);

/// Draws the hints of a page of values: how to change one, and the device line or, without one, the keys.
void DrawValueHints(SDL_Renderer *Renderer, std::string_view DeviceLine, float FirstY, float SecondY);

/// The word for a switch that is on or off. The reference holds until a language is loaded.
const std::string &SwitchText(bool On);
