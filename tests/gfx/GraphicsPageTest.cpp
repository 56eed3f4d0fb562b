#include "state/Resolutions.hpp"
#include "tests/gfx/OptionsPageTest.hpp"

namespace {

/// The values of the five options.
ToldPage Page(const std::array<std::u32string, 5> &Values) {
    constexpr std::array labels{U"RESOLUTION", U"ASPECT MODE", U"REFRESH RATE", U"DISPLAY MODE", U"VSYNC"};
    std::vector<ToldRow> rows;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        rows.push_back({labels[i], Values[i]});
    }
    for (const char32_t *const verb : {U"DEFAULT SETTINGS", U"APPLY", U"REVERT", U"BACK"}) {
        rows.push_back({verb});
    }
    return {.Section = U"GRAPHICS",
        .Rows = rows,
        .FirstHint = U"LEFT / RIGHT CHANGE VALUE",
        .FirstHintY = 464,
        .SecondHint = U"ENTER SELECT     ESC BACK",
        .SecondHintY = 492};
}

ToldPage DefaultPage() {
    return Page({U"1280X720", U"WIDESCREEN", U"AUTO", U"FULLSCREEN", U"ON"});
}

std::u32string SizeText(const Resolution &Size) {
    return Letters(std::to_string(Size.Width) + "X" + std::to_string(Size.Height));
}

class GraphicsPage : public OptionsPageTest {
protected:
    GraphicsPage() : OptionsPageTest(OptionsPageGraphics) {}
};

TEST_F(GraphicsPage, ShowsTheOptionsAsTheyStandOnEveryScreen) {
    for (const int width : TestedWidths) {
        OpenWidth(width);
        for (const DeviceCase &devices : PageDeviceCases) {
            Plug(devices);
            ToldPage told = DefaultPage();
            told.Width = width;
            if (!devices.Line.empty()) {
                told.SecondHint = devices.Line;
            }
            EXPECT_TRUE(Shows(told)) << width << " " << devices.HasGamepad << devices.HasJoystick;
        }
    }
}

TEST_F(GraphicsPage, ShowsEachOtherValue) {
    State.AspectMode = AspectClassic4x3;
    State.Resolutions = {{640, 480}, {1024, 768}};
    State.ResolutionIndex = 1;
    State.RefreshRate = 144;
    State.Fullscreen = false;
    State.VSync = false;
    const ToldPage told = Page({U"1024X768", U"4:3", U"144 HZ", U"WINDOWED", U"OFF"});
    EXPECT_TRUE(Shows(told));
}

TEST_F(GraphicsPage, ShowsTheEditedOptionsNotTheSnapshot) {
    State.GraphicsSnapshot = {1024, 768, AspectClassic4x3, 85, false, false};
    for (const bool valid : {true, false}) {
        State.GraphicsSnapshotValid = valid;
        EXPECT_TRUE(Shows(DefaultPage())) << valid;
    }
}

TEST_F(GraphicsPage, ShowsEveryResolutionInPlain) {
    for (const enum AspectMode aspect : {AspectWidescreen, AspectClassic4x3}) {
        State.AspectMode = aspect;
        const std::span<const Resolution> sizes = BuiltInResolutions(aspect);
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            State.ResolutionIndex = static_cast<std::int32_t>(i);
            ToldPage told = DefaultPage();
            told.Rows[0].Value = SizeText(sizes[i]);
            told.Rows[1].Value = aspect == AspectWidescreen ? U"WIDESCREEN" : U"4:3";
            EXPECT_TRUE(ShowsRows(told)) << aspect << " " << i;
        }
    }
}

TEST_F(GraphicsPage, ShowsTheNearestResolutionForAnIndexThatIsNone) {
    State.Resolutions = {{1366, 768}, {3840, 2160}};
    ToldPage told = DefaultPage();
    State.ResolutionIndex = -1;
    told.Rows[0].Value = U"1366X768";
    EXPECT_TRUE(ShowsRows(told));
    State.ResolutionIndex = 2;
    told.Rows[0].Value = U"3840X2160";
    EXPECT_TRUE(ShowsRows(told));
}

TEST_F(GraphicsPage, ShowsARateInHzAndNoneAsAuto) {
    struct Case {
        std::int32_t Rate;
        std::u32string Text;
    };
    for (const Case &rate : {Case{0, U"AUTO"}, Case{-1, U"AUTO"}, Case{-1000, U"AUTO"}, Case{1, U"1 HZ"},
             Case{60, U"60 HZ"}, Case{1000, U"1000 HZ"}}) {
        State.RefreshRate = rate.Rate;
        ToldPage told = DefaultPage();
        told.Rows[2].Value = rate.Text;
        EXPECT_TRUE(ShowsRows(told)) << rate.Rate;
    }
}

