#pragma once

#include "quillini/quillini.hpp"
#include "tests/audio/MixerWatch.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/TemporaryHome.hpp"

#include <filesystem>
#include <string>
#include <string_view>

/// Runs a test with SDL up on its dummy audio driver, every mixer call watched and the log caught.
class MixerTest : public ::testing::Test {
protected:
    MixerTest();
    ~MixerTest() override;

    TemporaryHome Home;
    MixerWatch Watch;
    LogCatcher Log;
};

/// And with the program lying in a folder of its own, which is empty at first.
class GameFolderTest : public MixerTest {
protected:
    GameFolderTest();

    /// Lets the program find itself in another folder; the text is told as it is.
    void MoveProgram(const std::string &BasePath);

    /// The path of a file of the game as the program composes it.
    std::string PathOf(const std::string &Name) const {
        return Base + Name;
    }

    /// Half a second of music, and a file of text.
    void AddMusic(const std::string &Name, int Frames = 22050) const;
    void AddText(const std::string &Name, std::string_view Text) const;

    /// A pattern file with one pattern, "TUNE", that has every role, and its music. It loads without a word.
    void AddTune() const;

    /// A document as the game's own reader has it.
    quillINI::IniDocument Read(std::string_view Text) const;

private:
    std::string Base;
};
