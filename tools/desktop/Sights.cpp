#include "tools/desktop/Sights.hpp"

#include <algorithm>
#include <cstdint>

bool ShowsAnything(const Screenshot &Seen) {
    return std::ranges::any_of(Seen.Pixels, [](std::uint32_t Dot) {
        return Dot != 0;
    });
}

Sight ScreenIs(SeenScreen Screen) {
    return [Screen](const Screenshot &Seen) {
        return FindScreen(Seen) == Screen;
    };
}

Sight MenuIs(SeenScreen Screen, int Rows, int Selected) {
    return [wanted = SeenMenu{Screen, Rows, Selected}](const Screenshot &Seen) {
        return FindMenu(Seen) == wanted;
    };
}