TEST_F(GraphicsPage, MarksEachRowWhileItIsSelected) {
    for (int row = 0; row < 9; ++row) {
        State.GraphicsSelection = row;
        ToldPage told = DefaultPage();
        told.SelectedRow = row;
        EXPECT_TRUE(Shows(told)) << row;
    }
    for (const int none : {-1, 9}) {
        State.GraphicsSelection = none;
        ToldPage told = DefaultPage();
        told.SelectedRow = -1;
        EXPECT_TRUE(Shows(told)) << none;
    }
}

TEST_F(GraphicsPage, ShiftsItsColumnsWithItsValuesAndTheLanguage) {
    State.AspectMode = AspectClassic4x3;
    State.Fullscreen = false;
    State.Resolutions = {{5120, 1440}};
    State.ResolutionIndex = 0;
    EXPECT_TRUE(Shows(Page({U"5120X1440", U"4:3", U"AUTO", U"WINDOWED", U"ON"})));
    Localization.Texts["Options.Graphics.DisplayMode"] = "ANZEIGE-BETRIEBSART";
    Localization.Texts["Options.Graphics.DisplayMode.Windowed"] = "IM FENSTER";
    ToldPage told = Page({U"5120X1440", U"4:3", U"AUTO", U"IM FENSTER", U"ON"});
    told.Rows[3].Label = U"ANZEIGE-BETRIEBSART";
    EXPECT_TRUE(Shows(told));
}

TEST_F(GraphicsPage, StandsAtHalfPixelsWhereItsColumnsAreOdd) {
    OpenWidth(960, 2);
    Localization.Texts["Options.Graphics.AspectMode.Widescreen"] = "BREITBILD"; // 336 + 32 + 189 wide
    State.Fullscreen = false;
    ToldPage told = Page({U"1280X720", U"BREITBILD", U"AUTO", U"WINDOWED", U"ON"});
    told.Width = 960;
    EXPECT_TRUE(Shows(told, 2));
}

TEST_F(GraphicsPage, TakesEachOfItsTextsFromTheTableInEveryFrame) {
    ASSERT_TRUE(Shows(DefaultPage()));
    Localization.Texts = {{"Options.Title", "T"}, {"Options.Section.Graphics", "S"},
        {"Options.Graphics.Resolution", "L1"}, {"Options.Graphics.AspectMode", "L2"},
        {"Options.Graphics.RefreshRate", "L3"}, {"Options.Graphics.DisplayMode", "L4"},
        {"Options.Graphics.Vsync", "L5"}, {"Options.DefaultSettings", "V1"}, {"Common.Apply", "V2"},
        {"Common.Revert", "V3"}, {"Common.Back", "V4"}, {"Options.Graphics.AspectMode.Classic4x3", "WC"},
        {"Options.Graphics.AspectMode.Widescreen", "WW"}, {"Options.Graphics.AutoRefresh", "WA"},
        {"Options.Graphics.DisplayMode.Fullscreen", "WF"}, {"Options.Graphics.DisplayMode.Windowed", "WN"},
        {"Common.On", "JA"}, {"Common.Off", "NEIN"}, {"Options.Hint.LeftRightChange", "H1"},
        {"Options.Hint.EnterSelectEscBack", "H2"}, {"Controller.Hint.Select", "C1"},
        {"Controller.Hint.Back", "C2"}};
    const auto translated = [](const std::array<std::u32string, 5> &Values) {
        ToldPage told = Page(Values);
        constexpr std::array labels{U"L1", U"L2", U"L3", U"L4", U"L5", U"V1", U"V2", U"V3", U"V4"};
        for (std::size_t i = 0; i < labels.size(); ++i) {
            told.Rows[i].Label = labels[i];
        }
        told.Title = U"T";
        told.Section = U"S";
        told.FirstHint = U"H1";
        told.SecondHint = U"H2";
        return told;
    };
    EXPECT_TRUE(Shows(translated({U"1280X720", U"WW", U"WA", U"WF", U"JA"})));
    State.AspectMode = AspectClassic4x3;
    State.RefreshRate = 75; // the unit is not translated
    State.Fullscreen = false;
    State.VSync = false;
    EXPECT_TRUE(Shows(translated({U"1024X768", U"WC", U"75 HZ", U"WN", U"NEIN"})));
    Plug(true, false);
    ToldPage told = translated({U"1024X768", U"WC", U"75 HZ", U"WN", U"NEIN"});
    told.SecondHint = U"PAD A C1 B C2";
    EXPECT_TRUE(Shows(told));
}

} // namespace
