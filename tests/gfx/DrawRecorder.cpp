#include "tests/gfx/DrawRecorder.hpp"

#include <gtest/gtest.h>

namespace {

DrawnLetter LetterOf(const std::vector<SDL_FRect> &Squares) {
    DrawnLetter letter{Squares.front(), Squares.front().w};
    for (const SDL_FRect &square : Squares) {
        SDL_GetRectUnionFloat(&letter.Ink, &square, &letter.Ink);
        EXPECT_EQ(square.w, letter.Square);
        EXPECT_EQ(square.h, letter.Square);
    }
    return letter;
}

} // namespace

DrawRecorder::DrawRecorder(SdlWatch &Answering) : Watch(Answering) {
    Watch.SetRenderDrawColor.Before = [this](SDL_Renderer *, Uint8, Uint8, Uint8, Uint8) {
        Things.emplace_back();
    };
    Watch.RenderFillRect.Answer = [this](SDL_Renderer *, const SDL_FRect *Rectangle) {
        Things.back().push_back(*Rectangle);
        return true;
    };
    Watch.RenderTexture.Answer = [this](SDL_Renderer *, SDL_Texture *, const SDL_FRect *,
                                     const SDL_FRect *Target) {
        Sprites.push_back(*Target);
        return true;
    };
}

DrawRecorder::~DrawRecorder() {
    Watch.SetRenderDrawColor.Before = nullptr;
    Watch.RenderFillRect.Answer = nullptr;
    Watch.RenderTexture.Answer = nullptr;
}

DrawnFrame DrawRecorder::Frame() const {
    DrawnFrame frame;
    frame.Sprites = Sprites;
    for (const std::vector<SDL_FRect> &thing : Things) {
        if (thing.size() == 1) {
            frame.Rectangles.push_back(thing.front());
        } else if (thing.size() > 1) {
            frame.Letters.push_back(LetterOf(thing));
        }
    }
    return frame;
}
