// On Windows SDL asks the system for the folder of the user's files. Here it is told the folder that a
// variable of the environment names, as elsewhere. A test without a home of its own finds none, so a person's
// files are safe.
#ifdef _WIN32

#include <SDL3/SDL.h>

#include <windows.h>

#include <shlobj.h>

namespace {

HRESULT WINAPI FindFolder(HWND /*Owner*/, int Kind, HANDLE /*Token*/, DWORD /*Flags*/, LPWSTR Path) {
    const char *const named = SDL_getenv_unsafe("XDG_DATA_HOME");
    const bool isKnown = named != nullptr && (Kind & ~CSIDL_FLAG_CREATE) == CSIDL_APPDATA;
    return isKnown && MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, named, -1, Path, MAX_PATH) > 0
               ? S_OK
               : E_FAIL;
}

} // namespace

extern "C" {
/// The pointer through which SDL calls the function, which the linker finds here first.
decltype(&FindFolder) __imp_SHGetFolderPathW = FindFolder;
}

#endif
