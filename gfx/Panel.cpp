#include "gfx/Panel.hpp"

#include "gfx/Draw.hpp"
#include "state/LogicalScreen.hpp"

#include <algorithm>

namespace {

constexpr float BorderWidth = 2.0F;
constexpr std::uint32_t BorderColor = 0xB44E4E4E;
constexpr float ScreenMargins = 80.0F; ///< left and right together

} // namespace

Panel PlacePanel(float ContentWidth, float Padding, float MinWidth, float Height) {
    const auto screenWidth = static_cast<float>(LogicalWidth);
    Panel panel;
    panel.Width = std::min(std::max(ContentWidth + Padding, MinWidth), screenWidth - ScreenMargins);
    panel.Height = Height;
    panel.X = (screenWidth - panel.Width) * 0.5F;
    panel.Y = (LogicalHeightF - panel.Height) * 0.5F;
    return panel;
}

void DrawPanel(SDL_Renderer *Renderer, const Panel &Box, std::uint32_t VeilColor) {
    FillRect(Renderer, Box.X - BorderWidth, Box.Y - BorderWidth, Box.Width + 2.0F * BorderWidth,
        Box.Height + 2.0F * BorderWidth, BorderColor);
    FillRect(Renderer, Box.X, Box.Y, Box.Width, Box.Height, VeilColor);
}
