#include "tests/gfx/DrawRecorder.hpp"

#include <gtest/gtest.h>

namespace {

DrawRecorder *LivingRecorder = nullptr;

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

DrawRecorder::DrawRecorder() {
    EXPECT_EQ(LivingRecorder, nullptr);
    LivingRecorder = this;
}

DrawRecorder::~DrawRecorder() {
    LivingRecorder = nullptr;
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

// The linker sends each call of SDL_Xxx to __wrap_SDL_Xxx and knows SDL's own function as __real_SDL_Xxx.
extern "C" {
bool __real_SDL_SetRenderDrawColor(SDL_Renderer *, Uint8, Uint8, Uint8, Uint8);
bool __real_SDL_RenderFillRect(SDL_Renderer *, const SDL_FRect *);
bool __real_SDL_RenderTexture(SDL_Renderer *, SDL_Texture *, const SDL_FRect *, const SDL_FRect *);

bool __wrap_SDL_SetRenderDrawColor(SDL_Renderer *Renderer, Uint8 Red, Uint8 Green, Uint8 Blue, Uint8 Alpha) {
    if (LivingRecorder != nullptr) {
        LivingRecorder->SetColor();
    }
    return __real_SDL_SetRenderDrawColor(Renderer, Red, Green, Blue, Alpha);
}

bool __wrap_SDL_RenderFillRect(SDL_Renderer *Renderer, const SDL_FRect *Rectangle) {
    if (LivingRecorder != nullptr) {
        LivingRecorder->FillRect(*Rectangle);
        return true;
    }
    return __real_SDL_RenderFillRect(Renderer, Rectangle);
}

bool __wrap_SDL_RenderTexture(
    SDL_Renderer *Renderer, SDL_Texture *Texture, const SDL_FRect *Source, const SDL_FRect *Target) {
    if (LivingRecorder != nullptr) {
        LivingRecorder->DrawSprite(*Target);
        return true;
    }
    return __real_SDL_RenderTexture(Renderer, Texture, Source, Target);
}
}
