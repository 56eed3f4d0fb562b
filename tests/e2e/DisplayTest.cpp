#include "tests/e2e/PageSight.hpp"
#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"

#include <array>
#include <cstdint>
#include <span>
#include <string>

// Windows, the whole screen, and how wide the game is on them.
//
// The screen of these tests has a shape that the game offers no mode for, so it offers its own list of
// resolutions. It is 720 high, so that a logical pixel is a pixel wherever the game is as high as the screen.

namespace {

constexpr ScreenSize Wall{2600, 720};

enum GraphicsRow { Resolution, AspectMode, RefreshRate, DisplayMode, VSync, Defaults, Apply, Revert, Back };

// The main menu in any size, told by the colour of its title: the game has opened its window for good.
bool SomeMainMenu(const Screenshot &Seen) {
    return BoundsOfColor(Seen, {0, 0, Seen.Width, Seen.Height}, {0x37, 0x82, 0xFF}) != Area{};
}

Screenshot Cut(const Screenshot &Seen, const Area &Part) {
    Screenshot cut{Part.Right - Part.Left, Part.Bottom - Part.Top, {}};
    for (int y = Part.Top; y < Part.Bottom; ++y) {
        const std::span<const std::uint32_t> row = RowOf(Seen, y, Part.Left, Part.Right);
        cut.Pixels.insert(cut.Pixels.end(), row.begin(), row.end());
    }
    return cut;
}

// The same of a part of the screen, for sights that go by the screen's edges.
Sight Within(const Area &Part, const Sight &Shows) {
    return [Part, Shows](const Screenshot &Seen) {
        return Shows(Cut(Seen, Part));
    };
}

// The game's area on the wall when it fills it: as wide as it is, between two bars.
Area FilledBy(int LogicalWidth) {
    return {(Wall.Width - LogicalWidth) / 2, 0, (Wall.Width + LogicalWidth) / 2, Wall.Height};
}

bool IsBlackColumn(const Screenshot &Seen, int X) {
    return CountPixels(Seen, {X, 0, X + 1, Seen.Height}, [](const Pixel &Dot) {
        return Dot == Pixel{};
    }) == Seen.Height;
}

// Whether the run fills just that part of the screen: ground up to both of its edges, nothing beyond, and
// the road in its middle.
bool RunFills(const Screenshot &Seen, const Area &Part) {
    const int middle = (Part.Right - Part.Left) / 2;
    return !IsBlackColumn(Seen, Part.Left) && !IsBlackColumn(Seen, Part.Right - 1) &&
           (Part.Left == 0 || IsBlackColumn(Seen, Part.Left - 1)) &&
           (Part.Right == Seen.Width || IsBlackColumn(Seen, Part.Right)) &&
           FindRoad(Cut(Seen, Part)) == RoadPlace{middle - 160, middle + 160};
}

Sight RunFillsPart(const Area &Part) {
    return [Part](const Screenshot &Seen) {
        return RunFills(Seen, Part);
    };
}

std::string GraphicsOptions(int Width, int Height, bool IsClassic, bool IsFullscreen) {
    return "[Graphics]\r\nResolutionWidth=\"" + std::to_string(Width) + "\"\r\nResolutionHeight=\"" +
           std::to_string(Height) + "\"\r\nAspectMode=\"" + (IsClassic ? "classic4x3" : "widescreen") +
           "\"\r\nFullscreen=\"" + (IsFullscreen ? "1" : "0") + "\"\r\n";
}

// The game's window as it stands now.
Area PlaceNow(OpenedGame &Game) {
    const std::optional<DesktopWindow> window = Game.Person().FindWindow("Kestrel Volley");
    return window ? window->Place : Area{};
}

testing::AssertionResult WindowComesTo(OpenedGame &Game, const Area &Place) {
    if (WaitUntil([&] {
            return PlaceNow(Game) == Place;
        })) {
        return testing::AssertionSuccess();
    }
    const Area now = PlaceNow(Game);
    return testing::AssertionFailure()
           << "the window is at " << now.Left << ", " << now.Top << " to " << now.Right << ", " << now.Bottom;
}

// Waits until the game's window has that size, which it may take a moment to get, and gives it the keyboard.
// Its place; nothing if that does not come.
std::optional<Area> SettleAt(OpenedGame &Game, int Width, int Height) {
    std::optional<DesktopWindow> window;
    const auto isSettled = [&] {
        window = Game.Person().FindWindow("Kestrel Volley");
        return window && window->Place.Right - window->Place.Left == Width &&
               window->Place.Bottom - window->Place.Top == Height;
    };
    return WaitUntil(isSettled) && Game.Person().GiveFocus(*window) ? std::optional(window->Place)
                                                                    : std::nullopt;
}

struct Shape {
    int Width;
    int Height;
    bool IsClassic;
    int LogicalWidth;
};

constexpr std::array Shapes{
    Shape{1024, 768, true, 960}, Shape{2160, 1440, false, 1080}, // 3:2
    Shape{1280, 800, false, 1152},                               // 16:10
    Shape{1366, 768, false, 1280},                               // 16:9, but for two pixels
    Shape{2560, 1080, false, 1728},                              // 64:27
    Shape{5120, 1440, false, 2560},                              // 32:9
};

void PrintTo(const Shape &Shown, std::ostream *Out) {
    *Out << Shown.Width << " by " << Shown.Height;
}

class FullscreenShape : public testing::TestWithParam<Shape> {};

} // namespace

