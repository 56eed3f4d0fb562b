#include "fuzz/support/ProgramFolder.hpp"

#include "fuzz/support/Target.hpp"

#include <SDL3/SDL.h>

const std::filesystem::path &ProgramFolder() {
    static const std::filesystem::path folder = [] {
        const std::filesystem::path path = Home().FilePath("program/");
        std::filesystem::create_directories(path);
        return path;
    }();
    return folder;
}

// The linker sends each call of SDL_Xxx to __wrap_SDL_Xxx and knows SDL's own function as __real_SDL_Xxx.
extern "C" {
SDL_Storage *__real_SDL_OpenTitleStorage(const char *, SDL_PropertiesID);

const char *__wrap_SDL_GetBasePath() {
    return ProgramFolder().c_str();
}

SDL_Storage *__wrap_SDL_OpenTitleStorage(const char *Override, SDL_PropertiesID Properties) {
    return __real_SDL_OpenTitleStorage(Override == nullptr ? ProgramFolder().c_str() : Override, Properties);
}
}
