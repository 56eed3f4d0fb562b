#pragma once

#include "input/Devices.hpp"
#include "tests/gfx/GfxTest.hpp"
#include "tests/support/VirtualDevice.hpp"
#include "text/Localization.hpp"

#include <array>
#include <optional>
#include <string_view>

/// What a screen must show, told in logical pixels. Places may have fractions:
/// the renderer cuts off what is left of them in physical pixels. Opaque colours are to be met exactly.
class ExpectedScreen {
public:
    /// Black all over.
    explicit ExpectedScreen(int Width, int PhysicalPerLogical = 1);

    /// What a picture shows.
    explicit ExpectedScreen(const Picture &Ground);

    /// A text whose first cell starts at (X, Y).
    void Text(std::u32string_view Letters, double X, double Y, int Scale, std::uint32_t PackedColor);

    /// A text with as much of its cells left as right of CenterX.
    void Centered(
        std::u32string_view Letters, double CenterX, double Y, int Scale, std::uint32_t PackedColor);

    /// A rectangle blended over what is there.
    void Blend(double X, double Y, double W, double H, std::uint32_t PackedColor);

    /// A sprite of Size by Size centred on a whole logical pixel.
    void Sprite(std::int32_t Id, int CenterX, int CenterY, int Size);

    ::testing::AssertionResult IsShownBy(const Picture &Shown) const;

    /// The same for rows of logical pixels from Top to Bottom, the last one not among them.
    ::testing::AssertionResult IsShownBy(const Picture &Shown, int Top, int Bottom) const;

private:
    int Physical(double Length) const;

    int Zoom;
    int PixelWidth;
    ExpectedPicture Pixels;
};

/// The width in logical pixels of a text's cells: 7 squares to each, 8 to the copyright sign.
int CellWidth(std::u32string_view Letters, int Scale);

/// Which devices are plugged in, and the line about them.
struct DeviceCase {
    bool HasGamepad;
    bool HasJoystick;
    std::u32string_view Line;
};

/// A test that draws a screen. Words put into the table go again at the end, devices are closed.
class ScreenTest : public GfxTest {
protected:
    ScreenTest();
    ~ScreenTest() override;

    /// Opens a canvas of that logical width.
    void OpenWidth(int Width, int Zoom = 1);

    /// Plugs in and opens those two devices, and takes the others away.
    void Plug(bool HasGamepad, bool HasJoystick);
    void Plug(const DeviceCase &Case) {
        Plug(Case.HasGamepad, Case.HasJoystick);
    }

    GameState State;
    InputDevices Devices;

private:
    void CloseDevices();

    std::optional<VirtualDevice> Gamepad;
    std::optional<VirtualDevice> Joystick;
    decltype(LocalizationTable::Texts) OldTexts;
};

/// The narrowest logical screen, the one of most windows, and the widest.
inline constexpr std::array TestedWidths{960, 1280, 2560};

/// A run in the middle of the logical screen, with cars, shots and a fire where a panel will be.
GameState RunBehindAPanel();