// In fullscreen a resolution shapes the game and nothing else.
TEST_P(FullscreenShape, GivesTheGameItsWidth) {
    const PreparedHome home;
    home.Put(OptionsFile, GraphicsOptions(GetParam().Width, GetParam().Height, GetParam().IsClassic, true));
    const Area part = FilledBy(GetParam().LogicalWidth);
    OpenedGame game(home, Within(part, FiveRowMenu(0)), Wall, Desk::Managed);
    EXPECT_TRUE(WindowComesTo(game, {0, 0, Wall.Width, Wall.Height}));
    EXPECT_TRUE(game.Tap(Key::Return, RunFillsPart(part)));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Display, FullscreenShape, testing::ValuesIn(Shapes), [](const testing::TestParamInfo<Shape> &Info) {
        return std::to_string(Info.param.Width) + "By" + std::to_string(Info.param.Height);
    });

TEST(Display, AWindowHasTheSizeOfTheOptionsFile) {
    struct Opened {
        int Width;
        bool IsClassic;
    };
    for (const Opened &opened : {Opened{960, true}, Opened{1280, false}}) {
        const PreparedHome home;
        home.Put(OptionsFile, GraphicsOptions(opened.Width, 720, opened.IsClassic, false));
        OpenedGame game(home, SomeMainMenu, Wall, Desk::Managed);
        const std::optional<Area> place = SettleAt(game, opened.Width, 720);
        ASSERT_TRUE(place) << opened.Width;
        ASSERT_TRUE(game.WaitForPicture(Within(*place, FiveRowMenu(0))));
        EXPECT_TRUE(game.Tap(Key::Return, RunFillsPart(*place))) << opened.Width;
        EXPECT_EQ(game.Close(), std::optional(0));
        EXPECT_EQ(game.Program().Output(), "");
    }
}

// A size that is not in the game's own list, but that the screen offers.
TEST(Display, AWindowCanBeAsWideAsTheWidestScreen) {
    const PreparedHome home;
    home.Put(OptionsFile, GraphicsOptions(2560, 720, false, false));
    OpenedGame game(home, FiveRowMenu(0), {2560, 720});
    ASSERT_EQ(SettleAt(game, 2560, 720), (Area{0, 0, 2560, 720}));
    EXPECT_TRUE(game.Tap(Key::Return, RunFillsPart({0, 0, 2560, 720})));
}

// The window of 640 by 360 shows the game at half its size: the road is 160 wide.
TEST(Display, ASmallWindowShowsTheWholeGameSmall) {
    const PreparedHome home;
    home.Put(OptionsFile, GraphicsOptions(640, 360, false, false));
    OpenedGame game(home, SomeMainMenu, Wall, Desk::Managed);
    const std::optional<Area> place = SettleAt(game, 640, 360);
    ASSERT_TRUE(place);
    game.Person().TapKey(Key::Return, std::chrono::milliseconds{50});
    constexpr Pixel edgeLine{0xB4, 0xB9, 0xBE};
    EXPECT_TRUE(game.WaitForPicture([&](const Screenshot &Seen) {
        const Screenshot window = Cut(Seen, *place);
        const Area road = BoundsOfColor(window, {0, 100, window.Width, 101}, edgeLine);
        return road.Left == 240 && road.Right == 400;
    }));
}

