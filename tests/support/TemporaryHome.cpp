#include "tests/support/TemporaryHome.hpp"

#include <SDL3/SDL.h>

#include <random>
#include <string>

TemporaryHome::TemporaryHome() {
    std::random_device random;
    do {
        Folder = std::filesystem::temp_directory_path() / ("kestrel-volley-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(Folder));
    const std::string folder = Folder.string();
    SDL_setenv_unsafe("XDG_DATA_HOME", folder.c_str(), 1); // which the end of SDL does not forget
    SDL_SetEnvironmentVariable(SDL_GetEnvironment(), "XDG_DATA_HOME", folder.c_str(), true);
}

TemporaryHome::~TemporaryHome() {
    std::error_code ignored;
    std::filesystem::remove_all(Folder, ignored);
}

std::filesystem::path TemporaryHome::FilePath(const char *Name) const {
    return Folder / "Orrin" / "KestrelVolley" / Name;
}
