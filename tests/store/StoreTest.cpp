#include "tests/store/StoreTest.hpp"

#include <algorithm>

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

CallNames StoreTest::FailEach(
    const std::function<bool()> &Operation, const std::function<void(bool, bool)> &Check) {
    constexpr int limit = 1000;
    const CallNames fallible{Watch.GetPrefPath, Watch.GetBasePath, Watch.OpenUserStorage,
        Watch.OpenTitleStorage, Watch.StorageReady, Watch.GetStoragePathInfo, Watch.ReadStorageFile,
        Watch.WriteStorageFile, Watch.LoadFile, Watch.SaveFile, Watch.OpenFile};
    // A storage that is once not ready stays so, or else it would be waited for, and it is soon given up.
    Watch.StorageReady.Answer = [this](SDL_Storage *Storage) {
        return Watch.Refused != Watch.StorageReady && SDL_StorageReady(Storage);
    };
    HurryClock(700);
    CallNames failed;
    for (int number = 1; number <= limit; ++number) {
        Watch.RefuseOnly(number, fallible);
        const bool result = Operation();
        SCOPED_TRACE(testing::PrintToString(Watch.Refused));
        Check(!Watch.Refused.has_value(), result);
        if (!Watch.Refused) {
            Watch.RefuseOnly(0);
            return failed;
        }
        failed.push_back(*Watch.Refused);
    }
    ADD_FAILURE() << "it never passes untouched";
    return failed;
}

void StoreTest::HurryClock(Uint64 Milliseconds) {
    Watch.GetTicks.Answer = [this, Milliseconds] {
        AddedTime += Milliseconds;
        return SDL_GetTicks() + AddedTime;
    };
}

void StoreTest::MovePreferences(const std::string &NewFolder) {
    Watch.GetPrefPath.Answer = [NewFolder](const char *, const char *) {
        return SDL_strdup(NewFolder.c_str());
    };
}