// Through the page: to a window, to a smaller one, and back to the whole screen, each kept in the file.
TEST(Display, ThePageSwitchesBetweenWindowAndFullscreen) {
    const PreparedHome home;
    home.Put(OptionsFile, GraphicsOptions(1280, 720, false, true));
    const Area middle = FilledBy(1280);
    {
        OpenedGame game(home, FiveRowMenu(0), Wall, Desk::Managed, DrawnAsForPlayers());
        ASSERT_TRUE(WindowComesTo(game, {0, 0, Wall.Width, Wall.Height}));
        ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Graphics));
        ASSERT_NO_FATAL_FAILURE(
            ActivateRow(game, Page::Graphics, DisplayMode, RowShows(DisplayMode, "WINDOWED")));
        EXPECT_EQ(PlaceNow(game), (Area{0, 0, Wall.Width, Wall.Height})) << "changed without APPLY";
        ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Graphics, Apply, PageIs(Page::Graphics, Apply)));
        ASSERT_TRUE(WindowComesTo(game, middle)) << "a window that was fullscreen is centred";
        ASSERT_TRUE(SettleAt(game, 1280, 720));
        EXPECT_TRUE(Keeps(home, "Graphics", "Fullscreen", "0"));

        ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Graphics, Resolution));
        ASSERT_TRUE(game.Tap(Key::Left, RowShows(Resolution, "960X540")));
        ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Graphics, Apply));
        game.Person().TapKey(Key::Return, std::chrono::milliseconds{50});
        // One that stays a window keeps its place.
        ASSERT_TRUE(WindowComesTo(game, {middle.Left, 0, middle.Left + 960, 540}));
        EXPECT_TRUE(Keeps(home, "Graphics", "ResolutionWidth", "960"));
        EXPECT_TRUE(Keeps(home, "Graphics", "ResolutionHeight", "540"));
        EXPECT_EQ(game.Close(), std::optional(0));
        EXPECT_EQ(game.Program().Output(), "");
    }
    OpenedGame game(home, SomeMainMenu, Wall, Desk::Managed, DrawnAsForPlayers());
    ASSERT_TRUE(SettleAt(game, 960, 540));
    // Too small to be read here: the way to the switch is known, and its row of the page comes first.
    for (const Key key : {Key::Down, Key::Return, Key::Down, Key::Return, Key::Down, Key::Down, Key::Down,
             Key::Right, Key::Down, Key::Down, Key::Down, Key::Return}) {
        game.Person().TapKey(key, std::chrono::milliseconds{30});
    }
    ASSERT_TRUE(WindowComesTo(game, {0, 0, Wall.Width, Wall.Height}));
    EXPECT_TRUE(game.WaitForPicture(Within(FilledBy(1280), PageIs(Page::Graphics, Apply))));
    EXPECT_TRUE(Keeps(home, "Graphics", "Fullscreen", "1"));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
}

TEST(Display, AnotherShapeInTheMiddleOfARunKeepsTheCarInItsLane) {
    const PreparedHome home;
    home.Put(OptionsFile, GraphicsOptions(1280, 720, false, true));
    OpenedGame game(home, FiveRowMenu(0), Wall, Desk::Managed);
    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(4)));
    ASSERT_TRUE(game.Tap(Key::Right, CarInLane(8)));
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Down, PauseMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Return, OptionsMenu(0)));
    ASSERT_NO_FATAL_FAILURE(OpenPage(game, Page::Graphics));
    ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Graphics, AspectMode));
    ASSERT_TRUE(game.Tap(Key::Right, RowShows(AspectMode, "4:3")));
    ASSERT_TRUE(RowShows(Resolution, "960X720")(game.Person().Look()));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Graphics, Apply, PageIs(Page::Graphics, Apply)));
    ASSERT_TRUE(game.Tap(Key::Escape, OptionsMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Escape, PauseMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Escape, RunFillsPart(FilledBy(960))));
    EXPECT_TRUE(game.WaitForPicture(Within(FilledBy(960), CarInLane(8))));
    EXPECT_TRUE(Keeps(home, "Graphics", "AspectMode", "classic4x3"));
    EXPECT_TRUE(Keeps(home, "Graphics", "ResolutionWidth", "960"));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(game.Program().Output(), "");
}

TEST(Display, BackDropsAnotherShapeAndBringsTheOldResolutionsBack) {
    const PreparedHome home;
    home.Put(OptionsFile, GraphicsOptions(1440, 900, false, true));
    OpenedGame game(home, FiveRowMenu(0), Wall, Desk::Managed);
    const std::optional<std::string> kept = home.Read(OptionsFile);
    ASSERT_NO_FATAL_FAILURE(OpenPageFromMainMenu(game, Page::Graphics));
    ASSERT_NO_FATAL_FAILURE(GoToRow(game, Page::Graphics, AspectMode));
    ASSERT_TRUE(game.Tap(Key::Left, RowShows(AspectMode, "4:3")));
    ASSERT_FALSE(RowShows(Resolution, "1440X900")(game.Person().Look()));
    ASSERT_NO_FATAL_FAILURE(ActivateRow(game, Page::Graphics, Back, OptionsMenu(1)));
    ASSERT_TRUE(game.Tap(Key::Return, RowShows(Resolution, "1440X900")));
    EXPECT_TRUE(RowShows(AspectMode, "WIDESCREEN")(game.Person().Look()));
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_EQ(home.Read(OptionsFile), kept);
}
