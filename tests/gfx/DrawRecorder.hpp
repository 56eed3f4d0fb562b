#pragma once

#include <SDL3/SDL.h>

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

/// While it lives, rectangles and sprites are written down here instead of being drawn. Only one lives at a
/// time.
class DrawRecorder {
public:
    DrawRecorder();
    ~DrawRecorder();
    DrawRecorder(const DrawRecorder &) = delete;
    DrawRecorder &operator=(const DrawRecorder &) = delete;

    /// What has been drawn up to now. Each colour is set for one thing: for a letter, which is of many
    /// squares, or for one rectangle.
    DrawnFrame Frame() const;

    // For the watched calls themselves.
    void SetColor() {
        Things.emplace_back();
    }
    void FillRect(const SDL_FRect &Rectangle) {
        Things.back().push_back(Rectangle);
    }
    void DrawSprite(const SDL_FRect &Rectangle) {
        Sprites.push_back(Rectangle);
    }

private:
    std::vector<std::vector<SDL_FRect>> Things;
    std::vector<SDL_FRect> Sprites;
};
