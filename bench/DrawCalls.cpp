#include "bench/DrawCalls.hpp"

#include "tests/support/watch/SdlWatch.hpp"

#include <optional>

namespace {

template <typename Value> std::optional<Value> CopyOf(const Value *Pointer) {
    return Pointer != nullptr ? std::optional<Value>(*Pointer) : std::nullopt;
}

template <typename Value> const Value *AddressOf(const std::optional<Value> &Copy) {
    return Copy ? &*Copy : nullptr;
}

void RecordRectangles(SdlWatch &Watch, DrawCalls &Calls) {
    Watch.RenderTexture.Before = [&Calls](SDL_Renderer *, SDL_Texture *Texture, const SDL_FRect *Source,
                                     const SDL_FRect *Target) {
        Calls.emplace_back([Texture, source = CopyOf(Source), target = CopyOf(Target)](SDL_Renderer *Other) {
            SDL_RenderTexture(Other, Texture, AddressOf(source), AddressOf(target));
        });
    };
    Watch.RenderFillRect.Before = [&Calls](SDL_Renderer *, const SDL_FRect *Rect) {
        Calls.emplace_back([rect = CopyOf(Rect)](SDL_Renderer *Other) {
            SDL_RenderFillRect(Other, AddressOf(rect));
        });
    };
    Watch.RenderClear.Before = [&Calls](SDL_Renderer *) {
        Calls.emplace_back([](SDL_Renderer *Other) {
            SDL_RenderClear(Other);
        });
    };
}

void RecordSettings(SdlWatch &Watch, DrawCalls &Calls) {
    Watch.SetRenderDrawColor.Before = [&Calls](SDL_Renderer *, Uint8 R, Uint8 G, Uint8 B, Uint8 A) {
        Calls.emplace_back([R, G, B, A](SDL_Renderer *Other) {
            SDL_SetRenderDrawColor(Other, R, G, B, A);
        });
    };
    Watch.SetRenderClipRect.Before = [&Calls](SDL_Renderer *, const SDL_Rect *Rect) {
        Calls.emplace_back([rect = CopyOf(Rect)](SDL_Renderer *Other) {
            SDL_SetRenderClipRect(Other, AddressOf(rect));
        });
    };
    Watch.SetTextureColorMod.Before = [&Calls](SDL_Texture *Texture, Uint8 R, Uint8 G, Uint8 B) {
        Calls.emplace_back([Texture, R, G, B](SDL_Renderer *) {
            SDL_SetTextureColorMod(Texture, R, G, B);
        });
    };
    Watch.SetTextureAlphaMod.Before = [&Calls](SDL_Texture *Texture, Uint8 Alpha) {
        Calls.emplace_back([Texture, Alpha](SDL_Renderer *) {
            SDL_SetTextureAlphaMod(Texture, Alpha);
        });
    };
}

} // namespace

DrawCalls RecordDrawCalls(const std::function<void()> &Draw) {
    DrawCalls calls;
    SdlWatch watch;
    RecordRectangles(watch, calls);
    RecordSettings(watch, calls);
    Draw();
    return calls;
}
