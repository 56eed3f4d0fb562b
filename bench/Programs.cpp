#include "bench/Programs.hpp"

#include "tools/desktop/GameSession.hpp"
#include "tools/desktop/Sights.hpp"

#include <cstdio>
#include <exception>
#include <stdexcept>

DrawingWay Software() {
    return {"Software", {}};
}

DrawingWay OpenGl() {
    return {"OpenGl", {{"SDL_RENDER_DRIVER", "opengl"}, {"SDL_FRAMEBUFFER_ACCELERATION", ""}}};
}

void RunOnce(const std::filesystem::path &Program, const PreparedHome &Home, const DrawingWay &Way) {
    GameSession session(Program, {}, Way.Settings, &Home, Desk::Managed);
    const bool isShown = session.WaitForWindow() && session.WaitForPicture(ShowsAnything);
    if (!isShown || session.Close() != 0) {
        throw std::runtime_error(
            Program.string() + " did not start and end. It says:\n" + session.Program().Output());
    }
}

bool CanDraw(const DrawingWay &Way) {
    try {
        const PreparedHome home;
        RunOnce(BareProgram, home, Way);
        return true;
    } catch (const std::exception &failure) {
        std::printf("%s cannot draw here: %s\n", Way.Name, failure.what());
        return false;
    }
}
