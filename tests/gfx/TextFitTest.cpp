#include "gfx/Credits.hpp"
#include "gfx/FontGlyphs.hpp"
#include "gfx/GameOverPanel.hpp"
#include "gfx/Help.hpp"
#include "gfx/Hud.hpp"
#include "gfx/MainMenu.hpp"
#include "gfx/OptionsPages.hpp"
#include "gfx/PausePanel.hpp"
#include "sim/Lanes.hpp"
#include "state/LogicalScreen.hpp"
#include "state/MenuRows.hpp"
#include "state/Resolutions.hpp"
#include "tests/gfx/DrawRecorder.hpp"
#include "tests/gfx/ScreenTest.hpp"
#include "tests/support/watch/ProgramFolder.hpp"
#include "text/Languages.hpp"
#include "text/Utf8.hpp"

#include <algorithm>
#include <functional>
#include <ostream>
#include <span>

// The words of every language that ships with the game have their place on every screen.

void PrintTo(const DrawnLetter &Letter, std::ostream *Stream) {
    *Stream << "a letter at " << Letter.Ink.x << ", " << Letter.Ink.y << " of " << Letter.Ink.w << " by "
            << Letter.Ink.h;
}

namespace {

constexpr std::array NarrowWidths{960, 1080, 1280};
constexpr float ScreenMargin = 4.0F; ///< what a text keeps from the screen's sides at least
constexpr float PanelMargin = 12.0F; ///< and from a panel's

/// The letters of several languages in the same places make many failures: a few of them are enough.
constexpr std::size_t ToldFailures = 3;

float RightOf(const SDL_FRect &Rectangle) {
    return Rectangle.x + Rectangle.w;
}

float BottomOf(const SDL_FRect &Rectangle) {
    return Rectangle.y + Rectangle.h;
}

bool IsInside(const SDL_FRect &Inner, const SDL_FRect &Outer) {
    return Inner.x >= Outer.x && Inner.y >= Outer.y && RightOf(Inner) <= RightOf(Outer) &&
           BottomOf(Inner) <= BottomOf(Outer);
}

/// Whether there is less than a distance between two boxes.
bool AreClose(const SDL_FRect &A, const SDL_FRect &B, float Distance) {
    return A.x < RightOf(B) + Distance && B.x < RightOf(A) + Distance && A.y < BottomOf(B) + Distance &&
           B.y < BottomOf(A) + Distance;
}

void ExpectInside(const DrawnFrame &Frame, const SDL_FRect &Area) {
    std::size_t told = 0;
    for (const DrawnLetter &letter : Frame.Letters) {
        if (!IsInside(letter.Ink, Area) && told++ < ToldFailures) {
            ADD_FAILURE() << ::testing::PrintToString(letter) << " leaves its place";
        }
    }
}

/// No letter comes closer to another than the letters of a word do.
void ExpectApart(const DrawnFrame &Frame) {
    std::size_t told = 0;
    std::span<const DrawnLetter> others = Frame.Letters;
    for (const DrawnLetter &letter : Frame.Letters) {
        others = others.subspan(1); // those behind it
        for (const DrawnLetter &other : others) {
            const float square = std::max(letter.Square, other.Square);
            if (AreClose(letter.Ink, other.Ink, square) && told++ < ToldFailures) {
                ADD_FAILURE() << ::testing::PrintToString(letter) << " runs into "
                              << ::testing::PrintToString(other);
            }
        }
    }
}

void ExpectClearOfRectanglesAndSprites(const DrawnFrame &Frame) {
    for (const DrawnLetter &letter : Frame.Letters) {
        for (const auto *const things : {&Frame.Rectangles, &Frame.Sprites}) {
            for (const SDL_FRect &thing : *things) {
                EXPECT_FALSE(AreClose(letter.Ink, thing, letter.Square)) << ::testing::PrintToString(letter);
            }
        }
    }
}

/// An area without a strip at its left and right.
SDL_FRect Narrowed(const SDL_FRect &Area, float Margin) {
    return {Area.x + Margin, Area.y, Area.w - 2.0F * Margin, Area.h};
}

SDL_FRect UsableScreen() {
    return Narrowed({0.0F, 0.0F, static_cast<float>(LogicalWidth), LogicalHeightF}, ScreenMargin);
}

/// How many texts stand side by side, parted by more than a blank is wide.
int CountSideBySide(const DrawnFrame &Frame, float Top, float Bottom) {
    std::vector<DrawnLetter> row;
    for (const DrawnLetter &letter : Frame.Letters) {
        if (letter.Ink.y >= Top && letter.Ink.y < Bottom) {
            row.push_back(letter);
        }
    }
    int count = row.empty() ? 0 : 1;
    for (std::size_t i = 1; i < row.size(); ++i) {
        const float blank = 10.0F * row[i].Square; // with what is free beside the letters
        count += row[i].Ink.x - RightOf(row[i - 1].Ink) > blank ? 1 : 0;
    }
    return count;
}

} // namespace

