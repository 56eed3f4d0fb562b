// The linker sends every call of a watched function here (--wrap, where this test program is declared), and
// from here it goes on, unless the test wants it to fail or to be answered otherwise.

#include "tests/store/StorageCalls.hpp"

#include "tests/support/watch/SdlWatch.hpp"

#include <cstdio>
#include <string_view>

namespace {

StorageCalls *LivingCalls = nullptr;

/// Notes a call and tells whether it is to fail.
bool IsToFail(const char *Function) {
    const bool refused = SdlWatch::Notice(Function, {});
    return StorageCalls::Strikes(Function) || refused;
}

} // namespace

StorageCalls::StorageCalls() {
    SDL_assert_always(LivingCalls == nullptr);
    LivingCalls = this;
}

StorageCalls::~StorageCalls() {
    LivingCalls = nullptr;
}

StorageCalls *StorageCalls::Living() {
    return LivingCalls;
}

void StorageCalls::FailOnly(int Number) {
    FailingCall = Number;
    Count = 0;
    FailedCall.clear();
    IsNeverReady = false;
}

bool StorageCalls::Strikes(const char *Function) {
    if (LivingCalls == nullptr || ++LivingCalls->Count != LivingCalls->FailingCall) {
        return false;
    }
    LivingCalls->FailedCall = Function;
    SDL_SetError("%s", SdlWatch::RefusalText);
    return true;
}

// NOLINTBEGIN(bugprone-reserved-identifier): the linker dictates the names.

extern "C" {

char *__real_SDL_GetPrefPath(const char *Organisation, const char *Application);
char *__wrap_SDL_GetPrefPath(const char *Organisation, const char *Application) {
    if (IsToFail("SDL_GetPrefPath")) {
        return nullptr;
    }
    const StorageCalls *calls = StorageCalls::Living();
    if (calls != nullptr && calls->PrefFolder != nullptr) {
        return SDL_strdup(calls->PrefFolder);
    }
    return __real_SDL_GetPrefPath(Organisation, Application);
}

const char *__real_SDL_GetBasePath();
const char *__wrap_SDL_GetBasePath() {
    if (IsToFail("SDL_GetBasePath")) {
        return nullptr;
    }
    const StorageCalls *calls = StorageCalls::Living();
    return calls != nullptr && calls->IsBaseGiven ? calls->BaseFolder : __real_SDL_GetBasePath();
}

SDL_Storage *__real_SDL_OpenUserStorage(
    const char *Organisation, const char *Application, SDL_PropertiesID Properties);
SDL_Storage *__wrap_SDL_OpenUserStorage(
    const char *Organisation, const char *Application, SDL_PropertiesID Properties) {
    if (IsToFail("SDL_OpenUserStorage")) {
        return nullptr;
    }
    return __real_SDL_OpenUserStorage(Organisation, Application, Properties);
}

SDL_Storage *__real_SDL_OpenTitleStorage(const char *Folder, SDL_PropertiesID Properties);
SDL_Storage *__wrap_SDL_OpenTitleStorage(const char *Folder, SDL_PropertiesID Properties) {
    if (IsToFail("SDL_OpenTitleStorage")) {
        return nullptr;
    }
    StorageCalls *calls = StorageCalls::Living();
    if (calls != nullptr && !calls->TitleFolder.empty()) {
        calls->IsTitleAsked = Folder != nullptr || Properties != 0;
        return __real_SDL_OpenTitleStorage(calls->TitleFolder.c_str(), Properties);
    }
    return __real_SDL_OpenTitleStorage(Folder, Properties);
}

bool __real_SDL_CloseStorage(SDL_Storage *Storage);
bool __wrap_SDL_CloseStorage(SDL_Storage *Storage) {
    SdlWatch::Notice("SDL_CloseStorage", {});
    return __real_SDL_CloseStorage(Storage);
}

bool __real_SDL_StorageReady(SDL_Storage *Storage);
bool __wrap_SDL_StorageReady(SDL_Storage *Storage) {
    const bool refused = IsToFail("SDL_StorageReady");
    StorageCalls *calls = StorageCalls::Living();
    if (calls != nullptr && calls->FailedCall == "SDL_StorageReady") {
        calls->IsNeverReady = true;
    }
    return !refused && (calls == nullptr || !calls->IsNeverReady) && __real_SDL_StorageReady(Storage);
}

bool __real_SDL_GetStoragePathInfo(SDL_Storage *Storage, const char *Path, SDL_PathInfo *Info);
bool __wrap_SDL_GetStoragePathInfo(SDL_Storage *Storage, const char *Path, SDL_PathInfo *Info) {
    const bool found =
        !IsToFail("SDL_GetStoragePathInfo") && __real_SDL_GetStoragePathInfo(Storage, Path, Info);
    const StorageCalls *calls = StorageCalls::Living();
    if (found && calls != nullptr && calls->ToldType != SDL_PATHTYPE_NONE) {
        Info->type = calls->ToldType;
    }
    return found;
}

bool __real_SDL_ReadStorageFile(SDL_Storage *Storage, const char *Path, void *Data, Uint64 Size);
bool __wrap_SDL_ReadStorageFile(SDL_Storage *Storage, const char *Path, void *Data, Uint64 Size) {
    return !IsToFail("SDL_ReadStorageFile") && __real_SDL_ReadStorageFile(Storage, Path, Data, Size);
}

bool __real_SDL_WriteStorageFile(SDL_Storage *Storage, const char *Path, const void *Data, Uint64 Size);
bool __wrap_SDL_WriteStorageFile(SDL_Storage *Storage, const char *Path, const void *Data, Uint64 Size) {
    const bool written =
        !IsToFail("SDL_WriteStorageFile") && __real_SDL_WriteStorageFile(Storage, Path, Data, Size);
    if (StorageCalls *calls = StorageCalls::Living()) {
        calls->WasWritten = written;
    }
    return written;
}

void *__real_SDL_LoadFile(const char *Path, std::size_t *Size);
void *__wrap_SDL_LoadFile(const char *Path, std::size_t *Size) {
    return IsToFail("SDL_LoadFile") ? nullptr : __real_SDL_LoadFile(Path, Size);
}

bool __real_SDL_SaveFile(const char *Path, const void *Data, std::size_t Size);
bool __wrap_SDL_SaveFile(const char *Path, const void *Data, std::size_t Size) {
    return !IsToFail("SDL_SaveFile") && __real_SDL_SaveFile(Path, Data, Size);
}

Uint64 __real_SDL_GetTicks();
Uint64 __wrap_SDL_GetTicks() {
    StorageCalls *calls = StorageCalls::Living();
    if (calls == nullptr) {
        return __real_SDL_GetTicks();
    }
    calls->AddedTime += calls->ClockStep;
    return __real_SDL_GetTicks() + calls->AddedTime;
}

std::FILE *__real_fopen(const char *Path, const char *Mode);
std::FILE *__wrap_fopen(const char *Path, const char *Mode) {
    const bool isStaging = std::string_view(Path).ends_with(".tmp"); // the test framework opens files as well
    return isStaging && StorageCalls::Strikes("fopen") ? nullptr : __real_fopen(Path, Mode);
}

long __real_ftell(std::FILE *File);
long __wrap_ftell(std::FILE *File) {
    const StorageCalls *calls = StorageCalls::Living();
    return calls != nullptr && calls->IsTellRefused ? -1 : __real_ftell(File);
}
}

// NOLINTEND(bugprone-reserved-identifier)
