#include "gfx/Credits.hpp"
#include "gfx/GameOverPanel.hpp"
#include "gfx/Help.hpp"
#include "gfx/MainMenu.hpp"
#include "gfx/OptionsPages.hpp"
#include "gfx/PausePanel.hpp"
#include "gfx/World.hpp"
#include "tests/gfx/ScreenTest.hpp"
#include "tests/sim/RecordHash.hpp"

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

// What holds for all the screens around a run.

namespace {

using DrawPlain = void (*)(SDL_Renderer *, const GameState &);
using DrawWithDevices = void (*)(SDL_Renderer *, const GameState &, const InputDevices &);

// They are given nothing that they could change.
static_assert(std::is_same_v<decltype(&RenderMainMenu), DrawPlain>);
static_assert(std::is_same_v<decltype(&RenderCredits), DrawPlain>);
static_assert(std::is_same_v<decltype(&RenderPauseOverlay), DrawWithDevices>);
static_assert(std::is_same_v<decltype(&RenderGameOverOverlay), DrawWithDevices>);
static_assert(std::is_same_v<decltype(&RenderOptions), DrawWithDevices>);
static_assert(std::is_same_v<decltype(&RenderHelp), DrawWithDevices>);

struct ScreenCase {
    const char *Name;
    DrawWithDevices Draw;
};

constexpr ScreenCase TheMainMenu{
    "main menu", [](SDL_Renderer *Renderer, const GameState &State, const InputDevices &) {
        RenderMainMenu(Renderer, State);
    }};
constexpr ScreenCase TheCredits{
    "credits", [](SDL_Renderer *Renderer, const GameState &State, const InputDevices &) {
        RenderCredits(Renderer, State);
    }};
constexpr ScreenCase ThePausePanel{"pause panel", RenderPauseOverlay};
constexpr ScreenCase TheGameOverPanel{"game-over panel", RenderGameOverOverlay};
constexpr ScreenCase TheOptions{"options", RenderOptions};
constexpr ScreenCase TheHelp{"help", RenderHelp};

constexpr std::array FullScreens{TheMainMenu, TheCredits, TheOptions, TheHelp};
constexpr std::array AllScreens{
    TheMainMenu, TheCredits, ThePausePanel, TheGameOverPanel, TheOptions, TheHelp};

struct Word {
    const char *Key;
    const char *Default;
};

/// What colours are brightened by where one level more or less of them is to show: blended with its alpha
/// alone, a dark one is cut to the same level as its neighbour.
constexpr float Brightening = 3.0F;

/// Every level of red and of green, side by side, so that an alpha that is off by one shows.
void DrawRamp(SDL_Renderer *Renderer, int Width) {
    for (int x = 0; x < Width; ++x) {
        const auto level = static_cast<Uint8>(x % 256);
        SDL_SetRenderDrawColor(
            Renderer, level, static_cast<Uint8>(255 - level), static_cast<Uint8>(x / 5), 255);
        const SDL_FRect column{static_cast<float>(x), 0.0F, 1.0F, 720.0F};
        SDL_RenderFillRect(Renderer, &column);
    }
}

void BlendOver(SDL_Renderer *Renderer, const SDL_FRect &Area, Uint8 Level, Uint8 Alpha) {
    SDL_SetRenderDrawColor(Renderer, Level, Level, Level, Alpha);
    SDL_RenderFillRect(Renderer, &Area);
}

} // namespace

class Screens : public ScreenTest {
protected:
    Screens() {
        State = RunBehindAPanel();
        State.MainMenuSelection = 9;
        State.PauseSelection = 2;
        State.OptionsMainSelection = 1;
        State.CreditsScroll = 500.0F;
    }

    Picture PictureOf(const ScreenCase &Case) {
        Clear();
        Case.Draw(Renderer(), State, Devices);
        return Shown();
    }

    /// A screen that finds no word in the table leaves its own English ones there.
    void ExpectEnglishWords(const ScreenCase &Case, const std::vector<Word> &Words) {
        Localization.Texts.clear();
        Case.Draw(Renderer(), State, Devices);
        for (const Word &word : Words) {
            const auto found = Localization.Texts.find(word.Key);
            ASSERT_NE(found, Localization.Texts.end()) << Case.Name << ": " << word.Key;
            EXPECT_EQ(found->second, word.Default) << Case.Name << ": " << word.Key;
        }
    }