class TextFit : public ScreenTest {
protected:
    using Drawing = std::function<void()>;

    TextFit() : OldLocalization(Localization) {}
    ~TextFit() override {
        Localization = OldLocalization;
    }

    DrawnFrame FrameOf(const Drawing &Draw) {
        const DrawRecorder recorder(Watch);
        Draw();
        return recorder.Frame();
    }

    /// Looks in every language and on each of the narrow screens.
    void Everywhere(const std::function<void()> &Look) {
        for (const char *language : {"en", "de", "nl", "fi"}) {
            State.Language = language;
            LoadLanguage(State);
            ASSERT_EQ(State.Language, language);
            for (const int width : NarrowWidths) {
                LogicalWidth = width;
                SCOPED_TRACE(std::string(language) + " at " + std::to_string(width));
                Look();
            }
        }
    }

    /// The same for each choice of open devices.
    void EverywhereWithDevices(const std::function<void()> &Look) {
        for (const bool hasGamepad : {false, true}) {
            for (const bool hasJoystick : {false, true}) {
                Plug(hasGamepad, hasJoystick);
                SCOPED_TRACE(std::string(hasGamepad ? "pad " : "") + (hasJoystick ? "joystick" : ""));
                Everywhere(Look);
            }
        }
    }

    void ExpectFit(const Drawing &Draw) {
        const DrawnFrame frame = FrameOf(Draw);
        ASSERT_GT(frame.Letters.size(), 10U);
        ExpectInside(frame, UsableScreen());
        ExpectApart(frame);
    }

    void ExpectFitInPanel(const Drawing &Draw) {
        ExpectFit(Draw);
        const DrawnFrame frame = FrameOf(Draw);
        ASSERT_EQ(frame.Rectangles.size(), 2U); // the border and the veil
        EXPECT_TRUE(IsInside(frame.Rectangles.front(), UsableScreen()));
        ExpectInside(frame, Narrowed(frame.Rectangles.back(), PanelMargin));
    }

    void ExpectOptionsFit() {
        ExpectFit([this] {
            RenderOptions(Renderer(), State, Devices);
        });
    }

private:
    SdlWatch Watch;
    const ProgramFolder Shipped{Watch, ShippedData()};
    LocalizationTable OldLocalization;
};

TEST_F(TextFit, EveryLetterOfEveryTextIsInTheFont) {
    const std::uint64_t questionMark = FindGlyph('?').Rows;
    Everywhere([questionMark] {
        EXPECT_EQ(Localization.Texts.size(), TextTable.size());
        for (const auto &[key, text] : Localization.Texts) {
            for (std::size_t i = 0; i < text.size();) {
                const DecodedCodePoint decoded = DecodeUtf8(text, i);
                const std::uint64_t rows = FindGlyph(decoded.CodePoint).Rows;
                EXPECT_NE(rows, questionMark) << key;
                EXPECT_EQ(rows == 0, decoded.CodePoint == ' ') << key;
                i += decoded.Length;
            }
        }
    });
}

TEST_F(TextFit, MainMenu) {
    Everywhere([this] {
        for (const bool hasRun : {false, true}) {
            State.HasRunState = hasRun;
            for (std::uint32_t row = 0; row < MainMenuRowCount(hasRun); ++row) {
                State.MainMenuSelection = row;
                ExpectFit([this] {
                    RenderMainMenu(Renderer(), State);
                });
            }
        }
    });
}

TEST_F(TextFit, Credits) {
    State.CreditsScroll = 500.0F; // all of them on the screen
    Everywhere([this] {
        ExpectFit([this] {
            RenderCredits(Renderer(), State);
        });
    });
}

TEST_F(TextFit, HudBesideTheRoad) {
    State = RunBehindAPanel();
    State.Stage = 1000;
    State.Score = 99999999;
    State.HighScore = 99999999;
    State.Player.Stocks = 99;
    State.FirstAidKits = 3;
    Everywhere([this] {
        const DrawnFrame frame = FrameOf([this] {
            DrawHud(Renderer(), State);
        });
        ExpectInside(frame, UsableScreen());
        ExpectApart(frame);
        ExpectClearOfRectanglesAndSprites(frame);
        for (const DrawnLetter &letter : frame.Letters) {
            EXPECT_TRUE(RightOf(letter.Ink) <= RoadLeft() || letter.Ink.x >= RoadRight())
                << ::testing::PrintToString(letter) << " is on the road";
        }
        ASSERT_EQ(frame.Rectangles.size(), 4U); // the bars
        ASSERT_EQ(frame.Sprites.size(), 7U);    // the car, the bombs and the kits
        for (const auto *const things : {&frame.Rectangles, &frame.Sprites}) {
            for (const SDL_FRect &thing : *things) {
                EXPECT_GE(thing.x, RoadRight());
                EXPECT_TRUE(IsInside(thing, UsableScreen()));
            }
        }
    });
}

