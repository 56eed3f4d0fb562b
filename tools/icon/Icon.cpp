// Paints the desktop's icons, the player's car in crisp blocks: `icon <folder>` leaves <size>.png there for
// each size, the same car as a drawing in scalable.svg, and pictures for Windows together in
// kestrel-volley.ico.

#include "gfx/Atlas.hpp"
#include "gfx/PackedColor.hpp"
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
constexpr std::array SizesForWindows{16, 32, 48, 64, 128, 256};

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
    const bool saved = picture != nullptr && PaintCar(picture) && SDL_SavePNG(picture, File.string().c_str());
    SDL_DestroySurface(picture);
    return saved;
}

// A colour of the car, all of which are opaque, as a drawing names it.
std::string NameOf(std::uint32_t PackedColor) {
    const Color color = Unpacked(PackedColor);
    std::ostringstream name;
    name << '#' << std::hex << std::setfill('0') << std::setw(6) << (color.R << 16 | color.G << 8 | color.B);
    return name.str();
}

// A rectangle for each run of one colour in a row.
void DrawRow(std::ostream &Drawing, std::string_view Row, std::size_t Y) {
    ForEachRun(Row, [&](std::size_t Start, std::size_t Length, char Symbol) {
        Drawing << "<rect x=\"" << Start << R"(" y=")" << Y << R"(" width=")" << Length
                << R"(" height="1" fill=")" << NameOf(SymbolColor(MapOf(SpritePlayer), Symbol)) << "\"/>\n";
    });
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

std::string LittleEndian(std::size_t Number, int ByteCount) {
    std::string bytes;
    for (int i = 0; i < ByteCount; ++i, Number >>= 8U) {
        bytes += static_cast<char>(Number & 0xFFU);
    }
    return bytes;
}

std::filesystem::path PictureIn(const std::filesystem::path &Folder, int Size) {
    return Folder / (std::to_string(Size) + ".png");
}

// A list of the pictures, and behind it the pictures themselves.
std::string PackForWindows(const std::filesystem::path &Folder) {
    constexpr std::size_t headBytes = 6;
    constexpr std::size_t entryBytes = 16;
    const std::size_t count = SizesForWindows.size();
    std::string list = LittleEndian(0, 2) + LittleEndian(1, 2) + LittleEndian(count, 2); // 1: icons
    std::string pictures;
    for (const int size : SizesForWindows) {
        const std::string picture = ReadBytes(PictureIn(Folder, size));
        const std::string side = LittleEndian(static_cast<std::size_t>(size), 1);             // 0 is 256
        list += side + side + LittleEndian(0, 2) + LittleEndian(1, 2) + LittleEndian(32, 2) + // planes, bits
                LittleEndian(picture.size(), 4) +
                LittleEndian(headBytes + count * entryBytes + pictures.size(), 4);
        pictures += picture;
    }
    return list + pictures;
}

bool SaveAll(const std::filesystem::path &Folder) {
    WriteBytes(Folder / "scalable.svg", DrawCar());
    const bool saved = std::ranges::all_of(Sizes, [&Folder](int Size) {
        return SavePicture(Size, PictureIn(Folder, Size));
    });
    if (saved) {
        WriteBytes(Folder / "kestrel-volley.ico", PackForWindows(Folder));
    }
    return saved;
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