    /// The panel on a ramp, but for the rows with its texts: those between TextTop and TextBottom.
    void ExpectPanelOnRamp(
        const ScreenCase &Case, const SDL_FRect &Panel, Uint8 VeilAlpha, int TextTop, int TextBottom) {
        DrawRamp(Renderer(), ScreenWidth);
        SDL_SetRenderColorScale(Renderer(), Brightening);
        BlendOver(Renderer(), {Panel.x - 2.0F, Panel.y - 2.0F, Panel.w + 4.0F, Panel.h + 4.0F}, 78, 180);
        BlendOver(Renderer(), Panel, 0, VeilAlpha);
        SDL_SetRenderColorScale(Renderer(), 1.0F);
        const ExpectedPicture expected(Shown());
        DrawRamp(Renderer(), ScreenWidth);
        SDL_SetRenderColorScale(Renderer(), Brightening);
        Case.Draw(Renderer(), State, Devices);
        SDL_SetRenderColorScale(Renderer(), 1.0F);
        const Picture shown = Shown();
        EXPECT_TRUE(expected.IsShownBy(shown, {0, 0, ScreenWidth, TextTop}));
        EXPECT_TRUE(expected.IsShownBy(shown, {0, TextBottom, ScreenWidth, ScreenHeight - TextBottom}));
    }
};

TEST_F(Screens, HaveTheirEnglishWordsBesideTheirKeys) {
    ExpectEnglishWords(
        TheMainMenu, {{"MainMenu.ContinueGame", "CONTINUE GAME"}, {"MainMenu.NewGame", "NEW GAME"},
                         {"MainMenu.Options", "OPTIONS"}, {"MainMenu.Help", "HELP"},
                         {"MainMenu.Credits", "CREDITS"}, {"MainMenu.Quit", "QUIT"}});
    ExpectEnglishWords(TheCredits, {{"Credits.ProgrammedBy", "PROGRAMMED BY"}, {"Credits.GfxBy", "GFX BY"},
                                       {"Credits.SfxMusicBy", "SFX & MUSIC BY"}});
    Plug(true, true);
    ExpectEnglishWords(ThePausePanel,
        {{"Pause.Title", "PAUSED"}, {"Pause.Menu.Resume", "RESUME"}, {"Pause.Menu.Options", "OPTIONS"},
            {"Pause.Menu.Help", "HELP"}, {"Pause.Menu.MainMenu", "MAIN MENU"},
            {"Pause.Hint.Primary", "ENTER SELECT   ESC RESUME"}, {"Controller.Hint.Select", "SELECT"},
            {"Controller.Hint.Resume", "RESUME"}, {"Controller.Hint.PadPrefix", "PAD"},
            {"Controller.Hint.JoyPrefix", "JOY"}});
    ExpectEnglishWords(TheGameOverPanel,
        {{"GameOver.Title", "GAME OVER"}, {"GameOver.Hint.BackToMainMenu", "ENTER OR ESC BACK TO MAIN MENU"},
            {"Controller.Hint.MainMenu", "MAIN MENU"}, {"Controller.Hint.Or", "OR"}});
}

TEST_F(Screens, OfTheOptionsHaveTheirEnglishWordsBesideTheirKeys) {
    Plug(true, true);
    ExpectEnglishWords(
        TheOptions, {{"Options.Title", "OPTIONS"}, {"Options.Section.Menu", "MENU"},
                        {"Options.Main.Controls", "CONTROLS"}, {"Options.Main.Graphics", "GRAPHICS"},
                        {"Options.Main.Audio", "AUDIO"}, {"Common.Back", "BACK"},
                        {"Options.Hint.MainBackToMainMenu", "ENTER SELECT   ESC BACK TO MAIN MENU"},
                        {"Controller.Hint.Select", "SELECT"}, {"Controller.Hint.MainMenu", "MAIN MENU"}});
    State.OptionsReturnScreen = ScreenPaused;
    ExpectEnglishWords(
        TheOptions, {{"Options.Hint.MainBackToPauseMenu", "ENTER SELECT   ESC BACK TO PAUSE MENU"},
                        {"Controller.Hint.PauseMenu", "PAUSE MENU"}});
    State.OptionsPage = OptionsPageControls;
    ExpectEnglishWords(TheOptions, {{"Options.Title", "OPTIONS"}, {"Options.Section.Controls", "CONTROLS"}});
    State.OptionsPage = OptionsPageGraphics;
    ExpectEnglishWords(TheOptions, {{"Options.Title", "OPTIONS"}, {"Options.Section.Graphics", "GRAPHICS"}});
    State.OptionsPage = OptionsPageAudio;
    ExpectEnglishWords(TheOptions, {{"Options.Title", "OPTIONS"}, {"Options.Section.Audio", "AUDIO"}});
}