TEST_F(TextFit, BannerOverTheRoad) {
    State.ReadyBanner = 1.0F;
    Everywhere([this] {
        const DrawnFrame frame = FrameOf([this] {
            DrawGameplayOverlays(Renderer(), State);
        });
        ASSERT_GE(frame.Letters.size(), 5U);
        ExpectInside(frame, {RoadLeft(), 0.0F, RoadRight() - RoadLeft(), LogicalHeightF});
    });
}

TEST_F(TextFit, PausePanel) {
    EverywhereWithDevices([this] {
        for (std::int32_t row = 0; row < PauseRowCount; ++row) {
            State.PauseSelection = row;
            ExpectFitInPanel([this] {
                RenderPauseOverlay(Renderer(), State, Devices);
            });
        }
    });
}

TEST_F(TextFit, GameOverPanel) {
    EverywhereWithDevices([this] {
        ExpectFitInPanel([this] {
            RenderGameOverOverlay(Renderer(), State, Devices);
        });
    });
}

TEST_F(TextFit, OptionsMainPage) {
    EverywhereWithDevices([this] {
        for (const enum Screen from : {ScreenMainMenu, ScreenPaused}) {
            State.OptionsReturnScreen = from;
            for (std::int32_t row = 0; row < OptionsMainRowCount; ++row) {
                State.OptionsMainSelection = row;
                ExpectOptionsFit();
            }
        }
    });
}

TEST_F(TextFit, ControlsPage) {
    State.OptionsPage = OptionsPageControls;
    EverywhereWithDevices([this] {
        for (const auto device : {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
            State.ControlsDevice = device;
            for (std::int32_t row = 0; row < ControlsRowCount; ++row) {
                State.ControlsSelection = row;
                ExpectOptionsFit();
            }
        }
    });
}

TEST_F(TextFit, ControlsPageWithNothingBound) {
    State.OptionsPage = OptionsPageControls;
    State.KeyboardBindings.fill(UnboundKey);
    State.GamepadBindings.fill(UnboundButton);
    State.JoystickBindings.fill(UnboundButton);
    Everywhere([this] {
        for (const auto device : {ControlsDeviceKeyboard, ControlsDeviceGamepad, ControlsDeviceJoystick}) {
            State.ControlsDevice = device;
            ExpectOptionsFit();
        }
    });
}

TEST_F(TextFit, ControlsPageWithKeysThatHaveNoName) {
    State.OptionsPage = OptionsPageControls;
    State.KeyboardBindings.fill(LastScancode);
    ASSERT_STREQ(SDL_GetScancodeName(static_cast<SDL_Scancode>(LastScancode)), "");
    Everywhere([this] {
        ExpectOptionsFit();
    });
}

TEST_F(TextFit, PromptsOfTheControlsPage) {
    State.OptionsPage = OptionsPageControls;
    State.CaptureActive = true;
    Everywhere([this] {
        for (const auto kind :
            {CaptureKindNone, CaptureKindKeyboard, CaptureKindGamepad, CaptureKindJoystick}) {
            State.CaptureKind = kind;
            for (std::int32_t row = 0; row < 5; ++row) {
                State.CaptureKeyboardRow = row;
                State.CaptureGamepadRow = row;
                State.CaptureJoystickRow = row;
                ExpectOptionsFit();
            }
        }
    });
}

TEST_F(TextFit, GraphicsPage) {
    State.OptionsPage = OptionsPageGraphics;
    State.RefreshRate = 240;
    EverywhereWithDevices([this] {
        for (const auto aspect : {AspectWidescreen, AspectClassic4x3}) {
            State.AspectMode = aspect;
            State.ResolutionIndex = static_cast<std::int32_t>(BuiltInResolutions(aspect).size()) - 1;
            State.RefreshRate = 240 - State.RefreshRate; // and automatic in turn
            State.Fullscreen = !State.Fullscreen;
            for (std::int32_t row = 0; row < GraphicsRowCount; ++row) {
                State.GraphicsSelection = row;
                State.VSync = !State.VSync;
                ExpectOptionsFit();
            }
        }
    });
}

TEST_F(TextFit, AudioPage) {
    State.OptionsPage = OptionsPageAudio;
    State.MasterVolume = 100;
    EverywhereWithDevices([this] {
        State.MusicEnabled = !State.MusicEnabled;
        for (std::int32_t row = 0; row < AudioRowCount; ++row) {
            State.AudioSelection = row;
            ExpectOptionsFit();
        }
        for (const LanguageEntry &entry : Localization.Languages) {
            State.PendingAudioValid = true;
            State.PendingLanguage = entry.Code;
            ExpectOptionsFit();
            State.PendingAudioValid = false;
        }
    });
}

TEST_F(TextFit, HelpPage) {
    EverywhereWithDevices([this] {
        for (const enum Screen from : {ScreenMainMenu, ScreenPaused}) {
            State.HelpReturnScreen = from;
            const auto draw = [this] {
                RenderHelp(Renderer(), State, Devices);
            };
            ExpectFit(draw);
            EXPECT_EQ(CountSideBySide(FrameOf(draw), 280.0F, 300.0F), 4); // the items' names
        }
    });
}
