// Paints the desktop's icons, the player's car in crisp blocks: `icon <folder>` leaves <size>.png there for
// each size, and the same car as a drawing in scalable.svg.

#include "gfx/Atlas.hpp"
#include "gfx/SpriteMaps.hpp"
#include "tools/support/Files.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <string>

namespace {

// Each a multiple of the sprite's own size, so that every pixel of it becomes a square.
constexpr std::array Sizes{16, 32, 48, 64, 128, 256, 512};

bool PaintCar(SDL_Surface *Picture) {
    SDL_Renderer *renderer = SDL_CreateSoftwareRenderer(Picture);
    if (renderer == nullptr) {
        return false;
    }
    const float scale = static_cast<float>(Picture->w) / SpriteSize;
    SDL_SetRenderScale(renderer, scale, scale);
    PaintSprite(renderer, SpritePlayer, 0.0F, 0.0F);
    const bool painted = SDL_FlushRenderer(renderer);
    SDL_DestroyRenderer(renderer);
    return painted;
}

bool SavePicture(int Size, const std::filesystem::path &File) {
    SDL_Surface *picture = SDL_CreateSurface(Size, Size, SDL_PIXELFORMAT_RGBA32);
    const bool saved = picture != nullptr && PaintCar(picture) && SDL_SavePNG(picture, File.c_str());
    SDL_DestroySurface(picture);
    return saved;
}

// A colour of the car, all of which are opaque, as a drawing names it.
std::string NameOf(std::uint32_t PackedColor) {
    const std::uint32_t red = PackedColor & 0xFFU;
    const std::uint32_t green = PackedColor >> 8U & 0xFFU;
    const std::uint32_t blue = PackedColor >> 16U & 0xFFU;
    std::ostringstream name;
    name << '#' << std::hex << std::setfill('0') << std::setw(6) << (red << 16U | green << 8U | blue);
    return name.str();
}

// A rectangle for each run of one colour in a row.
void DrawRow(std::ostream &Drawing, std::string_view Row, std::size_t Y) {
    std::size_t start = 0;
    while (start < Row.size()) {
        const std::size_t end = std::min(Row.find_first_not_of(Row[start], start), Row.size());
        if (Row[start] != TransparentSymbol) {
            Drawing << "<rect x=\"" << start << R"(" y=")" << Y << R"(" width=")" << end - start
                    << R"(" height="1" fill=")" << NameOf(SymbolColor(MapOf(SpritePlayer), Row[start]))
                    << "\"/>\n";
        }
        start = end;
    }
}

std::string DrawCar() {
    std::ostringstream drawing;
    drawing << R"(<svg xmlns="http://www.w3.org/2000/svg" width="128" height="128" viewBox="0 0 16 16" )"
            << "shape-rendering=\"crispEdges\">\n";
    const auto &rows = MapOf(SpritePlayer).Rows;
    for (std::size_t y = 0; y < rows.size(); ++y) {
        DrawRow(drawing, rows[y], y);
    }
    drawing << "</svg>\n";
    return drawing.str();
}

bool SaveAll(const std::filesystem::path &Folder) {
    WriteBytes(Folder / "scalable.svg", DrawCar());
    return std::ranges::all_of(Sizes, [&Folder](int Size) {
        return SavePicture(Size, Folder / (std::to_string(Size) + ".png"));
    });
}

} // namespace

int main(int ArgumentCount, char **Arguments) {
    if (ArgumentCount != 2) {
        std::fputs("usage: icon <folder>\n", stderr);
        return 2;
    }
    try {
        if (SaveAll(Arguments[1])) {
            return EXIT_SUCCESS;
        }
        std::fprintf(stderr, "icon: %s\n", SDL_GetError());
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "icon: %s\n", failure.what());
    }
    return EXIT_FAILURE;
}
