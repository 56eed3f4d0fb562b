#include "tests/faults/FaultWatch.hpp"

#include <unistd.h>

#include <algorithm>
#include <stdexcept>
#include <string>

#define LIBRARY_STAND_IN(Count, Function, Field) STAND_IN_##Count(FaultWatch, Function, Field)

WATCHED_LIBRARY_FUNCTIONS(LIBRARY_STAND_IN)

namespace {

// What has failed is marked as such in its stream, by an access that the stream is not open for.

/// The disk is full: half is written.
std::size_t FailToWrite(const void *Bytes, std::size_t Size, std::size_t Count, FILE *File) {
    const std::size_t half = std::fwrite(Bytes, 1, Size * Count / 2, File);
    std::getc(File);
    return half / Size;
}

/// The same of a whole file.
bool FailToSaveFile(const char *Path, const void *Bytes, std::size_t Size) {
    SDL_SaveFile(Path, Bytes, Size / 2);
    return SDL_SetError("%s", CallWatch::RefusalText);
}

int FailToRead(FILE *File) {
    std::fputc(0, File);
    return EOF;
}

/// The disk is full: half of what was written is lost, while a file that was read stays as it is. It is
/// closed all the same.
int FailToClose(FILE *File) {
    std::fflush(File);
    [[maybe_unused]] const int cut = ftruncate(fileno(File), std::ftell(File) / 2);
    std::fclose(File);
    return EOF;
}

/// The storage is gone all the same.
bool FailToCloseStorage(SDL_Storage *Storage) {
    SDL_CloseStorage(Storage);
    return SDL_SetError("%s", CallWatch::RefusalText);
}

/// A count that a device does not tell.
int FailToCount(SDL_Joystick * /*Joystick*/) {
    return -1;
}

template <auto Field> constexpr bool CanFail = requires(FaultWatch &Watch) {
    (Watch.*Field).Refuse(1, 0);
};

template <auto Field> WatchedEntry MakeEntry(std::string_view Name) {
    return {Name,
        [](FaultWatch &Watch, const std::function<void()> &Act) {
            (Watch.*Field).Before = [Act](auto... /*Arguments*/) {
                Act();
            };
        },
        CanFail<Field>,
        [](FaultWatch &Watch, int Times, int After) {
            if constexpr (CanFail<Field>) {
                (Watch.*Field).Refuse(Times, After);
            }
        }};
}

#define SDL_ENTRY(Count, Function, Field) MakeEntry<&SdlWatch::Field>(#Function),
#define MIXER_ENTRY(Count, Function, Field) MakeEntry<&MixerWatch::Field>(#Function),
#define LIBRARY_ENTRY(Count, Function, Field) MakeEntry<&FaultWatch::Field>(#Function),

} // namespace

FaultWatch::FaultWatch() {
    WriteFile.Failure = FailToWrite;
    ReadByte.Failure = FailToRead;
    CloseFile.Failure = FailToClose;
    SeekFile.Failure = [](FILE * /*File*/, long /*Offset*/, int /*Origin*/) {
        return -1;
    };
    RemoveFile.Failure = [](const char * /*Path*/) {
        return -1;
    };
    SaveFile.Failure = FailToSaveFile;
    CloseStorage.Failure = FailToCloseStorage;
    GetNumJoystickAxes.Failure = FailToCount;
    GetNumJoystickHats.Failure = FailToCount;
    GetNumJoystickButtons.Failure = FailToCount;
}

std::span<const WatchedEntry> WatchedEntries() {
    static const WatchedEntry entries[] = {WATCHED_SDL_FUNCTIONS(SDL_ENTRY, SDL_ENTRY)
            WATCHED_MIXER_FUNCTIONS(MIXER_ENTRY) WATCHED_LIBRARY_FUNCTIONS(LIBRARY_ENTRY)};
    return entries;
}

const WatchedEntry &EntryOf(std::string_view Function) {
    const std::span<const WatchedEntry> entries = WatchedEntries();
    const auto found = std::ranges::find(entries, Function, &WatchedEntry::Name);
    if (found == entries.end()) {
        throw std::logic_error(std::string(Function) + " is not watched");
    }
    return *found;
}
