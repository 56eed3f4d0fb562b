#include "tests/store/StoreTest.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>

std::string ReadBytes(const std::filesystem::path &Path) {
    std::ifstream file(Path, std::ios::binary);
    EXPECT_TRUE(file) << Path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::filesystem::path &Path, std::string_view Bytes) {
    std::ofstream file(Path, std::ios::binary);
    file.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    file.close();
    EXPECT_TRUE(file) << Path;
}

std::vector<std::string> NamesIn(const std::filesystem::path &Folder) {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(Folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

std::string Hex(std::string_view Bytes) {
    static constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char byte : Bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += digits[value >> 4U];
        text += digits[value & 0xFU];
        text += ' ';
    }
    return text;
}

StoreTest::StoreTest() {
    std::filesystem::create_directories(Folder());
}

std::filesystem::path StoreTest::PathOf(const std::string &Name) const {
    return Home.FilePath(Name.c_str());
}

std::filesystem::path StoreTest::Folder() const {
    return PathOf("x").parent_path();
}

std::string StoreTest::Stored(const std::string &Name) const {
    return ReadBytes(PathOf(Name));
}

void StoreTest::Store(const std::string &Name, std::string_view Bytes) const {
    WriteBytes(PathOf(Name), Bytes);
}

std::vector<std::string> StoreTest::Names() const {
    return NamesIn(Folder());
}

std::vector<std::string> StoreTest::FailEach(
    const std::function<bool()> &Operation, const std::function<void(bool, bool)> &Check) {
    constexpr int limit = 1000;
    std::vector<std::string> failed;
    Calls.ClockStep = 700; // a storage that is not ready is soon given up
    for (int number = 1; number <= limit; ++number) {
        Calls.FailOnly(number);
        const bool result = Operation();
        const std::string name = Calls.FailedCall;
        Calls.FailOnly(0);
        SCOPED_TRACE(name.empty() ? "untouched" : name);
        Check(name.empty(), result);
        if (name.empty()) {
            return failed;
        }
        failed.push_back(name);
    }
    ADD_FAILURE() << "it never passes untouched";
    return failed;
}
