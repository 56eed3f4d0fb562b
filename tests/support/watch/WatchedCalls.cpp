// The linker sends every call of a watched function here (--wrap in this folder's CMakeLists.txt), and from
// here it goes on to SDL, unless the test wants it to fail or offers displays of its own.

#include "tests/support/watch/FakeDisplays.hpp"
#include "tests/support/watch/SdlWatch.hpp"

#include <SDL3/SDL.h>

#include <cstdint>
#include <type_traits>
#include <vector>

namespace {

template <typename Value> std::int64_t NumberOf(Value Argument) {
    if constexpr (std::is_pointer_v<Value>) {
        return Argument != nullptr ? 1 : 0;
    } else {
        return static_cast<std::int64_t>(Argument);
    }
}

template <typename... Values> std::vector<std::int64_t> NumbersOf(Values... Arguments) {
    return {NumberOf(Arguments)...};
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,bugprone-macro-parentheses): the linker dictates the names.

#define WATCH_RESULT(Result, Function, Parameters, Arguments, Refusal)                                       \
    extern "C" Result __real_##Function Parameters;                                                          \
    extern "C" Result __wrap_##Function Parameters {                                                         \
        if (SdlWatch::Notice(#Function, NumbersOf Arguments)) {                                              \
            return Refusal;                                                                                  \
        }                                                                                                    \
        return __real_##Function Arguments;                                                                  \
    }

#define WATCH_NO_RESULT(Function, Parameters, Arguments)                                                     \
    extern "C" void __real_##Function Parameters;                                                            \
    extern "C" void __wrap_##Function Parameters {                                                           \
        SdlWatch::Notice(#Function, NumbersOf Arguments);                                                    \
        __real_##Function Arguments;                                                                         \
    }

/// Answer is what the made-up displays say; Fake stands for them.
#define WATCH_DISPLAYS(Result, Function, Parameters, Arguments, Refusal, Answer)                             \
    extern "C" Result __real_##Function Parameters;                                                          \
    extern "C" Result __wrap_##Function Parameters {                                                         \
        if (SdlWatch::Notice(#Function, NumbersOf Arguments)) {                                              \
            return Refusal;                                                                                  \
        }                                                                                                    \
        if (FakeDisplays *Fake = FakeDisplays::Living()) {                                                   \
            return Answer;                                                                                   \
        }                                                                                                    \
        return __real_##Function Arguments;                                                                  \
    }

namespace {

const SDL_DisplayMode *PointerTo(const std::optional<SDL_DisplayMode> &Mode) {
    return Mode.has_value() ? &*Mode : nullptr;
}

const SDL_DisplayMode *DesktopOf(const FakeDisplays &Fake, SDL_DisplayID Id) {
    const FakeDisplay *display = Fake.Find(Id);
    return display != nullptr ? PointerTo(display->Desktop) : nullptr;
}

const SDL_DisplayMode *CurrentOf(const FakeDisplays &Fake, SDL_DisplayID Id) {
    const FakeDisplay *display = Fake.Find(Id);
    return display != nullptr ? PointerTo(display->Current) : nullptr;
}

} // namespace

// Start-up and shutdown.
WATCH_RESULT(bool, SDL_Init, (SDL_InitFlags Flags), (Flags), false)
WATCH_NO_RESULT(SDL_Quit, (), ())
WATCH_RESULT(SDL_Window *, SDL_CreateWindow, (const char *Title, int W, int H, SDL_WindowFlags Flags),
    (Title, W, H, Flags), nullptr)
WATCH_RESULT(bool, SDL_HideWindow, (SDL_Window * Window), (Window), false)
WATCH_NO_RESULT(SDL_DestroyWindow, (SDL_Window * Window), (Window))
WATCH_RESULT(
    SDL_Renderer *, SDL_CreateRenderer, (SDL_Window * Window, const char *Name), (Window, Name), nullptr)
WATCH_NO_RESULT(SDL_DestroyRenderer, (SDL_Renderer * Renderer), (Renderer))
WATCH_RESULT(SDL_Texture *, SDL_CreateTexture,
    (SDL_Renderer * Renderer, SDL_PixelFormat Format, SDL_TextureAccess Access, int W, int H),
    (Renderer, Format, Access, W, H), nullptr)
WATCH_NO_RESULT(SDL_DestroyTexture, (SDL_Texture * Texture), (Texture))
WATCH_RESULT(
    bool, SDL_SetRenderTarget, (SDL_Renderer * Renderer, SDL_Texture *Texture), (Renderer, Texture), false)
WATCH_RESULT(bool, SDL_SetRenderDrawBlendMode, (SDL_Renderer * Renderer, SDL_BlendMode Blend),
    (Renderer, Blend), false)
WATCH_RESULT(bool, SDL_SetWindowResizable, (SDL_Window * Window, bool Resizable), (Window, Resizable), false)
WATCH_RESULT(bool, SDL_SetWindowIcon, (SDL_Window * Window, SDL_Surface *Icon), (Window, Icon), false)
WATCH_RESULT(bool, SDL_HideCursor, (), (), false)

// Frames.
WATCH_RESULT(bool, SDL_RenderPresent, (SDL_Renderer * Renderer), (Renderer), false)
WATCH_NO_RESULT(SDL_Delay, (Uint32 Milliseconds), (Milliseconds))

// The window and how it is filled.
WATCH_RESULT(bool, SDL_SetWindowFullscreenMode, (SDL_Window * Window, const SDL_DisplayMode *Mode),
    (Window, Mode), false)
WATCH_RESULT(
    bool, SDL_SetWindowFullscreen, (SDL_Window * Window, bool Fullscreen), (Window, Fullscreen), false)
WATCH_RESULT(bool, SDL_SetWindowSize, (SDL_Window * Window, int W, int H), (Window, W, H), false)
WATCH_RESULT(bool, SDL_SetWindowPosition, (SDL_Window * Window, int X, int Y), (Window, X, Y), false)
WATCH_RESULT(bool, SDL_SetRenderVSync, (SDL_Renderer * Renderer, int VSync), (Renderer, VSync), false)
WATCH_RESULT(bool, SDL_GetRenderVSync, (SDL_Renderer * Renderer, int *VSync), (Renderer, VSync), false)
WATCH_RESULT(bool, SDL_SetRenderLogicalPresentation,
    (SDL_Renderer * Renderer, int W, int H, SDL_RendererLogicalPresentation Mode), (Renderer, W, H, Mode),
    false)

// Displays.
WATCH_DISPLAYS(SDL_DisplayID, SDL_GetPrimaryDisplay, (), (), 0, Fake->Primary)
WATCH_DISPLAYS(SDL_DisplayID *, SDL_GetDisplays, (int *Count), (Count), nullptr, Fake->ListDisplays(Count))
WATCH_DISPLAYS(SDL_DisplayID, SDL_GetDisplayForWindow, (SDL_Window * Window), (Window), 0, Fake->OfWindow)
WATCH_DISPLAYS(const SDL_DisplayMode *, SDL_GetDesktopDisplayMode, (SDL_DisplayID Id), (Id), nullptr,
    DesktopOf(*Fake, Id))
WATCH_DISPLAYS(const SDL_DisplayMode *, SDL_GetCurrentDisplayMode, (SDL_DisplayID Id), (Id), nullptr,
    CurrentOf(*Fake, Id))
WATCH_DISPLAYS(SDL_DisplayMode **, SDL_GetFullscreenDisplayModes, (SDL_DisplayID Id, int *Count), (Id, Count),
    nullptr, Fake->ListModes(Id, Count))

extern "C" void __real_SDL_free(void *Memory);
extern "C" void __wrap_SDL_free(void *Memory) {
    if (FakeDisplays *fake = FakeDisplays::Living()) {
        fake->NoticeFree(Memory);
    }
    __real_SDL_free(Memory);
}

// Devices.
WATCH_RESULT(SDL_JoystickID *, SDL_GetGamepads, (int *Count), (Count), nullptr)
WATCH_RESULT(SDL_JoystickID *, SDL_GetJoysticks, (int *Count), (Count), nullptr)
WATCH_RESULT(SDL_Gamepad *, SDL_OpenGamepad, (SDL_JoystickID Id), (Id), nullptr)
WATCH_RESULT(SDL_Joystick *, SDL_OpenJoystick, (SDL_JoystickID Id), (Id), nullptr)
WATCH_NO_RESULT(SDL_CloseGamepad, (SDL_Gamepad * Gamepad), (Gamepad))
WATCH_NO_RESULT(SDL_CloseJoystick, (SDL_Joystick * Joystick), (Joystick))
WATCH_RESULT(Sint16, SDL_GetGamepadAxis, (SDL_Gamepad * Gamepad, SDL_GamepadAxis Axis), (Gamepad, Axis), 0)
WATCH_RESULT(
    bool, SDL_GetGamepadButton, (SDL_Gamepad * Gamepad, SDL_GamepadButton Button), (Gamepad, Button), false)
WATCH_RESULT(bool, SDL_GetJoystickButton, (SDL_Joystick * Joystick, int Button), (Joystick, Button), false)

// NOLINTEND(bugprone-reserved-identifier,bugprone-macro-parentheses)
