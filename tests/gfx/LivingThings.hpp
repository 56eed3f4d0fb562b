#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <algorithm>
#include <tuple>

/// What calls have handed out, or what calls have taken; null is nothing.
template <typename Call> int HandedOut(const Call &Creation) {
    return static_cast<int>(std::ranges::count_if(Creation.Results, [](const auto *Thing) {
        return Thing != nullptr;
    }));
}
template <typename Call> int Taken(const Call &Destruction) {
    return static_cast<int>(std::ranges::count_if(Destruction.Calls, [](const auto &Arguments) {
        return std::get<0>(Arguments) != nullptr;
    }));
}

/// How many textures or surfaces were handed out and not destroyed, as far as a watch has noted it.
inline int LivingTextures(const SdlWatch &Watch) {
    return HandedOut(Watch.CreateTexture) - Taken(Watch.DestroyTexture);
}
inline int LivingSurfaces(const SdlWatch &Watch) {
    return HandedOut(Watch.CreateSurface) + HandedOut(Watch.RenderReadPixels) - Taken(Watch.DestroySurface);
}
