#include "app/ParentConsole.hpp"

#ifdef _WIN32

#include <SDL3/SDL.h>

#include <windows.h>

#include <cstdio>

namespace {

/// SDL itself would write log lines to a console only, and nowhere where there is none.
void SDLCALL WriteLogLine(void *, int, SDL_LogPriority, const char *Message) {
    std::fprintf(stderr, "%s\n", Message);
}

bool IsRedirected(DWORD Handle) {
    return GetFileType(GetStdHandle(Handle)) != FILE_TYPE_UNKNOWN;
}

} // namespace

void UseParentConsole() {
    const bool outputIsRedirected = IsRedirected(STD_OUTPUT_HANDLE);
    const bool errorsAreRedirected = IsRedirected(STD_ERROR_HANDLE);
    if (AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        if (!outputIsRedirected) {
            std::freopen("CONOUT$", "w", stdout);
        }
        if (!errorsAreRedirected) {
            std::freopen("CONOUT$", "w", stderr);
        }
    }
    SDL_SetLogOutputFunction(WriteLogLine, nullptr);
}

#else

void UseParentConsole() {}

#endif
