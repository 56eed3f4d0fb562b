#pragma once

#include "tests/store/StoreWatch.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The names in a folder, sorted.
std::vector<std::string> NamesIn(const std::filesystem::path &Folder);

/// Bytes as pairs of hex digits: readable where a comparison fails.
std::string Hex(std::string_view Bytes);

/// Runs a test with a home of its own, real storage in it, and every call for its files watched.
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
    CallNames FailEach(const std::function<bool()> &Operation, const std::function<void(bool, bool)> &Check);

    /// Whether a write works with the call that FailEach has refused: without one, or where storage was only
    /// asked what it has under the name, for a name that it does not know is written like a new one.
    bool MayBeWritten() const {
        return !Watch.Refused || Watch.Refused == Watch.GetStoragePathInfo;
    }

    /// Lets each look at the clock take so many milliseconds more.
    void HurryClock(Uint64 Milliseconds);

    /// Names the preferences folder that the program is told of.
    void MovePreferences(const std::string &NewFolder);

    TemporaryHome Home;
    StoreWatch Watch;

private:
    Uint64 AddedTime = 0;
};
