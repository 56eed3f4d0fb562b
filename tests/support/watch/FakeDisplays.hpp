#pragma once

#include <SDL3/SDL.h>

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

/// While it lives, the program is told of these displays instead of the real ones. Only one lives at a time.
class FakeDisplays {
public:
    FakeDisplays();
    ~FakeDisplays();
    FakeDisplays(const FakeDisplays &) = delete;
    FakeDisplays &operator=(const FakeDisplays &) = delete;

    /// The living one, or null.
    static FakeDisplays *Living();

    /// Appends a display with a desktop of this size, and gives it to change.
    FakeDisplay &Add(SDL_DisplayID Id, int Width, int Height);

    const FakeDisplay *Find(SDL_DisplayID Id) const;

    /// The lists as SDL gives them out: one allocation each, to be freed with SDL_free.
    SDL_DisplayID *ListDisplays(int *Count);
    SDL_DisplayMode **ListModes(SDL_DisplayID Id, int *Count);

    /// For the watched SDL_free.
    void NoticeFree(void *Memory);

    SDL_DisplayID Primary = 0;
    SDL_DisplayID OfWindow = 0; ///< what any window is told to be on
    std::vector<FakeDisplay> List;
    std::set<void *> Lent; ///< lists given out and not freed yet
};

/// A mode of a size and a rate in Hz, with the exact rate as a fraction where one is given.
SDL_DisplayMode Mode(int Width, int Height, float Rate, int Numerator = 0, int Denominator = 0);
