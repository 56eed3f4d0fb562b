#include "tests/gfx/SdlCalls.hpp"

std::optional<GivenIcon> LastIcon;

namespace {

std::optional<SdlCall> Failing;
int Surfaces = 0;
int Textures = 0;

/// Whether a call is to fail; sets the error text if so.
bool Fails(SdlCall Call) {
    if (Failing == Call) {
        SDL_SetError("%s", FailingCallError);
        return true;
    }
    return false;
}

} // namespace

FailingCall::FailingCall(SdlCall Call) {
    Failing = Call;
}

FailingCall::~FailingCall() {
    Failing.reset();
}

int LivingSurfaces() {
    return Surfaces;
}

int LivingTextures() {
    return Textures;
}

// The linker sends each call of SDL_Xxx to __wrap_SDL_Xxx and knows SDL's own function as __real_SDL_Xxx.
extern "C" {
SDL_Texture *__real_SDL_CreateTexture(SDL_Renderer *, SDL_PixelFormat, SDL_TextureAccess, int, int);
void __real_SDL_DestroyTexture(SDL_Texture *);
bool __real_SDL_SetRenderTarget(SDL_Renderer *, SDL_Texture *);
SDL_Surface *__real_SDL_RenderReadPixels(SDL_Renderer *, const SDL_Rect *);
SDL_Surface *__real_SDL_CreateSurface(int, int, SDL_PixelFormat);
void __real_SDL_DestroySurface(SDL_Surface *);
bool __real_SDL_BlitSurfaceScaled(
    SDL_Surface *, const SDL_Rect *, SDL_Surface *, const SDL_Rect *, SDL_ScaleMode);
bool __real_SDL_SetWindowIcon(SDL_Window *, SDL_Surface *);
bool __real_SDL_GetRenderLogicalPresentationRect(SDL_Renderer *, SDL_FRect *);

SDL_Texture *__wrap_SDL_CreateTexture(
    SDL_Renderer *Renderer, SDL_PixelFormat Format, SDL_TextureAccess Access, int W, int H) {
    if (Fails(SdlCall::CreateTexture)) {
        return nullptr;
    }
    SDL_Texture *texture = __real_SDL_CreateTexture(Renderer, Format, Access, W, H);
    Textures += texture != nullptr ? 1 : 0;
    return texture;
}

void __wrap_SDL_DestroyTexture(SDL_Texture *Texture) {
    Textures -= Texture != nullptr ? 1 : 0;
    __real_SDL_DestroyTexture(Texture);
}

bool __wrap_SDL_SetRenderTarget(SDL_Renderer *Renderer, SDL_Texture *Texture) {
    return !Fails(SdlCall::SetRenderTarget) && __real_SDL_SetRenderTarget(Renderer, Texture);
}

SDL_Surface *__wrap_SDL_RenderReadPixels(SDL_Renderer *Renderer, const SDL_Rect *Rect) {
    if (Fails(SdlCall::RenderReadPixels)) {
        return nullptr;
    }
    SDL_Surface *surface = __real_SDL_RenderReadPixels(Renderer, Rect);
    Surfaces += surface != nullptr ? 1 : 0;
    return surface;
}

SDL_Surface *__wrap_SDL_CreateSurface(int W, int H, SDL_PixelFormat Format) {
    if (Fails(SdlCall::CreateSurface)) {
        return nullptr;
    }
    SDL_Surface *surface = __real_SDL_CreateSurface(W, H, Format);
    Surfaces += surface != nullptr ? 1 : 0;
    return surface;
}

void __wrap_SDL_DestroySurface(SDL_Surface *Surface) {
    Surfaces -= Surface != nullptr ? 1 : 0;
    __real_SDL_DestroySurface(Surface);
}

bool __wrap_SDL_BlitSurfaceScaled(SDL_Surface *From, const SDL_Rect *FromRect, SDL_Surface *To,
    const SDL_Rect *ToRect, SDL_ScaleMode ScaleMode) {
    return !Fails(SdlCall::BlitSurfaceScaled) &&
           __real_SDL_BlitSurfaceScaled(From, FromRect, To, ToRect, ScaleMode);
}

bool __wrap_SDL_SetWindowIcon(SDL_Window *Window, SDL_Surface *Icon) {
    if (Fails(SdlCall::SetWindowIcon)) {
        return false;
    }
    const bool answer = __real_SDL_SetWindowIcon(Window, Icon);
    LastIcon = GivenIcon{Window, Icon->format, Picture(Icon), answer};
    return answer;
}

bool __wrap_SDL_GetRenderLogicalPresentationRect(SDL_Renderer *Renderer, SDL_FRect *Rect) {
    return !Fails(SdlCall::GetRenderLogicalPresentationRect) &&
           __real_SDL_GetRenderLogicalPresentationRect(Renderer, Rect);
}
}
