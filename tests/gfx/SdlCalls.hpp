#pragma once

#include "tests/support/Picture.hpp"

#include <optional>

// SDL functions of this test program go through the ones below: they forward, count what is alive, and fail
// when a test wants them to.

enum class SdlCall {
    CreateTexture,
    SetRenderTarget,
    RenderReadPixels,
    CreateSurface,
    BlitSurfaceScaled,
    SetWindowIcon,
    GetRenderLogicalPresentationRect,
};

/// While it lives, every call of one SDL function fails.
class FailingCall {
public:
    explicit FailingCall(SdlCall Call);
    ~FailingCall();
    FailingCall(const FailingCall &) = delete;
    FailingCall &operator=(const FailingCall &) = delete;
};

/// The text that SDL_GetError gives after such a failure.
inline constexpr const char *FailingCallError = "made to fail";

/// How many surfaces and textures have been handed out and not been destroyed.
int LivingSurfaces();
int LivingTextures();

/// What SDL_SetWindowIcon was given last, and what it answered.
struct GivenIcon {
    SDL_Window *Window;
    SDL_PixelFormat Format;
    Picture Pixels;
    bool Answer;
};
extern std::optional<GivenIcon> LastIcon;
