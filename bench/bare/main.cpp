// The least that a program like the game can be: the same window, renderer and mixer on the same libraries,
// one picture, and nothing of the game. The game's start and its memory are measured against it.

#include <SDL3/SDL.h>
#include <SDL3/SDL_main.h>
#include <SDL3_mixer/SDL_mixer.h>

namespace {

constexpr const char *Title = "Kestrel Volley, bare"; // found by the same words as the game's window
constexpr SDL_AudioSpec SoundFormat{SDL_AUDIO_S16LE, 2, 44100};
constexpr int SpriteSize = 16;
constexpr int Letters = 20;

struct BareProgram {
    SDL_Window *Window = nullptr;
    SDL_Renderer *Renderer = nullptr;
    SDL_Texture *Sprite = nullptr;
    MIX_Mixer *Mixer = nullptr;
};

bool OpenWindow(BareProgram &Bare) {
    const SDL_DisplayMode *mode = SDL_GetDesktopDisplayMode(SDL_GetPrimaryDisplay());
    if (mode == nullptr) {
        return false;
    }
    Bare.Window = SDL_CreateWindow(Title, mode->w, mode->h, SDL_WINDOW_FULLSCREEN);
    if (Bare.Window == nullptr) {
        return false;
    }
    Bare.Renderer = SDL_CreateRenderer(Bare.Window, nullptr);
    return Bare.Renderer != nullptr && SDL_SetRenderDrawBlendMode(Bare.Renderer, SDL_BLENDMODE_BLEND) &&
           SDL_HideCursor();
}

bool Fill(SDL_Renderer *Renderer, const SDL_FRect &Rect, Uint8 Red, Uint8 Green, Uint8 Blue) {
    return SDL_SetRenderDrawColor(Renderer, Red, Green, Blue, 255) && SDL_RenderFillRect(Renderer, &Rect);
}

bool PaintSprite(BareProgram &Bare) {
    SDL_Renderer *renderer = Bare.Renderer;
    Bare.Sprite = SDL_CreateTexture(
        renderer, SDL_PIXELFORMAT_RGBA8888, SDL_TEXTUREACCESS_TARGET, SpriteSize, SpriteSize);
    return Bare.Sprite != nullptr && SDL_SetTextureBlendMode(Bare.Sprite, SDL_BLENDMODE_BLEND) &&
           SDL_SetTextureScaleMode(Bare.Sprite, SDL_SCALEMODE_NEAREST) &&
           SDL_SetRenderTarget(renderer, Bare.Sprite) && SDL_SetRenderDrawColor(renderer, 0, 0, 0, 0) &&
           SDL_RenderClear(renderer) && Fill(renderer, {4.0F, 2.0F, 8.0F, 12.0F}, 220, 60, 40) &&
           SDL_SetRenderTarget(renderer, nullptr);
}

bool OpenMixer(BareProgram &Bare) {
    Bare.Mixer =
        MIX_Init() ? MIX_CreateMixerDevice(SDL_AUDIO_DEVICE_DEFAULT_PLAYBACK, &SoundFormat) : nullptr;
    return Bare.Mixer != nullptr;
}

/// A line of text as the game draws it, each letter made of fills.
bool DrawLine(SDL_Renderer *Renderer, float X, float Y) {
    bool isDrawn = true;
    for (int letter = 0; letter < Letters; ++letter) {
        const float x = X + 12.0F * static_cast<float>(letter);
        isDrawn = isDrawn && Fill(Renderer, {x, Y, 10.0F, 2.0F}, 240, 240, 240) &&
                  Fill(Renderer, {x + 4.0F, Y + 2.0F, 2.0F, 12.0F}, 240, 240, 240);
    }
    return isDrawn;
}

bool ShowPicture(const BareProgram &Bare) {
    SDL_Renderer *renderer = Bare.Renderer;
    const SDL_FRect place{600.0F, 300.0F, 64.0F, 64.0F};
    return SDL_SetRenderDrawColor(renderer, 0, 0, 0, 255) && SDL_RenderClear(renderer) &&
           Fill(renderer, {100.0F, 100.0F, 400.0F, 80.0F}, 40, 60, 120) &&
           SDL_RenderTexture(renderer, Bare.Sprite, nullptr, &place) && DrawLine(renderer, 100.0F, 400.0F) &&
           SDL_RenderPresent(renderer);
}

bool Start(BareProgram &Bare) {
    const bool isOpen = SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD) && OpenWindow(Bare) &&
                        PaintSprite(Bare) && OpenMixer(Bare);
    SDL_PumpEvents();
    return isOpen && ShowPicture(Bare);
}

void WaitForQuit() {
    SDL_Event event{};
    while (event.type != SDL_EVENT_QUIT && SDL_WaitEvent(&event)) {
    }
}

void TakeDown(const BareProgram &Bare) {
    MIX_DestroyMixer(Bare.Mixer);
    MIX_Quit();
    SDL_DestroyTexture(Bare.Sprite);
    SDL_DestroyRenderer(Bare.Renderer);
    SDL_DestroyWindow(Bare.Window);
    SDL_Quit();
}

} // namespace

int main(int /*ArgumentCount*/, char ** /*Arguments*/) {
    BareProgram bare;
    const bool hasStarted = Start(bare);
    if (hasStarted) {
        WaitForQuit();
    } else {
        SDL_Log("the bare program does not start: %s", SDL_GetError());
    }
    TakeDown(bare);
    return hasStarted ? 0 : 1;
}
