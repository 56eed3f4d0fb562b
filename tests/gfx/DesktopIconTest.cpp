#include "gfx/SpriteId.hpp"

#include "tests/gfx/Art.hpp"
#include "tests/support/Picture.hpp"
#include "tools/support/Files.hpp"

#include <SDL3/SDL.h>

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <string>

// The icons of packaging/icons as they ship.

namespace {

using Car = std::array<std::array<std::uint32_t, 16>, 16>; ///< rows of packed colours

std::filesystem::path IconFolder() {
    return std::filesystem::path(SOURCE_TREE) / "packaging" / "icons";
}

Car ExpectedCar() {
    Car car{};
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            car.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) =
                ArtPixel(SpritePlayer, x, y);
        }
    }
    return car;
}

/// The packed colour of "d2d6dc".
std::uint32_t PackedColor(const std::string &Name) {
    const auto color = static_cast<std::uint32_t>(std::stoul(Name, nullptr, 16));
    return 0xFF000000U | (color & 0xFFU) << 16U | (color & 0xFF00U) | color >> 16U;
}

/// What the rectangles of a drawing paint, one after the other. Throws std::out_of_range for one that reaches
/// beyond 16 by 16.
Car PaintDrawing(const std::string &Drawing, const std::regex &Rectangle) {
    Car car{};
    for (std::sregex_iterator rectangle(Drawing.begin(), Drawing.end(), Rectangle), end; rectangle != end;
         ++rectangle) {
        const std::size_t left = std::stoul((*rectangle)[1]);
        const std::size_t top = std::stoul((*rectangle)[2]);
        const std::size_t width = std::stoul((*rectangle)[3]);
        for (std::size_t x = left; x < left + width; ++x) {
            car.at(top).at(x) = PackedColor((*rectangle)[4]);
        }
    }
    return car;
}

} // namespace

TEST(DesktopIcons, ShowThePlayersCarInCrispBlocks) {
    const Car car = ExpectedCar();
    for (const int size : {16, 32, 48, 64, 128, 256, 512}) {
        const std::filesystem::path file = IconFolder() / (std::to_string(size) + ".png");
        SDL_Surface *loaded = SDL_LoadPNG(file.c_str());
        ASSERT_NE(loaded, nullptr) << file << ": " << SDL_GetError();
        const Picture icon(loaded);
        SDL_DestroySurface(loaded);
        ASSERT_EQ(icon.Width(), size);
        ASSERT_EQ(icon.Height(), size);
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const auto row = static_cast<std::size_t>(y * 16 / size);
                const auto column = static_cast<std::size_t>(x * 16 / size);
                ASSERT_EQ(icon.At(x, y), car.at(row).at(column)) << size << ": " << x << ", " << y;
            }
        }
    }
}

TEST(DesktopIcons, TheDrawingIsThePlayersCarAndNothingElse) {
    const std::string drawing = ReadBytes(IconFolder() / "scalable.svg");
    const std::regex rectangle(
        R"re(<rect x="(\d+)" y="(\d+)" width="(\d+)" height="1" fill="#([0-9a-f]{6})"/>\n)re");
    EXPECT_EQ(PaintDrawing(drawing, rectangle), ExpectedCar());
    EXPECT_EQ(std::regex_replace(drawing, rectangle, ""),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"128\" height=\"128\" viewBox=\"0 0 16 16\" "
        "shape-rendering=\"crispEdges\">\n</svg>\n");
}

// What Windows shows holds the same pictures, each with its place in a list before them.
TEST(DesktopIcons, OfWindowsAreTheSamePictures) {
    const std::string file = ReadBytes(IconFolder() / "kestrel-volley.ico");
    const auto number = [&file](std::size_t Place, std::size_t ByteCount) {
        std::size_t value = 0;
        for (std::size_t i = ByteCount; i > 0; --i) {
            value = value << 8U | static_cast<unsigned char>(file.at(Place + i - 1));
        }
        return value;
    };
    ASSERT_EQ(file.substr(0, 6), std::string({0, 0, 1, 0, 6, 0}));
    std::size_t entry = 6;
    std::size_t picture = 6 + 6 * 16;
    for (const std::size_t size : {16U, 32U, 48U, 64U, 128U, 256U}) {
        const std::string expected = ReadBytes(IconFolder() / (std::to_string(size) + ".png"));
        EXPECT_EQ(number(entry, 1), size % 256);
        EXPECT_EQ(number(entry + 1, 1), size % 256);
        EXPECT_EQ(number(entry + 2, 2), 0U) << "no palette";
        EXPECT_EQ(number(entry + 4, 2), 1U) << "one plane";
        EXPECT_EQ(number(entry + 6, 2), 32U) << "bits";
        ASSERT_EQ(number(entry + 8, 4), expected.size());
        ASSERT_EQ(number(entry + 12, 4), picture);
        EXPECT_TRUE(file.substr(picture, expected.size()) == expected) << size;
        entry += 16;
        picture += expected.size();
    }
    EXPECT_EQ(picture, file.size());
}
