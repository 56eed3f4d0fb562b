#include "store/Storage.hpp"

#include "store/Identity.hpp"
#include "store/PlainFile.hpp"

#include <memory>

namespace {

constexpr Uint64 WaitLimitMilliseconds = 2000;

struct SdlFree {
    void operator()(void *Memory) const {
        SDL_free(Memory);
    }
};
using SdlMemory = std::unique_ptr<void, SdlFree>;

struct StorageClose {
    void operator()(SDL_Storage *Storage) const {
        SDL_CloseStorage(Storage);
    }
};
using StorageHandle = std::unique_ptr<SDL_Storage, StorageClose>;

StorageHandle OpenUserStorage() {
    return StorageHandle(SDL_OpenUserStorage(Organisation, Application, 0));
}

/// Whether storage has something that is no regular file in the place of one.
bool IsOtherThanFile(SDL_Storage *Storage, const std::string &Name) {
    SDL_PathInfo info;
    return SDL_GetStoragePathInfo(Storage, Name.c_str(), &info) && info.type != SDL_PATHTYPE_FILE;
}

} // namespace

bool WaitForStorage(SDL_Storage *Storage) {
    const Uint64 start = SDL_GetTicks();
    while (!SDL_StorageReady(Storage)) {
        if (SDL_GetTicks() - start >= WaitLimitMilliseconds) {
            // Title storage gets the same words.
            return SDL_SetError("Timed out waiting for SDL user storage");
        }
        SDL_Delay(1);
    }
    return true;
}

bool CopyStorageFile(SDL_Storage *Storage, const char *Name, const std::string &StagingPath) {
    if (Name == nullptr || *Name == '\0' || !WaitForStorage(Storage)) {
        return false;
    }
    SDL_PathInfo info;
    if (!SDL_GetStoragePathInfo(Storage, Name, &info) || info.type != SDL_PATHTYPE_FILE || info.size == 0) {
        return false;
    }
    const auto size = static_cast<std::size_t>(info.size);
    const SdlMemory data(SDL_calloc(size, 1));
    return data && SDL_ReadStorageFile(Storage, Name, data.get(), info.size) &&
           !IsOtherThanFile(StagingPath) && SDL_SaveFile(StagingPath.c_str(), data.get(), size);
}

bool CopyUserStorageFile(const std::string &Name, const std::string &StagingPath) {
    if (Name.empty()) {
        return false;
    }
    const StorageHandle storage = OpenUserStorage();
    return storage && CopyStorageFile(storage.get(), Name.c_str(), StagingPath);
}

bool CopyTitleStorageFile(const std::string &Path, const std::string &StagingPath) {
    const StorageHandle storage(SDL_OpenTitleStorage(nullptr, 0));
    return storage && CopyStorageFile(storage.get(), Path.c_str(), StagingPath);
}

bool WriteUserStorageFile(const std::string &Name, const std::string &StagingPath) {
    if (Name.empty() || IsOtherThanFile(StagingPath)) {
        return false;
    }
    std::size_t size = 0;
    const SdlMemory data(SDL_LoadFile(StagingPath.c_str(), &size));
    if (!data || size == 0) {
        return false;
    }
    const StorageHandle storage = OpenUserStorage();
    return storage && WaitForStorage(storage.get()) && !IsOtherThanFile(storage.get(), Name) &&
           SDL_WriteStorageFile(storage.get(), Name.c_str(), data.get(), size);
}
