#include "tests/gfx/Art.hpp"

#include "tests/gfx/ExpectedSprites.hpp"

#include <cstdlib>
#include <string>

namespace {

using SpritePixels = std::array<std::array<std::uint32_t, 16>, 16>;

std::uint32_t ColorOf(std::string_view Legend, char Symbol) {
    if (Symbol == '.') {
        return 0;
    }
    const std::size_t place = Legend.find(std::string{Symbol, '='});
    const std::string digits(Legend.substr(place + 2, 8));
    return static_cast<std::uint32_t>(std::strtoul(digits.c_str(), nullptr, 16));
}

std::array<SpritePixels, ExpectedSprites.size()> ReadMasterList() {
    std::array<SpritePixels, ExpectedSprites.size()> art{};
    for (std::size_t id = 0; id < art.size(); ++id) {
        for (std::size_t y = 0; y < 16; ++y) {
            for (std::size_t x = 0; x < 16; ++x) {
                art[id][y][x] = ColorOf(ExpectedSprites[id].Legend, ExpectedSprites[id].Rows[y][x]);
            }
        }
    }
    return art;
}

} // namespace

std::uint32_t ArtPixel(std::int32_t Id, int X, int Y) {
    static const auto art = ReadMasterList();
    return art.at(static_cast<std::size_t>(Id))
        .at(static_cast<std::size_t>(Y))
        .at(static_cast<std::size_t>(X));
}
