#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <optional>
#include <set>
#include <vector>

/// One display of the made-up list.
struct FakeDisplay {
    SDL_DisplayID Id = 0;
    std::optional<SDL_DisplayMode> Desktop;
    std::optional<SDL_DisplayMode> Current;
    std::vector<SDL_DisplayMode> Modes; ///< the fullscreen modes; without any, asking for them fails
};

/// While it lives, a watch answers for these displays instead of the real ones.
class FakeDisplays {
public:
    explicit FakeDisplays(SdlWatch &Answering);
    ~FakeDisplays();
    FakeDisplays(const FakeDisplays &) = delete;
    FakeDisplays &operator=(const FakeDisplays &) = delete;

    /// Appends a display with a desktop of this size, and gives it to change before the next one is added.
    FakeDisplay &Add(SDL_DisplayID Id, int Width, int Height);

    /// Adds the only display: the primary one, and the one that every window is on.
    FakeDisplay &AddOnly(int Width, int Height);

    SDL_DisplayID Primary = 0;
    SDL_DisplayID OfWindow = 0; ///< what any window is told to be on
    std::vector<FakeDisplay> List;
    std::set<void *> Lent; ///< lists given out and not freed yet

private:
    const FakeDisplay *Find(SDL_DisplayID Id) const;

    /// The lists as SDL gives them out: one allocation each, to be freed with SDL_free.
    SDL_DisplayID *ListDisplays(int *Count);
    SDL_DisplayMode **ListModes(SDL_DisplayID Id, int *Count);

    SdlWatch &Watch;
};

/// A mode of a size and a rate in Hz, with the exact rate as a fraction where one is given.
SDL_DisplayMode Mode(int Width, int Height, float Rate, int Numerator = 0, int Denominator = 0);
