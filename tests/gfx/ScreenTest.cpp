#include "tests/gfx/ScreenTest.hpp"

#include "state/LogicalScreen.hpp"
#include "tests/gfx/ExpectedGlyphs.hpp"

#include <utility>

ExpectedScreen::ExpectedScreen(int Width, int PhysicalPerLogical)
    : Zoom(PhysicalPerLogical), PixelWidth(Width * Zoom),
      Pixels(PixelWidth, ScreenHeight * Zoom, 0xFF000000) {}

ExpectedScreen::ExpectedScreen(const Picture &Ground)
    : Zoom(Ground.Height() / ScreenHeight), PixelWidth(Ground.Width()), Pixels(Ground) {}

int ExpectedScreen::Physical(double Length) const {
    return static_cast<int>(Length * Zoom);
}

void ExpectedScreen::Text(
    std::u32string_view Letters, double X, double Y, int Scale, std::uint32_t PackedColor) {
    double left = X;
    for (const char32_t letter : Letters) {
        const ExpectedGlyph *const glyph = FindExpectedGlyph(letter);
        EXPECT_TRUE(glyph != nullptr || letter == U' ') << "no picture of a letter";
        for (std::size_t square = 0; glyph != nullptr && square < 56; ++square) {
            const std::size_t row = square / 7;
            const std::size_t column = square % 7;
            if (glyph->Rows[row][column] == '#') {
                const double x = left + static_cast<double>(column) * Scale;
                const double y = Y + static_cast<double>(row) * Scale;
                Pixels.Fill(Physical(x), Physical(y), Scale * Zoom, Scale * Zoom, PackedColor);
            }
        }
        left += CellWidth({&letter, 1}, Scale);
    }
}

void ExpectedScreen::Centered(
    std::u32string_view Letters, double CenterX, double Y, int Scale, std::uint32_t PackedColor) {
    Text(Letters, CenterX - CellWidth(Letters, Scale) / 2.0, Y, Scale, PackedColor);
}

void ExpectedScreen::Blend(double X, double Y, double W, double H, std::uint32_t PackedColor) {
    Pixels.BlendRect(Physical(X), Physical(Y), Physical(W), Physical(H), PackedColor);
}

void ExpectedScreen::Sprite(std::int32_t Id, int CenterX, int CenterY, int Size) {
    Pixels.Sprite(
        Id, static_cast<float>(CenterX * Zoom), static_cast<float>(CenterY * Zoom), Size * Zoom, Size * Zoom);
}

::testing::AssertionResult ExpectedScreen::IsShownBy(const Picture &Shown) const {
    return Pixels.IsShownBy(Shown);
}

::testing::AssertionResult ExpectedScreen::IsShownBy(const Picture &Shown, int Top, int Bottom) const {
    return Pixels.IsShownBy(Shown, {0, Top * Zoom, PixelWidth, (Bottom - Top) * Zoom});
}

int CellWidth(std::u32string_view Letters, int Scale) {
    int squares = 0;
    for (const char32_t letter : Letters) {
        squares += letter == U'\u00A9' ? 8 : 7;
    }
    return squares * Scale;
}

ScreenTest::ScreenTest() {
    std::swap(OldTexts, Localization.Texts);
}

ScreenTest::~ScreenTest() {
    CloseDevices();
    std::swap(OldTexts, Localization.Texts);
}

void ScreenTest::OpenWidth(int Width, int Zoom) {
    Open(Width, Width * Zoom, ScreenHeight * Zoom);
}

void ScreenTest::Plug(bool HasGamepad, bool HasJoystick) {
    CloseDevices();
    if (HasGamepad) {
        Gamepad.emplace(GamepadShape);
        Devices.Gamepad = SDL_OpenGamepad(Gamepad->Id);
        EXPECT_NE(Devices.Gamepad, nullptr) << SDL_GetError();
    }
    if (HasJoystick) {
        Joystick.emplace(JoystickShape);
        Devices.Joystick = SDL_OpenJoystick(Joystick->Id);
        EXPECT_NE(Devices.Joystick, nullptr) << SDL_GetError();
    }
}

void ScreenTest::CloseDevices() {
    if (Devices.Gamepad != nullptr) {
        SDL_CloseGamepad(Devices.Gamepad);
    }
    if (Devices.Joystick != nullptr) {
        SDL_CloseJoystick(Devices.Joystick);
    }
    Devices = {};
    Gamepad.reset();
    Joystick.reset();
}

GameState RunBehindAPanel() {
    const float center = static_cast<float>(LogicalWidth) * 0.5F;
    GameState state = EmptyRoad();
    state.HasRunState = true;
    state.PlayerDying = false;
    state.Player.X = center;
    state.Player.Y = 520.0F;
    for (int i = 0; i < 9; ++i) {
        const auto n = static_cast<float>(i);
        state.Enemies.push_back(
            {.X = center - 142.0F + 35.0F * n, .Y = 160.0F + 50.0F * n, .Lane = i, .Color = {}});
        state.Items.push_back(
            {.X = center + 138.0F - 35.0F * n, .Y = 180.0F + 45.0F * n, .Lane = 8 - i, .Type = i % 4});
    }
    state.Explosions.push_back({center - 60.0F, 300.0F, 0.5F, 1.0F, 70.0F, {255, 120, 40, 200}});
    return state;
}
