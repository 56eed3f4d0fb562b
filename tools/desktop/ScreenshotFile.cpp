#include "tools/desktop/ScreenshotFile.hpp"

#include <SDL3/SDL.h>
#include <memory>
#include <stdexcept>
#include <string>

void SaveScreenshot(const Screenshot &Seen, const std::filesystem::path &File) {
    Screenshot copy = Seen;
    const std::unique_ptr<SDL_Surface, decltype(&SDL_DestroySurface)> surface(
        SDL_CreateSurfaceFrom(
            copy.Width, copy.Height, SDL_PIXELFORMAT_XRGB8888, copy.Pixels.data(), copy.Width * 4),
        &SDL_DestroySurface);
    if (surface == nullptr || !SDL_SavePNG(surface.get(), File.string().c_str())) {
        throw std::runtime_error(File.string() + " cannot be written: " + SDL_GetError());
    }
}
