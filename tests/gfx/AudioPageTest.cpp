#include "tests/gfx/OptionsPageTest.hpp"

namespace {

/// The values of the six options.
ToldPage Page(const std::array<std::u32string, 6> &Values) {
    constexpr std::array labels{
        U"MASTER VOLUME", U"MUSIC VOLUME", U"SFX VOLUME", U"MUSIC", U"SFX", U"LANGUAGE"};
    std::vector<ToldRow> rows;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        rows.push_back({labels[i], Values[i]});
    }
    for (const char32_t *const verb : {U"DEFAULT SETTINGS", U"APPLY", U"REVERT", U"BACK"}) {
        rows.push_back({verb});
    }
    return {.Section = U"AUDIO",
        .Rows = rows,
        .FirstHint = U"LEFT / RIGHT CHANGE VALUE",
        .FirstHintY = 498,
        .SecondHint = U"ENTER SELECT     ESC BACK",
        .SecondHintY = 526};
}

ToldPage DefaultPage() {
    return Page({U"100%", U"50%", U"75%", U"ON", U"ON", U"ENGLISH"});
}

class AudioPage : public OptionsPageTest {
protected:
    AudioPage() : OptionsPageTest(OptionsPageAudio) {
        Localization.Languages = {{"en", "English", "En.ini"}, {"de", "Deutsch", "De.ini"},
            {"fo", "F\xC3\xB6royskt", "Fo.ini"}, {"xx", "", "Xx.ini"}};
    }
};

TEST_F(AudioPage, ShowsTheAppliedOptionsOnEveryScreen) {
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

TEST_F(AudioPage, ShowsThePendingOptionsWhileTheyAreValid) {
    State.PendingMasterVolume = 5;
    State.PendingMusicVolume = 37;
    State.PendingSfxVolume = 0;
    State.PendingMusicEnabled = false;
    State.PendingSfxEnabled = true;
    State.PendingLanguage = "de";
    State.SfxEnabled = false;
    State.PendingAudioValid = true;
    EXPECT_TRUE(Shows(Page({U"5%", U"37%", U"0%", U"OFF", U"ON", U"DEUTSCH"})));
    State.PendingMusicEnabled = true;
    State.PendingSfxEnabled = false;
    EXPECT_TRUE(Shows(Page({U"5%", U"37%", U"0%", U"ON", U"OFF", U"DEUTSCH"})));
    State.PendingAudioValid = false;
    State.MusicEnabled = true;
    EXPECT_TRUE(Shows(Page({U"100%", U"50%", U"75%", U"ON", U"OFF", U"ENGLISH"})));
    State.MusicEnabled = false;
    State.SfxEnabled = true;
    State.Language = "fo";
    EXPECT_TRUE(Shows(Page({U"100%", U"50%", U"75%", U"OFF", U"ON", U"F\u00D6ROYSKT"})));
}

TEST_F(AudioPage, ShowsEveryPercentage) {
    const auto percent = [](int Volume) {
        return Letters(std::to_string(Volume) + "%");
    };
    for (int third = 0; third < 34; ++third) { // 0 to 33, 34 to 67 and 67 to 100
        State.PendingAudioValid = third % 2 == 0;
        State.MasterVolume = State.PendingMasterVolume = third;
        State.MusicVolume = State.PendingMusicVolume = third + 34;
        State.SfxVolume = State.PendingSfxVolume = third + 67;
        const ToldPage told =
            Page({percent(third), percent(third + 34), percent(third + 67), U"ON", U"ON", U"ENGLISH"});
        EXPECT_TRUE(ShowsRows(told)) << third;
    }
}

TEST_F(AudioPage, NamesTheLanguageByItsCode) {
    struct Case {
        std::string Code;
        std::u32string Name;
    };
    for (const Case &language :
        {Case{"en", U"ENGLISH"}, Case{"de", U"DEUTSCH"}, Case{" D E ", U"DEUTSCH"},
            Case{"fo", U"F\u00D6ROYSKT"}, Case{"xx", U"XX"}, Case{"pt-br", U"PT-BR"}, Case{"", U"ENGLISH"}}) {
        State.Language = language.Code;
        ToldPage told = DefaultPage();
        told.Rows[5].Value = language.Name;
        EXPECT_TRUE(ShowsRows(told)) << language.Code;
    }
}

TEST_F(AudioPage, MarksEachRowWhileItIsSelected) {
    for (int row = 0; row < 10; ++row) {
        State.AudioSelection = row;
        ToldPage told = DefaultPage();
        told.SelectedRow = row;
        EXPECT_TRUE(Shows(told)) << row;
    }
    for (const int none : {-1, 10}) {
        State.AudioSelection = none;
        ToldPage told = DefaultPage();
        told.SelectedRow = -1;
        EXPECT_TRUE(Shows(told)) << none;
    }
}

TEST_F(AudioPage, ShiftsItsColumnsWithItsValuesAndTheLanguage) {
    State.Language = "pt-br";
    EXPECT_TRUE(Shows(Page({U"100%", U"50%", U"75%", U"ON", U"ON", U"PT-BR"})));
    Localization.Texts["Common.On"] = "EINGESCHALTET";
    Localization.Texts["Options.Audio.MasterVolume"] = "GESAMTLAUTST\xC3\x84RKE";
    ToldPage told = Page({U"100%", U"50%", U"75%", U"EINGESCHALTET", U"EINGESCHALTET", U"PT-BR"});
    told.Rows[0].Label = U"GESAMTLAUTST\u00C4RKE";
    EXPECT_TRUE(Shows(told));
}

TEST_F(AudioPage, StandsAtHalfPixelsWhereItsColumnsAreOdd) {
    OpenWidth(960, 2);
    ToldPage told = DefaultPage(); // 336 + 32 + 147 wide
    told.Width = 960;
    EXPECT_TRUE(Shows(told, 2));
}

TEST_F(AudioPage, TakesEachOfItsTextsFromTheTableInEveryFrame) {
    ASSERT_TRUE(Shows(DefaultPage()));
    Localization.Texts = {{"Options.Title", "T"}, {"Options.Section.Audio", "S"},
        {"Options.Audio.MasterVolume", "L1"}, {"Options.Audio.MusicVolume", "L2"},
        {"Options.Audio.SfxVolume", "L3"}, {"Options.Audio.Music", "L4"}, {"Options.Audio.Sfx", "L5"},
        {"Options.Audio.Language", "L6"}, {"Options.DefaultSettings", "V1"}, {"Common.Apply", "V2"},
        {"Common.Revert", "V3"}, {"Common.Back", "V4"}, {"Common.On", "JA"}, {"Common.Off", "NEIN"},
        {"Options.Hint.LeftRightChange", "H1"}, {"Options.Hint.EnterSelectEscBack", "H2"},
        {"Controller.Hint.Select", "C1"}, {"Controller.Hint.Back", "C2"}};
    State.SfxEnabled = false;
    ToldPage told = Page({U"100%", U"50%", U"75%", U"JA", U"NEIN", U"ENGLISH"});
    constexpr std::array labels{U"L1", U"L2", U"L3", U"L4", U"L5", U"L6", U"V1", U"V2", U"V3", U"V4"};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        told.Rows[i].Label = labels[i];
    }
    told.Title = U"T";
    told.Section = U"S";
    told.FirstHint = U"H1";
    told.SecondHint = U"H2";
    EXPECT_TRUE(Shows(told));
    Plug(true, false);
    told.SecondHint = U"PAD A C1 B C2";
    EXPECT_TRUE(Shows(told));
}

} // namespace
