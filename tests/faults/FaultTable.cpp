#include "tests/faults/FaultTable.hpp"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

constexpr std::string_view NoMusic = "Music runtime unavailable; game will run without music";
constexpr std::string_view NoAtlas = "BuildTextureAtlas failed: refused for the test";
constexpr std::string_view NoIcon = "SetWindowIconFromAtlas failed: refused for the test";
constexpr std::string_view NoPlay = "PlayMusicPattern failed: refused for the test";
constexpr std::string_view NotRead = "Unable to read file: */.SaveState.bin.tmp!";
constexpr std::string_view NotWritten = "Unable to write file: */.SaveState.bin.tmp";
constexpr std::string_view IniNotRead =
    "Unable to open INI file: */.TitleStorageRead.tmp|Unable to open INI file: */.Config.ini.tmp";
constexpr std::string_view IniNotWritten = "Unable to write INI file: */.Config.ini.tmp";

/// A call whose failure has a line of its own, or two.
constexpr FaultRow Told(std::string_view Function, std::string_view Line, std::string_view SecondLine = {}) {
    return {.Function = Function, .Says = {Line, SecondLine}};
}

constexpr FaultRow EndsTheStart(std::string_view Function, std::string_view Line) {
    return {.Function = Function, .Result = 1, .Says = {Line}};
}

/// The same for the first call alone, or the first few.
constexpr FaultRow UpTo(int LastCall, FaultRow Row) {
    Row.LastCall = LastCall;
    return Row;
}

/// A step on the way from or to a file.
constexpr FaultRow OfFiles(std::string_view Function) {
    return {.Function = Function, .IsOfFiles = true};
}

/// A step that opens an INI file.
constexpr FaultRow OfIniFiles(std::string_view Function) {
    return {.Function = Function, .Prints = IniNotRead, .PrintsInWriting = IniNotWritten, .IsOfFiles = true};
}

/// A call for the music or for an effect.
constexpr FaultRow OfSounds(std::string_view Function, std::string_view LineOfEffects) {
    return {.Function = Function, .Says = {LineOfEffects}, .SaysOfMusic = NoPlay};
}

constexpr FaultRow LosesPattern(std::string_view Function) {
    return {.Function = Function, .LosesPattern = true};
}

constexpr FaultRow Without(std::string_view Other, FaultRow Row) {
    Row.AskedWithout = Other;
    return Row;
}

/// The game goes on without a word.
constexpr FaultRow Silent(std::string_view Function) {
    return {.Function = Function};
}

