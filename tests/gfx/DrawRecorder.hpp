#pragma once

#include "tests/support/watch/SdlWatch.hpp"

#include <vector>

/// A letter as it was drawn.
struct DrawnLetter {
    SDL_FRect Ink; ///< the box around its squares
    float Square;  ///< their side
};

/// What was drawn between two moments, each kind in the order of drawing, in logical pixels.
struct DrawnFrame {
    std::vector<DrawnLetter> Letters;
    std::vector<SDL_FRect> Rectangles; ///< such as bars and panels
    std::vector<SDL_FRect> Sprites;
};

/// While it lives, a watch writes rectangles and sprites down here instead of letting them be drawn.
class DrawRecorder {
public:
    explicit DrawRecorder(SdlWatch &Answering);
    ~DrawRecorder();
    DrawRecorder(const DrawRecorder &) = delete;
    DrawRecorder &operator=(const DrawRecorder &) = delete;

    /// What has been drawn up to now. Each colour is set for one thing: for a letter, which is of many
    /// squares, or for one rectangle.
    DrawnFrame Frame() const;

private:
    SdlWatch &Watch;
    std::vector<std::vector<SDL_FRect>> Things;
    std::vector<SDL_FRect> Sprites;
};
