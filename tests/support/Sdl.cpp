#include "tests/support/Sdl.hpp"

void ChooseSoftwareDrivers() {
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "dummy");
    SDL_SetHint(SDL_HINT_AUDIO_DRIVER, "dummy");
    SDL_SetHint(SDL_HINT_RENDER_DRIVER, "software");
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0"); // or a system's OpenGL is loaded after all
}

SdlTest::SdlTest() {
    ChooseSoftwareDrivers();
    EXPECT_TRUE(SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK | SDL_INIT_GAMEPAD)) << SDL_GetError();
}

SdlTest::~SdlTest() {
    SDL_Quit();
}

LogCatcher::LogCatcher() {
    SDL_GetLogOutputFunction(&OldFunction, &OldUserdata);
    SDL_SetLogOutputFunction(&LogCatcher::Catch, this);
}

LogCatcher::~LogCatcher() {
    SDL_SetLogOutputFunction(OldFunction, OldUserdata);
}

void LogCatcher::Catch(void *Self, int /*Category*/, SDL_LogPriority /*Priority*/, const char *Message) {
    static_cast<LogCatcher *>(Self)->Lines.emplace_back(Message);
}
