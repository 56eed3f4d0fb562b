#include "tests/e2e/GameProgram.hpp"

#include "tools/support/Files.hpp"

#include <cstdlib>
#include <string>

namespace {

std::filesystem::path NamedProgram() {
    const char *named = std::getenv("KESTREL_GAME");
    return std::filesystem::absolute(named == nullptr ? GAME_BUILT_HERE : named);
}

// Every program with AddressSanitizer calls its runtime by this name first of all.
bool HoldsSanitizer(const std::filesystem::path &Program) {
    return FindBytes(Program).value_or("").find("__asan_init") != std::string::npos;
}

} // namespace

const std::filesystem::path &GameProgram() {
    static const std::filesystem::path program = NamedProgram();
    return program;
}

bool GameIsSanitized() {
    static const bool isSanitized = HoldsSanitizer(GameProgram());
    return isSanitized;
}

Environment DrawnAsForPlayers() {
    return GameIsSanitized() ? Environment{}
                             : Environment{{"SDL_RENDER_DRIVER", ""}, {"SDL_FRAMEBUFFER_ACCELERATION", ""}};
}

void Measuring::SetUp() {
    if (GameIsSanitized()) {
        GTEST_SKIP() << "a sanitized game says nothing about the pace or the size of the real one";
    }
}
