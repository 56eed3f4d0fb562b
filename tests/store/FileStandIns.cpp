#include "tests/store/StoreWatch.hpp"

#include <string_view>

// The linker dictates the names.
extern "C" decltype(fopen) __real_fopen; // NOLINT(readability-identifier-naming,bugprone-reserved-identifier)
extern "C" decltype(fopen) __wrap_fopen; // NOLINT(readability-identifier-naming,bugprone-reserved-identifier)
extern "C" std::FILE *__wrap_fopen(const char *Path, const char *Mode) {
    const bool isStaging = std::string_view(Path).ends_with(".tmp");
    return isStaging ? PassOn(&StoreWatch::OpenFile, __real_fopen, Path, Mode) : __real_fopen(Path, Mode);
}

STAND_IN_1(StoreWatch, ftell, TellPosition)
