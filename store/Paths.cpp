#include "store/Paths.hpp"

#include "store/Identity.hpp"

#include <SDL3/SDL.h>

namespace {

constexpr std::string_view Separators = "/\\";

bool IsSeparator(char Character) {
    return Separators.find(Character) != std::string_view::npos;
}

bool IsDots(std::string_view Component) {
    return Component == "." || Component == "..";
}

} // namespace

std::string JoinPath(std::string_view Folder, std::string_view Name) {
    std::string path(Folder);
    if (Folder.empty() || !IsSeparator(Folder.back())) {
        path += '/';
    }
    return path.append(Name);
}

std::string PrefFilePath(std::string_view Name) {
    if (Name.empty()) {
        return {};
    }
    char *const folder = SDL_GetPrefPath(Organisation, Application);
    const bool isKnown = folder != nullptr && *folder != '\0';
    std::string path = isKnown ? JoinPath(folder, Name) : std::string();
    SDL_free(folder);
    return path;
}

std::string BaseFilePath(std::string_view Path) {
    const char *const folder = SDL_GetBasePath();
    const bool isKnown = folder != nullptr && *folder != '\0';
    return isKnown ? JoinPath(folder, Path) : std::string();
}

bool IsSafeRelativePath(std::string_view Path) {
    // A drive letter is refused with every other colon.
    if (Path.empty() || IsSeparator(Path.front()) || Path.find(':') != std::string_view::npos) {
        return false;
    }
    while (true) {
        const std::size_t end = Path.find_first_of(Separators);
        if (IsDots(Path.substr(0, end))) {
            return false;
        }
        if (end == std::string_view::npos) {
            return true;
        }
        Path.remove_prefix(end + 1);
    }
}
