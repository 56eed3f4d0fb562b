#include "gfx/Credits.hpp"

#include "gfx/FontGlyphs.hpp"
#include "gfx/MenuStyle.hpp"
#include "gfx/Text.hpp"
#include "state/GameState.hpp"
#include "text/Localization.hpp"

#include <array>

namespace {

constexpr float FirstLineY = 760.0F; ///< before any scroll: below the screen
constexpr float NameDrop = 38.0F;    ///< below its heading
constexpr const char *Name = "Tomas \"Orrin\" Ardell";

struct Credit {
    float Drop; ///< below the first line
    TextKey Heading;
};

constexpr auto CreditTable = std::to_array<Credit>({
    {0.0F, TextKey::CreditsProgrammedBy},
    {114.0F, TextKey::CreditsGfxBy},
    {228.0F, TextKey::CreditsSfxMusicBy},
});

static_assert(FirstLineY + CreditTable.back().Drop + NameDrop + MenuScale * GlyphRows <= CreditsScrollEnd,
    "the last name has left the screen before the credits end");

} // namespace

void RenderCredits(SDL_Renderer *Renderer, const GameState &State) {
    const float centerX = ScreenCenterX();
    const float base = FirstLineY - State.CreditsScroll;
    const BlackPage page(Renderer);
    for (const Credit &credit : CreditTable) {
        DrawTextCentered(
            Renderer, GetText(credit.Heading), centerX, base + credit.Drop, MenuScale, SelectedColor);
        DrawTextCentered(Renderer, Name, centerX, base + (credit.Drop + NameDrop), MenuScale, NameColor);
    }
}
