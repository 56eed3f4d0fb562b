#pragma once

#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"
#include "tests/app/ProgramTest.hpp"
#include "tools/support/Files.hpp"

#include <filesystem>
#include <string>

/// A test of the whole program with the real files of the user's storage, in a home of its own.
class FilesTest : public ProgramTest {
protected:
    FilesTest() {
        Program.Writers = SaveWriters{SaveOptions, WriteSaveState};
    }

    void Put(const char *Name, const std::string &Contents) {
        WriteBytes(Home.FilePath(Name), Contents);
    }

    std::string Contents(const char *Name) const {
        return ReadBytes(Home.FilePath(Name));
    }

    bool Exists(const char *Name) const {
        return std::filesystem::exists(Home.FilePath(Name));
    }
};
