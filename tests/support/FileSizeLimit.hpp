#pragma once

#include <gtest/gtest.h>

#ifndef _WIN32

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file of this process grows beyond so many bytes: what is written behind them fails, as
/// on a disk that is full then. The files of standard output and error count as well.
class FileSizeLimit {
public:
    static constexpr bool Exists = true;

    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-cstyle-cast): the cast is in the system's SIG_IGN
    explicit FileSizeLimit(rlim_t Bytes) : OldHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &Old), 0);
        rlimit limit = Old;
        limit.rlim_cur = Bytes;
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &Old);
        std::signal(SIGXFSZ, OldHandler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    void (*OldHandler)(int);
    rlimit Old{};
};

#else

#include <cstddef>

/// Windows limits no process's files: a test that needs it is skipped.
struct FileSizeLimit {
    static constexpr bool Exists = false;

    explicit FileSizeLimit(std::size_t /*Bytes*/) {}
};

#endif
