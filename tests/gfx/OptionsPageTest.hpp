#pragma once

#include "gfx/OptionsPages.hpp"
#include "tests/gfx/ScreenTest.hpp"

#include <algorithm>
#include <string>
#include <vector>

/// One row of a page in two columns; a value may be empty.
struct ToldRow {
    std::u32string Label;
    std::u32string Value{};
};

/// What a page of options in two columns is to show.
struct ToldPage {
    std::u32string Section;
    std::vector<ToldRow> Rows;
    std::u32string FirstHint;
    double FirstHintY;
    std::u32string SecondHint;
    double SecondHintY;
    int SelectedRow = 0;
    int Width = ScreenWidth;
    std::u32string Title = U"OPTIONS";
    std::uint32_t FirstHintColor = 0xFFE1E1E1;
};

/// Which devices are plugged in, and the line about them on these pages.
inline constexpr std::array PageDeviceCases{
    DeviceCase{false, false, U""},
    DeviceCase{true, false, U"PAD A SELECT B BACK"},
    DeviceCase{false, true, U"JOY BUTTON 0 SELECT BUTTON 3 BACK"},
    DeviceCase{true, true, U"PAD A SELECT B BACK   JOY BUTTON 0 SELECT BUTTON 3 BACK"},
};

/// Letters of a text that has none beyond ASCII.
inline std::u32string Letters(const std::string &Text) {
    return {Text.begin(), Text.end()};
}

/// The widest of a column's texts, in logical pixels.
inline int ColumnWidth(const std::vector<ToldRow> &Rows, std::u32string ToldRow::*Column) {
    int widest = 0;
    for (const ToldRow &row : Rows) {
        widest = std::max(widest, CellWidth(row.*Column, 3));
    }
    return widest;
}

inline void ExpectRows(ExpectedScreen &Expected, const ToldPage &Told) {
    const int labelWidth = ColumnWidth(Told.Rows, &ToldRow::Label);
    const int valueWidth = ColumnWidth(Told.Rows, &ToldRow::Value);
    const double labelX = Told.Width / 2.0 - (labelWidth + 32 + valueWidth) / 2.0;
    for (std::size_t i = 0; i < Told.Rows.size(); ++i) {
        const bool isSelected = static_cast<int>(i) == Told.SelectedRow;
        const std::uint32_t color = isSelected ? 0xFFF5F5F5 : 0xFFB4B4B4;
        const double y = 150.0 + 34.0 * static_cast<double>(i);
        if (isSelected) {
            Expected.Text(U">", labelX - 24, y, 3, color);
        }
        Expected.Text(Told.Rows[i].Label, labelX, y, 3, color);
        Expected.Text(Told.Rows[i].Value, labelX + labelWidth + 32, y, 3, color);
    }
}

inline ExpectedScreen ScreenOf(const ToldPage &Told, int Zoom = 1) {
    ExpectedScreen expected(Told.Width, Zoom);
    const double center = Told.Width / 2.0;
    expected.Centered(Told.Title, center, 42, 6, 0xFFF0F0F0);
    expected.Centered(Told.Section, center, 100, 4, 0xFFFFAF69);
    ExpectRows(expected, Told);
    expected.Centered(Told.FirstHint, center, Told.FirstHintY, 2, Told.FirstHintColor);
    expected.Centered(Told.SecondHint, center, Told.SecondHintY, 2, 0xFFE1E1E1);
    return expected;
}

/// A test of one page of the options. The catalogue of languages is put back at the end.
class OptionsPageTest : public ScreenTest {
protected:
    explicit OptionsPageTest(enum OptionsPage Page) : OldLanguages(Localization.Languages) {
        Localization.Languages.clear();
        State.Screen = ScreenOptions;
        State.OptionsPage = Page;
    }
    ~OptionsPageTest() override {
        Localization.Languages = OldLanguages;
    }

    ::testing::AssertionResult Shows(const ToldPage &Told, int Zoom = 1) {
        Draw();
        return ScreenOf(Told, Zoom).IsShownBy(Shown());
    }

    /// The rows alone, between the headings and the hints.
    ::testing::AssertionResult ShowsRows(const ToldPage &Told) {
        Draw();
        return ScreenOf(Told).IsShownBy(Shown(), 150, 464);
    }

    void Draw() {
        Clear();
        RenderOptions(Renderer(), State, Devices);
    }

private:
    std::vector<LanguageEntry> OldLanguages;
};
