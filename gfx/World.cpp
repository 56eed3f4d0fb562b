#include "gfx/World.hpp"

#include "gfx/Entities.hpp"
#include "gfx/Hud.hpp"
#include "gfx/Scenery.hpp"

void RenderGameplay(SDL_Renderer *Renderer, const GameState &State) {
    DrawScenery(Renderer, State);
    DrawEntities(Renderer, State);
    DrawHud(Renderer, State);
    // NOT-BUGS: A bomb's blast covers the HUD
    DrawGameplayOverlays(Renderer, State);
}
