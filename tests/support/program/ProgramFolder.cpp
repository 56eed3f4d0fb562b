#include "tests/support/program/ProgramFolder.hpp"

#include <SDL3/SDL.h>

#include <gtest/gtest.h>

#include <fstream>

namespace {

ProgramFolder *LivingFolder = nullptr;

} // namespace

ProgramFolder::ProgramFolder() : Path(Home.FilePath("program/").string()) {
    EXPECT_EQ(LivingFolder, nullptr);
    std::filesystem::create_directories(Path);
    LivingFolder = this;
}

ProgramFolder::ProgramFolder(const std::filesystem::path &Existing) : Path((Existing / "").string()) {
    EXPECT_EQ(LivingFolder, nullptr);
    LivingFolder = this;
}

ProgramFolder::~ProgramFolder() {
    LivingFolder = nullptr;
}

void ProgramFolder::Write(const std::string &Name, std::string_view Bytes) const {
    const std::filesystem::path path = Path + Name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    ASSERT_TRUE(file.good()) << Name;
}

void ProgramFolder::Remove(const std::string &Name) const {
    ASSERT_TRUE(std::filesystem::remove(Path + Name)) << Name;
}

// The linker sends each call of SDL_Xxx to __wrap_SDL_Xxx and knows SDL's own function as __real_SDL_Xxx.
extern "C" {
const char *__real_SDL_GetBasePath();
SDL_Storage *__real_SDL_OpenTitleStorage(const char *, SDL_PropertiesID);
bool __real_SDL_ReadStorageFile(SDL_Storage *, const char *, void *, Uint64);

const char *__wrap_SDL_GetBasePath() {
    return LivingFolder != nullptr ? LivingFolder->Path.c_str() : __real_SDL_GetBasePath();
}

SDL_Storage *__wrap_SDL_OpenTitleStorage(const char *Override, SDL_PropertiesID Properties) {
    const bool isMoved = LivingFolder != nullptr && Override == nullptr;
    return __real_SDL_OpenTitleStorage(isMoved ? LivingFolder->Path.c_str() : Override, Properties);
}

bool __wrap_SDL_ReadStorageFile(SDL_Storage *Storage, const char *Name, void *Memory, Uint64 Length) {
    if (LivingFolder != nullptr) {
        LivingFolder->FilesRead.emplace_back(Name);
    }
    return __real_SDL_ReadStorageFile(Storage, Name, Memory, Length);
}
}