constexpr FaultRow Rows[] = {
    // The start.
    Silent("SDL_SetAppMetadata"),
    EndsTheStart("SDL_Init", "SDL_Init failed: refused for the test"),
    EndsTheStart("SDL_CreateWindow", "SDL_CreateWindow failed: refused for the test"),
    EndsTheStart("SDL_CreateRenderer", "SDL_CreateRenderer failed: refused for the test"),
    EndsTheStart("SDL_CreateTexture", NoAtlas),
    UpTo(1, EndsTheStart("SDL_SetRenderTarget", NoAtlas)),
    UpTo(2, Silent("SDL_SetRenderTarget")), // back to the window, as after the third
    UpTo(3, Told("SDL_SetRenderTarget", NoIcon)),
    Silent("SDL_SetRenderTarget"),
    Told("SDL_RenderReadPixels", NoIcon),
    Told("SDL_CreateSurface", NoIcon),
    Silent("SDL_FillSurfaceRect"),
    Told("SDL_BlitSurfaceScaled", NoIcon),
    Told("SDL_SetWindowIcon", NoIcon),
    Silent("SDL_SetTextureScaleMode"),
    Silent("SDL_SetWindowResizable"),
    Silent("SDL_HideCursor"),
    Silent("SDL_HideWindow"),

    // The displays and the window.
    Silent("SDL_GetPrimaryDisplay"),
    Without("SDL_GetDisplayForWindow", Silent("SDL_GetDisplays")),
    Silent("SDL_GetDisplayForWindow"),
    Silent("SDL_GetDesktopDisplayMode"),
    Without("SDL_GetDesktopDisplayMode", Silent("SDL_GetCurrentDisplayMode")),
    Silent("SDL_GetFullscreenDisplayModes"),
    Silent("SDL_GetWindowFlags"),
    Told("SDL_SetWindowFullscreenMode",
        "SDL_SetWindowFullscreenMode(borderless) failed: refused for the test"),
    UpTo(1, Told("SDL_SetWindowFullscreen", "SDL_SetWindowFullscreen(true) failed: refused for the test")),
    Told("SDL_SetWindowFullscreen", "SDL_SetWindowFullscreen(false) failed: refused for the test"),
    Told("SDL_SetWindowSize", "SDL_SetWindowSize(*) failed: refused for the test"),
    Told("SDL_SetWindowPosition", "SDL_SetWindowPosition(centered) failed: refused for the test"),
    Told("SDL_SetRenderVSync", "SDL_SetRenderVSync(*) failed: refused for the test"),
    Told("SDL_GetRenderVSync", "SDL_GetRenderVSync failed: refused for the test"),
    Told("SDL_SetRenderLogicalPresentation", "SDL_SetRenderLogicalPresentation failed: refused for the test"),

    // Drawing.
    Silent("SDL_RenderClear"),
    Silent("SDL_RenderPresent"),
    Silent("SDL_SetRenderDrawColor"),
    Silent("SDL_SetRenderDrawBlendMode"),
    Silent("SDL_GetRenderDrawBlendMode"),
    Silent("SDL_SetRenderClipRect"),
    Silent("SDL_RenderClipEnabled"),
    Silent("SDL_RenderFillRect"),
    Silent("SDL_RenderTexture"),
    Silent("SDL_SetTextureColorMod"),
    Silent("SDL_SetTextureAlphaMod"),
    Silent("SDL_SetTextureBlendMode"),
    Silent("SDL_GetRenderLogicalPresentationRect"),

    // Devices.
    Silent("SDL_GetGamepads"),
    Silent("SDL_GetJoysticks"),
    Silent("SDL_IsGamepad"),
    Silent("SDL_OpenGamepad"),
    Silent("SDL_OpenJoystick"),
    Silent("SDL_GetGamepadAxis"),
    Silent("SDL_GetGamepadButton"),
    Silent("SDL_GetNumJoystickAxes"),
    Silent("SDL_GetNumJoystickHats"),
    Silent("SDL_GetNumJoystickButtons"),
    Silent("SDL_GetJoystickAxis"),
    Silent("SDL_GetJoystickHat"),
    Silent("SDL_GetJoystickButton"),
    Silent("SDL_GetGamepadStringForButton"),

    // Files. Where none is being written one is being read, and counts as missing.
    OfFiles("SDL_GetPrefPath"),
    LosesPattern("SDL_GetBasePath"),
    OfFiles("SDL_OpenUserStorage"),
    Silent("SDL_OpenTitleStorage"),
    Silent("SDL_CloseStorage"),
    OfFiles("SDL_StorageReady"),
    Silent("SDL_GetPathInfo"),
    Silent("SDL_GetStoragePathInfo"),
    Silent("SDL_calloc"),
    Silent("SDL_ReadStorageFile"),
    OfFiles("SDL_WriteStorageFile"),
    OfFiles("SDL_LoadFile"),
    Silent("SDL_SaveFile"),
    {.Function = "fopen", .Says = {NotRead}, .SaysInWriting = NotWritten, .IsOfFiles = true},
    {.Function = "fclose", .SaysInWriting = NotWritten, .IsOfFiles = true},
    {.Function = "fwrite", .SaysInWriting = NotWritten, .IsOfFiles = true},
    Told("fseek", "Error: Failed to seek to end of file, proceeding without reservation!"),
    Told("ftell", "Warning: Unable to determine file size, proceeding without reservation!"),
    Silent("getc"), // the end of the file, and what stands behind it counts as damaged
    Silent("remove"),
    OfIniFiles("_ZNSt14basic_ifstreamIcSt11char_traitsIcEE7is_openEv"),
    OfIniFiles("_ZNSt14basic_ofstreamIcSt11char_traitsIcEE7is_openEv"),
    OfIniFiles("_ZNSt13basic_filebufIcSt11char_traitsIcEE4openEPKcSt13_Ios_Openmode"),

    // Sounds.
    Told("MIX_Init", "MIX_Init failed: refused for the test", NoMusic),
    Told("MIX_CreateMixerDevice", "MIX_CreateMixerDevice failed: refused for the test", NoMusic),
    UpTo(1, Told("MIX_CreateTrack", "MIX_CreateTrack failed: refused for the test", NoMusic)),
    Told("MIX_CreateTrack", "MIX_CreateTrack failed for SFX track *: refused for the test"),
    UpTo(1, Told("MIX_TagTrack", "MIX_TagTrack failed: refused for the test")),
    Told("MIX_TagTrack", "MIX_TagTrack failed for SFX track *: refused for the test"),
    UpTo(1, Told("MIX_SetTrackGain", "MIX_SetTrackGain failed: refused for the test", NoMusic)),
    UpTo(13, Told("MIX_SetTrackGain", "MIX_SetTrackGain failed for SFX track: refused for the test")),
    UpTo(14,
        Told("MIX_SetTrackGain", "MIX_SetTrackGain failed during startup fade setup: refused for the test")),
    Told("MIX_SetTrackGain", "MIX_SetTrackGain failed: refused for the test|"
                             "MIX_SetTrackGain failed during startup fade: refused for the test|"
                             "MIX_SetTrackGain failed for SFX track: refused for the test"),
    Silent("MIX_GetMixerFormat"),
    Silent("MIX_LoadRawAudio"),
    Without("MIX_LoadRawAudio",
        Told("MIX_CreateSineWaveAudio", "MIX_CreateSineWaveAudio failed for SFX '*': refused for the test")),

    // Music.
    LosesPattern("MIX_LoadAudio"),
    OfSounds("MIX_SetTrackAudio", "MIX_SetTrackAudio failed for SFX '*': refused for the test"),
    OfSounds("SDL_CreateProperties", "SDL_CreateProperties failed for SFX '*': refused for the test"),
    Silent("SDL_SetNumberProperty"),
    OfSounds("MIX_PlayTrack", "MIX_PlayTrack failed for SFX '*': refused for the test"),
    Silent("MIX_StopTrack"),
    {.Function = "MIX_TrackPlaying", .IsAskedInRealTime = true},
    Silent("MIX_GetTrackLoops"),
    Silent("MIX_GetTrackPlaybackPosition"),
    Silent("MIX_TrackMSToFrames"),
    Without("MIX_GetTrackLoops", Silent("MIX_TrackFramesToMS")),
    Silent("MIX_GetAudioDuration"),
    Silent("MIX_AudioFramesToMS"),
};

