#pragma once

#include "text/TextKeys.hpp"

#include <SDL3/SDL.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

// What the screens around a run have in common. Colours are 0xAABBGGRR.

inline constexpr std::uint32_t SelectedColor = 0xFFF5F5F5;  ///< the selected row and its marker, headings
inline constexpr std::uint32_t RowColor = 0xFFB4B4B4;       ///< other rows of options and pause panel
inline constexpr std::uint32_t NameColor = 0xFFB9B9B9;      ///< other rows of the main menu, names elsewhere
inline constexpr std::uint32_t PageTitleColor = 0xFFF0F0F0; ///< options and help
inline constexpr std::uint32_t SectionColor = 0xFFFFAF69;   ///< section headings of the options
inline constexpr std::uint32_t BodyColor = 0xFFDCDCDC;      ///< text of the help page
inline constexpr std::uint32_t HintColor = 0xFFE1E1E1;
inline constexpr std::uint32_t PromptColor = 0xFFAAFF78; ///< what a binding capture waits for

inline constexpr int TitleScale = 6; ///< of pages and panels
inline constexpr float PageTitleY = 42.0F;
inline constexpr int MenuScale = 4; ///< rows of the main menu and the pause panel, headings, credits
inline constexpr int PageScale = 3; ///< rows and text of the pages
inline constexpr int HintScale = 2;

/// What stands before the selected row.
inline constexpr std::string_view RowMarker = ">";
inline constexpr int RowMarkerScale = 3;

/// How a kind of menu draws its rows, in logical pixels.
struct RowStyle {
    int Scale;
    float Distance;   ///< from one row's top to the next
    float MarkerGap;  ///< from the marker's left edge to the label's
    float MarkerDrop; ///< from the label's top to the marker's
    std::uint32_t UnselectedColor;
};

// NOT-BUGS: The marker stands 28 pixels before a row of the main menu
inline constexpr RowStyle MainMenuRowStyle{MenuScale, 36.0F, 28.0F, 4.0F, NameColor};
inline constexpr RowStyle PauseRowStyle{MenuScale, 48.0F, 27.0F, 4.0F, RowColor};
inline constexpr RowStyle OptionsMainRowStyle{PageScale, 34.0F, 27.0F, 0.0F, RowColor};
inline constexpr RowStyle OptionsRowStyle{PageScale, 34.0F, 24.0F, 0.0F, RowColor};

/// The x of the logical screen's middle.
float ScreenCenterX();

/// Covers the whole logical screen in black. While it lives, fills are drawn without blending: all of a page
/// are opaque and so look the same, a software renderer is many times faster, and one batch holds the black
/// and the text.
class BlackPage {
public:
    explicit BlackPage(SDL_Renderer *Renderer);
    ~BlackPage();
    BlackPage(const BlackPage &) = delete;
    BlackPage &operator=(const BlackPage &) = delete;

private:
    SDL_Renderer *Target;
    SDL_BlendMode OldMode = SDL_BLENDMODE_BLEND;
};

/// The width of the widest of some texts in logical pixels.
int WidestText(std::span<const TextKey> Keys, int Scale);

/// The width of the widest of some hint lines in logical pixels.
int WidestHint(std::initializer_list<std::string_view> Hints);

/// Draws a row's label at (X, Y), behind the marker if it is selected.
void DrawMarkedLabel(
    SDL_Renderer *Renderer, std::string_view Label, float X, float Y, bool Selected, const RowStyle &Style);

/// Draws a menu of labels alone, the first at Top, all from the left edge of the widest, which is centred
/// about CenterX. A Selected that is no row marks none.
void DrawLabelRows(SDL_Renderer *Renderer, std::span<const TextKey> Labels, std::size_t Selected,
    float CenterX, float Top, const RowStyle &Style);

/// Draws a hint line centred about CenterX.
void DrawHint(SDL_Renderer *Renderer, std::string_view Hint, float CenterX, float Y,
    std::uint32_t PackedColor = HintColor);
