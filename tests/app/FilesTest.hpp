#pragma once

#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"
#include "tests/app/ProgramTest.hpp"

#include <filesystem>
#include <fstream>
#include <string>

/// A test of the whole program with the real files of the user's storage, in a home of its own.
class FilesTest : public ProgramTest {
protected:
    FilesTest() {
        Program.Writers = SaveWriters{SaveOptions, WriteSaveState};
    }

    void Put(const char *Name, const std::string &Contents) {
        std::filesystem::create_directories(Home.FilePath(Name).parent_path());
        std::ofstream(Home.FilePath(Name), std::ios::binary) << Contents;
    }

    std::string Contents(const char *Name) const {
        std::ifstream file(Home.FilePath(Name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    bool Exists(const char *Name) const {
        return std::filesystem::exists(Home.FilePath(Name));
    }
};
