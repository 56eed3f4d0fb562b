#include "fuzz/support/Target.hpp"

#include "quillini/CodeCvt.hpp"
#include "store/Identity.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <streambuf>

namespace {

/// Takes whatever is printed and forgets it.
class Nowhere : public std::streambuf {
protected:
    int_type overflow(int_type Character) override {
        return traits_type::not_eof(Character);
    }
    std::streamsize xsputn(const char * /*Text*/, std::streamsize Count) override {
        return Count;
    }
};

void SDLCALL Forget(
    void * /*Nothing*/, int /*Category*/, SDL_LogPriority /*Priority*/, const char * /*Message*/) {}

/// A home in which every message is dropped.
struct QuietHome {
    QuietHome() {
        SDL_SetLogOutputFunction(Forget, nullptr);
        SDL_free(SDL_GetPrefPath(Organisation, Application)); // makes the folder
    }
    ~QuietHome() {
        std::cout.rdbuf(OldOutput);
    }
    QuietHome(const QuietHome &) = delete;
    QuietHome &operator=(const QuietHome &) = delete;

    TemporaryHome Home;
    Nowhere Output;
    std::streambuf *OldOutput = std::cout.rdbuf(&Output);
};

bool IsControl(char Character) {
    return static_cast<std::uint8_t>(Character) < ' ';
}

} // namespace

// The fuzzer counts all memory of the process, and what the sanitizer keeps of freed memory would be most of
// it. The sanitizer dictates the name.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" const char *__asan_default_options() {
    return "quarantine_size_mb=16:allocator_may_return_null=0:detect_stack_use_after_return=1";
}

// Before the first input, so that nothing of this counts as reached by it.
extern "C" int LLVMFuzzerInitialize(int * /*ArgumentCount*/, char *** /*Arguments*/) {
    Home();
    return 0;
}

std::string_view TextOf(std::span<const std::uint8_t> Input) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the fuzzer's bytes are text
    return {reinterpret_cast<const char *>(Input.data()), Input.size()};
}

void Demand(bool Holds, const char *Words) {
    if (!Holds) {
        std::fprintf(stderr, "Broken demand: %s\n", Words);
        std::abort();
    }
}

bool SurvivesEscaping(std::string_view Text) {
    try {
        return std::ranges::none_of(Text, IsControl) && quillINI::Utf8From(quillINI::Utf16From(Text)) == Text;
    } catch (const std::range_error &) {
        return false;
    }
}

const TemporaryHome &Home() {
    static const QuietHome home;
    return home.Home;
}
