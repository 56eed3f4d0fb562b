#include "bench/DrawCalls.hpp"

#include <optional>

// The linker sends the game's drawing calls here (see CMakeLists.txt); outside of a recording they go
// straight on.

Uint64 LastPresent = 0;

namespace {

DrawCalls *Recording = nullptr;

template <typename Call> void Record(Call Recorded) {
    if (Recording != nullptr) {
        Recording->emplace_back(Recorded);
    }
}

template <typename Value> std::optional<Value> CopyOf(const Value *Pointer) {
    return Pointer != nullptr ? std::optional<Value>(*Pointer) : std::nullopt;
}

template <typename Value> const Value *AddressOf(const std::optional<Value> &Copy) {
    return Copy ? &*Copy : nullptr;
}

} // namespace

DrawCalls RecordDrawCalls(const std::function<void()> &Draw) {
    DrawCalls calls;
    Recording = &calls;
    Draw();
    Recording = nullptr;
    return calls;
}

// NOLINTBEGIN(readability-identifier-naming): the linker gives these names.
extern "C" {
bool __real_SDL_RenderTexture(SDL_Renderer *, SDL_Texture *, const SDL_FRect *, const SDL_FRect *);
bool __real_SDL_RenderFillRect(SDL_Renderer *, const SDL_FRect *);
bool __real_SDL_RenderClear(SDL_Renderer *);
bool __real_SDL_SetRenderDrawColor(SDL_Renderer *, Uint8, Uint8, Uint8, Uint8);
bool __real_SDL_SetRenderClipRect(SDL_Renderer *, const SDL_Rect *);
bool __real_SDL_SetTextureColorMod(SDL_Texture *, Uint8, Uint8, Uint8);
bool __real_SDL_SetTextureAlphaMod(SDL_Texture *, Uint8);
bool __real_SDL_RenderPresent(SDL_Renderer *);

bool __wrap_SDL_RenderTexture(
    SDL_Renderer *Renderer, SDL_Texture *Texture, const SDL_FRect *Source, const SDL_FRect *Target) {
    Record([Texture, source = CopyOf(Source), target = CopyOf(Target)](SDL_Renderer *Other) {
        __real_SDL_RenderTexture(Other, Texture, AddressOf(source), AddressOf(target));
    });
    return __real_SDL_RenderTexture(Renderer, Texture, Source, Target);
}

bool __wrap_SDL_RenderFillRect(SDL_Renderer *Renderer, const SDL_FRect *Rect) {
    Record([rect = CopyOf(Rect)](SDL_Renderer *Other) {
        __real_SDL_RenderFillRect(Other, AddressOf(rect));
    });
    return __real_SDL_RenderFillRect(Renderer, Rect);
}

bool __wrap_SDL_RenderClear(SDL_Renderer *Renderer) {
    Record([](SDL_Renderer *Other) {
        __real_SDL_RenderClear(Other);
    });
    return __real_SDL_RenderClear(Renderer);
}

bool __wrap_SDL_SetRenderDrawColor(SDL_Renderer *Renderer, Uint8 R, Uint8 G, Uint8 B, Uint8 A) {
    Record([R, G, B, A](SDL_Renderer *Other) {
        __real_SDL_SetRenderDrawColor(Other, R, G, B, A);
    });
    return __real_SDL_SetRenderDrawColor(Renderer, R, G, B, A);
}

bool __wrap_SDL_SetRenderClipRect(SDL_Renderer *Renderer, const SDL_Rect *Rect) {
    Record([rect = CopyOf(Rect)](SDL_Renderer *Other) {
        __real_SDL_SetRenderClipRect(Other, AddressOf(rect));
    });
    return __real_SDL_SetRenderClipRect(Renderer, Rect);
}

bool __wrap_SDL_SetTextureColorMod(SDL_Texture *Texture, Uint8 R, Uint8 G, Uint8 B) {
    Record([Texture, R, G, B](SDL_Renderer *) {
        __real_SDL_SetTextureColorMod(Texture, R, G, B);
    });
    return __real_SDL_SetTextureColorMod(Texture, R, G, B);
}

bool __wrap_SDL_SetTextureAlphaMod(SDL_Texture *Texture, Uint8 Alpha) {
    Record([Texture, Alpha](SDL_Renderer *) {
        __real_SDL_SetTextureAlphaMod(Texture, Alpha);
    });
    return __real_SDL_SetTextureAlphaMod(Texture, Alpha);
}

bool __wrap_SDL_RenderPresent(SDL_Renderer *Renderer) {
    const bool presented = __real_SDL_RenderPresent(Renderer);
    LastPresent = SDL_GetPerformanceCounter();
    return presented;
}
}
// NOLINTEND(readability-identifier-naming)