constexpr std::string_view TakesDown = "it takes down and tells nothing";
constexpr std::string_view Computes = "it computes";
constexpr std::string_view IsOpenTells = "is_open tells whether it has worked";
constexpr std::string_view TellsWords = "of what is only told, nobody hears that it was not";

constexpr SafeFunction Safe[] = {
    {"SDL_CloseGamepad", TakesDown},
    {"SDL_CloseJoystick", TakesDown},
    {"SDL_DestroyProperties", TakesDown},
    {"SDL_DestroyRenderer", TakesDown},
    {"SDL_DestroySurface", TakesDown},
    {"SDL_DestroyTexture", TakesDown},
    {"SDL_DestroyWindow", TakesDown},
    {"SDL_Quit", TakesDown},
    {"SDL_free", TakesDown},
    {"MIX_DestroyAudio", TakesDown},
    {"MIX_DestroyMixer", TakesDown},
    {"MIX_DestroyTrack", TakesDown},
    {"MIX_Quit", TakesDown},
    {"SDL_Delay", "it waits at least that long"},
    {"SDL_GetTicks", "the clock is always there"},
    {"SDL_PollEvent", "false means that there is no event"},
    {"SDL_GetKeyboardState", "the array is always there"},
    {"SDL_GetRenderTarget", "null means the window"},
    {"SDL_GetRenderClipRect", "it is asked only while a clip is set, and the clips do not nest"},
    {"SDL_GetScancodeName", "empty means that there is no name"},
    {"SDL_GetError", Computes},
    {"SDL_SetError", Computes},
    {"SDL_HasRectIntersectionFloat", Computes},
    {"SDL_MapSurfaceRGBA", Computes},
    {"SDL_Log", TellsWords},
    {"fprintf", TellsWords},
    {"fputc", TellsWords},
    {"fputs", TellsWords},
    {"stderr", TellsWords},
    {"rewind", "it tells nothing"},
    {"ceilf", Computes},
    {"expf", Computes},
    {"floorf", Computes},
    {"fmodf", Computes},
    {"lroundf", Computes},
    {"sinf", Computes},
    {"sqrtf", Computes},
    {"trunc", Computes},
    {"truncf", Computes},
    {"bcmp", Computes},
    {"memchr", Computes},
    {"memcmp", Computes},
    {"memcpy", Computes},
    {"memmove", Computes},
    {"memset", Computes},
    {"strlen", Computes},
    {"_ZNSt14basic_ifstreamIcSt11char_traitsIcEE4openEPKcSt13_Ios_Openmode", IsOpenTells},
    {"_ZNSt14basic_ofstreamIcSt11char_traitsIcEE4openEPKcSt13_Ios_Openmode", IsOpenTells},
    {"_ZNKSt12__basic_fileIcE7is_openEv", "it says what is_open of its stream, compiled in place, gives"},
    {"_ZNSt10filesystem6statusERKNS_7__cxx114pathERSt10error_code",
        "what it cannot ask about is opened, which tells"},
};

} // namespace

const FaultRow &RowOf(std::string_view Function, int Number) {
    const auto found = std::ranges::find_if(Rows, [&](const FaultRow &Row) {
        return Row.Function == Function && (Row.LastCall == 0 || Number <= Row.LastCall);
    });
    if (found == std::end(Rows)) {
        throw std::logic_error(std::string(Function) + " has no row");
    }
    return *found;
}

std::vector<std::string_view> FaultyFunctions() {
    std::vector<std::string_view> functions;
    for (const FaultRow &row : Rows) {
        if (row.LastCall == 0) { // the last row of a function
            functions.push_back(row.Function);
        }
    }
    return functions;
}

std::span<const SafeFunction> SafeFunctions() {
    return Safe;
}

std::string_view FileFailureLine(Writing During) {
    switch (During) {
    case Writing::FirstOptions:
        return "Failed to create default options config: Config.ini";
    case Writing::Options:
        return "Failed to write options config: Config.ini";
    case Writing::SaveState:
        return "Failed to write save state: SaveState.bin";
    case Writing::Nothing:
        break;
    }
    return {};
}
