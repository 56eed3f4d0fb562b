#include "bench/Programs.hpp"

#include "bench/StartBench.hpp"
#include "tools/desktop/PreparedHome.hpp"

#include <cstdio>
#include <exception>

DrawingWay Software() {
    return {"Software", {}};
}

DrawingWay OpenGl() {
    return {"OpenGl", {{"SDL_RENDER_DRIVER", "opengl"}, {"SDL_FRAMEBUFFER_ACCELERATION", ""}}};
}

bool CanDraw(const DrawingWay &Way) {
    try {
        const PreparedHome home;
        RunOnce(BareProgram, home, Way);
        return true;
    } catch (const std::exception &failure) {
        std::printf("%s cannot be drawn by here: %s\n", Way.Name, failure.what());
        return false;
    }
}
