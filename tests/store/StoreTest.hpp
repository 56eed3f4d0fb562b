#pragma once

#include "tests/store/StorageCalls.hpp"
#include "tests/support/TemporaryHome.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

std::string ReadBytes(const std::filesystem::path &Path);
void WriteBytes(const std::filesystem::path &Path, std::string_view Bytes);

/// The names in a folder, sorted.
std::vector<std::string> NamesIn(const std::filesystem::path &Folder);

/// Bytes as pairs of hex digits: readable where a comparison fails.
std::string Hex(std::string_view Bytes);

/// Runs a test with a home of its own, real storage in it, and calls that can be made to fail.
class StoreTest : public ::testing::Test {
protected:
    StoreTest();

    /// Where a file of the user's storage lies, and a plain one of the preferences folder: both in one
    /// folder here.
    std::filesystem::path PathOf(const std::string &Name) const;

    std::filesystem::path Folder() const;
    std::string Stored(const std::string &Name) const;
    void Store(const std::string &Name, std::string_view Bytes) const;

    /// The files of the game that there are, staging files among them.
    std::vector<std::string> Names() const;

    /// Runs Operation with its first call made to fail, then with its second one, and so on until it passes
    /// untouched, and gives the calls that failed, in order. After each, Check(whether it was untouched, its
    /// result) is run.
    std::vector<std::string> FailEach(
        const std::function<bool()> &Operation, const std::function<void(bool, bool)> &Check);

    TemporaryHome Home;
    StorageCalls Calls;
};
