#pragma once

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Runs a test with SDL up, on drivers that need no hardware: dummy video and audio, software renderer.
class SdlTest : public ::testing::Test {
protected:
    SdlTest();
    ~SdlTest() override;
};

/// Catches what SDL_Log says while it lives.
class LogCatcher {
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    std::vector<std::string> Lines;

private:
    static void SDLCALL Catch(void *Self, int Category, SDL_LogPriority Priority, const char *Message);

    SDL_LogOutputFunction OldFunction = nullptr;
    void *OldUserdata = nullptr;
};

/// What start-up says on the drivers that need no hardware, as their windows have no icons.
inline const std::string NoIconsLine = "SetWindowIconFromAtlas failed: That operation is not supported";

/// Makes SDL choose the drivers that need no hardware. For tests that start SDL themselves.
void ChooseSoftwareDrivers();
