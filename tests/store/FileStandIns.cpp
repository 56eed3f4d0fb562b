#include "tests/store/StoreWatch.hpp"

#include <string_view>

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker dictates the names.
extern "C" decltype(fopen) __real_fopen;
extern "C" decltype(fopen) __wrap_fopen;
extern "C" std::FILE *__wrap_fopen(const char *Path, const char *Mode) {
    const bool isStaging = std::string_view(Path).ends_with(".tmp");
    return isStaging ? PassOn(&StoreWatch::OpenFile, __real_fopen, Path, Mode) : __real_fopen(Path, Mode);
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

STAND_IN_1(StoreWatch, ftell, TellPosition)