TEST_F(Screens, OfHelpHaveTheirEnglishWordsBesideTheirKeys) {
    Plug(true, true);
    ExpectEnglishWords(TheHelp,
        {{"Help.Title", "HELP"}, {"Help.Intro", "SURVIVE THE ROAD AND CLEAR ENEMIES"},
            {"Help.Items.Title", "ITEMS"}, {"Help.Item.FirstAid", "FIRST AID"}, {"Help.Item.Bomb", "BOMB"},
            {"Help.Item.Invincibility", "INVINCIBILITY"}, {"Help.Item.DualWeapon", "DUAL WEAPON"},
            {"Help.Tip.Bombs", "USE BOMBS TO CLEAR THE SCREEN"},
            {"Help.Tip.FirstAid", "USE FIRST AID WHEN NEEDED"},
            {"Help.Hint.BackToMainMenu", "ENTER OR ESC BACK TO MAIN MENU"},
            {"Controller.Hint.MainMenu", "MAIN MENU"}});
    State.HelpReturnScreen = ScreenPaused;
    ExpectEnglishWords(TheHelp, {{"Help.Hint.BackToPauseMenu", "ENTER OR ESC BACK TO PAUSE MENU"},
                                    {"Controller.Hint.PauseMenu", "PAUSE MENU"}});
}

TEST_F(Screens, ShowTheEnglishWordForAnEmptyTranslation) {
    for (const ScreenCase &screen : AllScreens) {
        Localization.Texts.clear();
        const Picture english = PictureOf(screen);
        for (auto &[key, text] : Localization.Texts) {
            text.clear();
        }
        EXPECT_TRUE(PictureOf(screen) == english) << screen.Name;
    }
}

TEST_F(Screens, ChangeNothingOfTheGame) {
    Plug(true, true);
    for (const ScreenCase &screen : AllScreens) {
        const std::uint64_t run = HashOfRun(State);
        screen.Draw(Renderer(), State, Devices);
        EXPECT_EQ(HashOfRun(State), run) << screen.Name;
        EXPECT_EQ(State.MainMenuSelection, 9U) << screen.Name;
        EXPECT_EQ(State.PauseSelection, 2) << screen.Name;
        EXPECT_EQ(State.OptionsMainSelection, 1) << screen.Name;
        EXPECT_EQ(State.CreditsScroll, 500.0F) << screen.Name;
        EXPECT_EQ(State.OptionsPage, OptionsPageMain) << screen.Name;
        EXPECT_EQ(State.OptionsReturnScreen, ScreenMainMenu) << screen.Name;
        EXPECT_EQ(State.HelpReturnScreen, ScreenMainMenu) << screen.Name;
        EXPECT_EQ(State.GamepadBindings, DefaultGamepadBindings) << screen.Name;
        EXPECT_EQ(State.JoystickBindings, DefaultJoystickBindings) << screen.Name;
    }
}

TEST_F(Screens, ThatAreFullCoverTheLogicalScreenAndNothingBesideIt) {
    Open(960, 1280, 720); // bars of 160 on both sides
    for (const ScreenCase &screen : FullScreens) {
        const Picture shown = PictureOf(screen);
        for (int y = 0; y < 720; ++y) {
            ASSERT_EQ(shown.At(159, y), Backdrop) << screen.Name << " " << y;
            ASSERT_EQ(shown.At(160, y), 0xFF000000) << screen.Name << " " << y;
            ASSERT_EQ(shown.At(1119, y), 0xFF000000) << screen.Name << " " << y;
            ASSERT_EQ(shown.At(1120, y), Backdrop) << screen.Name << " " << y;
        }
    }
}

TEST_F(Screens, ThatAreFullHideWhatWasThereBefore) {
    for (const ScreenCase &screen : FullScreens) {
        const Picture onBackdrop = PictureOf(screen);
        Clear();
        RenderGameplay(Renderer(), State);
        screen.Draw(Renderer(), State, Devices);
        EXPECT_TRUE(Shown() == onBackdrop) << screen.Name;
    }
}

TEST_F(Screens, NeitherBlinkNorFade) {
    std::vector<Picture> before;
    for (const ScreenCase &screen : AllScreens) {
        before.push_back(PictureOf(screen));
    }
    SDL_Delay(700);
    State.GameTime += 3.3F;
    State.ReadyBanner = 0.4F;
    for (std::size_t i = 0; i < AllScreens.size(); ++i) {
        EXPECT_TRUE(PictureOf(AllScreens.at(i)) == before[i]) << AllScreens.at(i).Name;
    }
}

TEST_F(Screens, WithAPanelBlendItsBorderAndItsVeilToTheBit) {
    ExpectPanelOnRamp(ThePausePanel, {397.0F, 169.0F, 486.0F, 382.0F}, 0x78, 195, 527);
    ExpectPanelOnRamp(TheGameOverPanel, {358.0F, 270.0F, 564.0F, 180.0F}, 0xAF, 304, 418);
}
