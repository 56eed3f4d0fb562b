#include "tests/store/SmallDisk.hpp"

#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

#include <string>
#include <utility>

#ifdef __linux__

SmallDisk::SmallDisk(std::filesystem::path Folder, int Kilobytes) : Place(std::move(Folder)) {
    const std::string options = "mode=0700,size=" + std::to_string(Kilobytes) + "k";
    IsThere = unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
              mount("none", Place.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

SmallDisk::~SmallDisk() {
    if (IsThere) {
        umount2(Place.c_str(), MNT_DETACH);
    }
}

void SmallDisk::MakeReadOnly() const {
    EXPECT_EQ(mount("none", Place.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
}

#else

SmallDisk::SmallDisk(std::filesystem::path Folder, int /*Kilobytes*/) : Place(std::move(Folder)) {}

SmallDisk::~SmallDisk() = default;

void SmallDisk::MakeReadOnly() const {}

#endif

void SmallDisk::FillUpTo(int KilobytesLeft) const {
    const auto room = static_cast<std::size_t>(std::filesystem::space(Place).available);
    WriteBytes(Place / "filler", std::string(room - static_cast<std::size_t>(KilobytesLeft) * 1024, 'f'));
}
