#pragma once

#include "state/GameState.hpp"
#include "store/OptionsFile.hpp"
#include "tests/store/OptionsText.hpp"
#include "tests/store/StoreTest.hpp"
#include "tests/support/LogicalWidthScope.hpp"

/// Loads and saves options; what the reader prints is kept.
class OptionsTest : public StoreTest {
protected:
    bool Load(std::string_view Text) {
        Store("Config.ini", Text);
        return Load();
    }
    bool Load() {
        testing::internal::CaptureStdout();
        const bool loaded = LoadOptions(State);
        Printed = testing::internal::GetCapturedStdout();
        EXPECT_FALSE(std::filesystem::exists(PathOf(".Config.ini.tmp")));
        return loaded;
    }
    /// Loads a file of one section.
    void LoadSection(const std::string &Section, const std::string &Lines) {
        EXPECT_TRUE(Load("[" + Section + "]\n" + Lines));
        EXPECT_EQ(Printed, "");
    }
    void LoadGraphics(const std::string &Lines) {
        LoadSection("Graphics", Lines);
    }

    /// The file that a record is written as.
    std::string Written() {
        EXPECT_TRUE(SaveOptions(State));
        EXPECT_EQ(Names(), std::vector<std::string>{"Config.ini"});
        return Stored("Config.ini");
    }

    LogicalWidthScope Width{1280};
    GameState State;
    std::string Printed;
};
