#pragma once

#include "tests/support/watch/StandIn.hpp"

#include <SDL3/SDL.h>

/// The functions of SDL that are watched: how many parameters each has, its name, and its field. Those that
/// draw, free or are asked at every text are called too often to be noted; others are only let fail. The
/// build reads the names here, so that a line is all that a function takes.
#define WATCHED_SDL_FUNCTIONS(NOTED, STEERED)                                                                \
    /* Start-up and shutdown. */                                                                             \
    STEERED(3, SDL_SetAppMetadata, SetAppMetadata)                                                           \
    NOTED(1, SDL_Init, Init)                                                                                 \
    NOTED(0, SDL_Quit, Quit)                                                                                 \
    NOTED(4, SDL_CreateWindow, CreateWindow)                                                                 \
    NOTED(1, SDL_HideWindow, HideWindow)                                                                     \
    NOTED(1, SDL_DestroyWindow, DestroyWindow)                                                               \
    NOTED(2, SDL_CreateRenderer, CreateRenderer)                                                             \
    NOTED(1, SDL_DestroyRenderer, DestroyRenderer)                                                           \
    NOTED(2, SDL_SetRenderDrawBlendMode, SetRenderDrawBlendMode)                                             \
    NOTED(2, SDL_SetWindowResizable, SetWindowResizable)                                                     \
    NOTED(2, SDL_SetWindowIcon, SetWindowIcon)                                                               \
    NOTED(0, SDL_HideCursor, HideCursor)                                                                     \
    STEERED(2, SDL_calloc, Calloc)                                                                           \
    STEERED(1, SDL_free, Free)                                                                               \
    /* Time. */                                                                                              \
    NOTED(0, SDL_GetTicks, GetTicks)                                                                         \
    NOTED(1, SDL_Delay, Delay)                                                                               \
    /* The window and how it is filled. */                                                                   \
    STEERED(1, SDL_GetWindowFlags, GetWindowFlags)                                                           \
    NOTED(2, SDL_SetWindowFullscreenMode, SetWindowFullscreenMode)                                           \
    NOTED(2, SDL_SetWindowFullscreen, SetWindowFullscreen)                                                   \
    NOTED(3, SDL_SetWindowSize, SetWindowSize)                                                               \
    NOTED(3, SDL_SetWindowPosition, SetWindowPosition)                                                       \
    NOTED(2, SDL_SetRenderVSync, SetRenderVSync)                                                             \
    NOTED(2, SDL_GetRenderVSync, GetRenderVSync)                                                             \
    NOTED(4, SDL_SetRenderLogicalPresentation, SetRenderLogicalPresentation)                                 \
    STEERED(2, SDL_GetRenderLogicalPresentationRect, GetRenderLogicalPresentationRect)                       \
    /* Displays. */                                                                                          \
    NOTED(0, SDL_GetPrimaryDisplay, GetPrimaryDisplay)                                                       \
    NOTED(1, SDL_GetDisplays, GetDisplays)                                                                   \
    NOTED(1, SDL_GetDisplayForWindow, GetDisplayForWindow)                                                   \
    NOTED(1, SDL_GetDesktopDisplayMode, GetDesktopDisplayMode)                                               \
    NOTED(1, SDL_GetCurrentDisplayMode, GetCurrentDisplayMode)                                               \
    NOTED(2, SDL_GetFullscreenDisplayModes, GetFullscreenDisplayModes)                                       \
    /* Drawing. */                                                                                           \
    NOTED(5, SDL_CreateTexture, CreateTexture)                                                               \
    NOTED(1, SDL_DestroyTexture, DestroyTexture)                                                             \
    NOTED(2, SDL_SetRenderTarget, SetRenderTarget)                                                           \
    NOTED(2, SDL_RenderReadPixels, RenderReadPixels)                                                         \
    NOTED(3, SDL_CreateSurface, CreateSurface)                                                               \
    STEERED(3, SDL_FillSurfaceRect, FillSurfaceRect)                                                         \
    NOTED(1, SDL_DestroySurface, DestroySurface)                                                             \
    NOTED(5, SDL_BlitSurfaceScaled, BlitSurfaceScaled)                                                       \
    NOTED(1, SDL_RenderPresent, RenderPresent)                                                               \
    STEERED(1, SDL_RenderClear, RenderClear)                                                                 \
    STEERED(5, SDL_SetRenderDrawColor, SetRenderDrawColor)                                                   \
    STEERED(2, SDL_SetRenderClipRect, SetRenderClipRect)                                                     \
    STEERED(2, SDL_RenderFillRect, RenderFillRect)                                                           \
    STEERED(4, SDL_RenderTexture, RenderTexture)                                                             \
    STEERED(4, SDL_SetTextureColorMod, SetTextureColorMod)                                                   \
    STEERED(2, SDL_SetTextureAlphaMod, SetTextureAlphaMod)                                                   \
    STEERED(2, SDL_SetTextureBlendMode, SetTextureBlendMode)                                                 \
    STEERED(2, SDL_SetTextureScaleMode, SetTextureScaleMode)                                                 \
    STEERED(2, SDL_GetRenderDrawBlendMode, GetRenderDrawBlendMode)                                           \
    STEERED(1, SDL_RenderClipEnabled, RenderClipEnabled)                                                     \
    STEERED(2, SDL_GetRenderClipRect, GetRenderClipRect)                                                     \
    /* Devices. */                                                                                           \
    STEERED(1, SDL_GetKeyboardState, GetKeyboardState)                                                       \
    NOTED(1, SDL_GetGamepads, GetGamepads)                                                                   \
    NOTED(1, SDL_GetJoysticks, GetJoysticks)                                                                 \
    STEERED(1, SDL_IsGamepad, IsGamepad)                                                                     \
    NOTED(1, SDL_OpenGamepad, OpenGamepad)                                                                   \
    NOTED(1, SDL_OpenJoystick, OpenJoystick)                                                                 \
    NOTED(1, SDL_CloseGamepad, CloseGamepad)                                                                 \
    NOTED(1, SDL_CloseJoystick, CloseJoystick)                                                               \
    NOTED(2, SDL_GetGamepadAxis, GetGamepadAxis)                                                             \
    NOTED(2, SDL_GetGamepadButton, GetGamepadButton)                                                         \
    STEERED(1, SDL_GetNumJoystickAxes, GetNumJoystickAxes)                                                   \
    STEERED(1, SDL_GetNumJoystickHats, GetNumJoystickHats)                                                   \
    STEERED(1, SDL_GetNumJoystickButtons, GetNumJoystickButtons)                                             \
    STEERED(2, SDL_GetJoystickAxis, GetJoystickAxis)                                                         \
    STEERED(2, SDL_GetJoystickHat, GetJoystickHat)                                                           \
    NOTED(2, SDL_GetJoystickButton, GetJoystickButton)                                                       \
    NOTED(1, SDL_GetGamepadStringForButton, GetGamepadStringForButton)                                       \
    /* Files. */                                                                                             \
    NOTED(2, SDL_GetPrefPath, GetPrefPath)                                                                   \
    NOTED(0, SDL_GetBasePath, GetBasePath)                                                                   \
    NOTED(3, SDL_OpenUserStorage, OpenUserStorage)                                                           \
    NOTED(2, SDL_OpenTitleStorage, OpenTitleStorage)                                                         \
    NOTED(1, SDL_CloseStorage, CloseStorage)                                                                 \
    NOTED(1, SDL_StorageReady, StorageReady)                                                                 \
    STEERED(2, SDL_GetPathInfo, GetPathInfo)                                                                 \
    NOTED(3, SDL_GetStoragePathInfo, GetStoragePathInfo)                                                     \
    NOTED(4, SDL_ReadStorageFile, ReadStorageFile)                                                           \
    NOTED(4, SDL_WriteStorageFile, WriteStorageFile)                                                         \
    NOTED(2, SDL_LoadFile, LoadFile)                                                                         \
    NOTED(3, SDL_SaveFile, SaveFile)                                                                         \
    /* Properties. */                                                                                        \
    NOTED(0, SDL_CreateProperties, CreateProperties)                                                         \
    NOTED(3, SDL_SetNumberProperty, SetNumberProperty)                                                       \
    NOTED(1, SDL_DestroyProperties, DestroyProperties)

/// Watches the calls that the test program makes into SDL.
class SdlWatch : public CallWatch {
public:
    WATCHED_SDL_FUNCTIONS(NOTED_FIELD, STEERED_FIELD)
};
