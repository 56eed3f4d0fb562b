#include "bench/PrivateHome.hpp"

#include <SDL3/SDL.h>

PrivateHome::PrivateHome() {
    for (const auto &[name, value] :
        {std::pair{"XDG_DATA_HOME", Folder.Path().c_str()}, std::pair{"SDL_AUDIO_DRIVER", "dummy"}}) {
        SDL_setenv_unsafe(name, value, 1); // which the end of SDL does not forget
        SDL_SetEnvironmentVariable(SDL_GetEnvironment(), name, value, true);
    }
}
