#include "tests/e2e/PlayedGame.hpp"
#include "tests/e2e/StoredFiles.hpp"
#include "tools/support/Files.hpp"

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> Lines(const std::string &Text) {
    std::vector<std::string> lines;
    std::istringstream stream(Text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

void ExpectNear(const Area &Seen, const Area &Expected, int Tolerance) {
    EXPECT_NEAR(Seen.Left, Expected.Left, Tolerance);
    EXPECT_NEAR(Seen.Top, Expected.Top, Tolerance);
    EXPECT_NEAR(Seen.Right, Expected.Right, Tolerance);
    EXPECT_NEAR(Seen.Bottom, Expected.Bottom, Tolerance);
}

// Whether the ground beside the road reaches this column: it is earth, and nowhere black.
bool IsGround(const Screenshot &Seen, int X) {
    const Area column{X, 0, X + 1, Seen.Height};
    return CountPixels(Seen, column, [](const Pixel &Dot) {
        return Dot == Pixel{};
    }) == 0;
}

// A screen of this size is filled by the game, its menu goes by its keys, and a run has the road of 320 in
// its middle and ground on both sides.
void ExpectFillsScreen(ScreenSize Screen, RoadPlace Road) {
    OpenedGame game(Screen);
    EXPECT_TRUE(game.Tap(Key::Down, FiveRowMenu(1)));
    EXPECT_TRUE(game.Tap(Key::Up, FiveRowMenu(0)));
    ASSERT_TRUE(game.Tap(Key::Return, CarInLane(4)));
    EXPECT_EQ(game.Window().Place, (Area{0, 0, Screen.Width, Screen.Height}));
    const Screenshot seen = game.Person().Look();
    EXPECT_EQ(FindRoad(seen), std::optional(Road));
    EXPECT_TRUE(IsGround(seen, 0));
    EXPECT_TRUE(IsGround(seen, Screen.Width - 1));
    EXPECT_EQ(game.Close(), std::optional(0));
}

} // namespace

TEST(GameWindow, FillsAWideScreenOnTheFirstLaunch) {
    ExpectFillsScreen({1280, 720}, {480, 800});
}

TEST(GameWindow, FillsAClassicScreenOnTheFirstLaunch) {
    ExpectFillsScreen({960, 720}, {320, 640});
}

TEST(GameWindow, FillsAVeryWideScreenOnTheFirstLaunch) {
    ExpectFillsScreen({2560, 720}, {1120, 1440});
}

// The car's picture of 16 by 16 is drawn 31.2 wide around (640, 670), so each of its pixels is 1.95 wide. Its
// body lies in the columns 4 to 11 and the rows 4 to 13: from 632.2 to 647.8, and from 662.2 to 681.7.
TEST(GameWindow, BearsItsTitleShowsTheCarAtTheFootOfTheMiddleLaneAndCloses) {
    PlayedGame game;
    EXPECT_EQ(game.Window().Title, "Kestrel Volley v0.1.0");
    const std::optional<Area> car = FindCar(game.Person().Look());
    ASSERT_TRUE(car);
    ExpectNear(*car, {632, 662, 648, 682}, 1);
    game.Person().RequestClose(game.Window());
    EXPECT_EQ(game.Program().WaitForExit(PatientDeadline), std::optional(0));
}

// A desktop groups a window with the entry in its menu that names the window's class.
TEST(GameWindow, BelongsToTheDesktopEntry) {
    const std::string entry =
        ReadBytes(std::filesystem::path(SOURCE_TREE) / "packaging" / "kestrel-volley.desktop");
    OpenedGame game;
    EXPECT_FALSE(game.Window().Class.empty());
    EXPECT_NE(entry.find("\nStartupWMClass=" + game.Window().Class + "\n"), std::string::npos)
        << game.Window().Class;
}

TEST(GameEnd, CloseRequestIsHeardWhileKeysAreHeld) {
    PlayedGame game;
    game.Person().PressKey(Key::Left);
    game.Person().PressKey(Key::LeftControl);
    ASSERT_TRUE(game.WaitForPicture(CarInLane(0)));
    EXPECT_EQ(game.Close(), std::optional(0));
}

// The session shuts every controller out.
TEST(GameStart, NeedsNeitherSoundNorController) {
    PlayedGame game({}, {{"SDL_AUDIO_DRIVER", "nonexistent"}});
    game.Person().PressKey(Key::Right);
    EXPECT_TRUE(game.WaitForPicture(CarInLane(8)));
    game.Person().ReleaseKey(Key::Right);
    EXPECT_EQ(game.Close(), std::optional(0));
}

// They count as read: only options that cannot be read are written anew.
TEST(GameStart, ReadsTenMegabytesOfOptions) {
    std::string options = "[Options]\r\nLanguage=\"en\"\r\n";
    for (int i = 0; options.size() < 10U << 20U; ++i) {
        options += "Key" + std::to_string(i) + "=\"Value\"\r\n";
    }
    const PreparedHome home;
    home.Put(OptionsFile, options);
    PlayedGame game({}, {}, &home);
    EXPECT_EQ(game.Close(), std::optional(0));
    EXPECT_TRUE(home.Read(OptionsFile) == options);
}

TEST(GameStart, WithoutAVideoDriverSaysSoInOneLineAndEndsWithResultOne) {
    GameSession session(GameProgram(), {}, {{"SDL_VIDEO_DRIVER", "nonexistent"}});
    EXPECT_EQ(session.Program().WaitForExit(PatientDeadline), std::optional(1));
    const std::vector<std::string> lines = Lines(session.Program().Output());
    ASSERT_EQ(lines.size(), 1U) << session.Program().Output();
    EXPECT_TRUE(lines[0].starts_with("SDL_Init failed: ")) << lines[0];
    EXPECT_GT(lines[0].size(), std::string("SDL_Init failed: ").size()) << "the reason is missing";
}
