#include "text/Localization.hpp"

#include "tests/text/ExpectedTexts.hpp"

#include <gtest/gtest.h>

#include <set>
#include <utility>

/// Starts with a table of its own, and puts the old one back.
class GetTextTest : public ::testing::Test {
protected:
    GetTextTest() {
        std::swap(OldTexts, Localization.Texts);
    }
    ~GetTextTest() override {
        std::swap(OldTexts, Localization.Texts);
    }

    decltype(LocalizationTable::Texts) OldTexts;
};

TEST_F(GetTextTest, FindsAnEmptyTableBeforeAnyLabelWasAskedFor) {
    EXPECT_TRUE(OldTexts.empty());
}

TEST_F(GetTextTest, GivesAnEmptyTextForNoKeyWhateverTheDefault) {
    EXPECT_EQ(GetText(nullptr, "DEFAULT"), "");
    EXPECT_EQ(GetText("", "DEFAULT"), "");
    EXPECT_TRUE(Localization.Texts.empty());
}

TEST_F(GetTextTest, GivesOneAndTheSameEmptyTextEveryTime) {
    const std::string &first = GetText(nullptr, "A");
    EXPECT_EQ(&GetText("", "B"), &first);
    EXPECT_EQ(first, "");
}

TEST_F(GetTextTest, DoesNotLookUpTheEmptyKey) {
    Localization.Texts[""] = "HIDDEN";
    EXPECT_EQ(GetText("", "DEFAULT"), "");
    EXPECT_EQ(GetText(nullptr, "DEFAULT"), "");
}

TEST_F(GetTextTest, GivesTheLoadedText) {
    Localization.Texts["Hud.Stage"] = "ETAPPE";
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "ETAPPE");
    EXPECT_EQ(GetText(TextKey::HudStage), "ETAPPE");
    EXPECT_EQ(Localization.Texts.size(), 1U);
}

TEST_F(GetTextTest, RemembersTheDefaultOfAMissingKey) {
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "STAGE");
    ASSERT_EQ(Localization.Texts.size(), 1U);
    EXPECT_EQ(Localization.Texts.at("Hud.Stage"), "STAGE");
}

TEST_F(GetTextTest, GivesAndRemembersTheDefaultOfAnEmptyText) {
    Localization.Texts["Hud.Stage"] = "";
    EXPECT_EQ(GetText("Hud.Stage", "STAGE"), "STAGE");
    ASSERT_EQ(Localization.Texts.size(), 1U);
    EXPECT_EQ(Localization.Texts.at("Hud.Stage"), "STAGE");
}

TEST_F(GetTextTest, LetsTheFirstDefaultStand) {
    GetText("Some.Key", "FIRST");
    EXPECT_EQ(GetText("Some.Key", "SECOND"), "FIRST");
    EXPECT_EQ(GetText("Some.Key", ""), "FIRST");
}

TEST_F(GetTextTest, TakesTheNextDefaultIfTheFirstWasEmpty) {
    EXPECT_EQ(GetText("Some.Key", ""), "");
    EXPECT_EQ(GetText("Some.Key", "SECOND"), "SECOND");
}

TEST_F(GetTextTest, LooksRememberedDefaultsUpAfreshOnceTheyAreGone) {
    GetText(TextKey::HudStage);
    Localization.Texts.clear();
    Localization.Texts["Hud.Stage"] = "ETAPPE";
    EXPECT_EQ(GetText(TextKey::HudStage), "ETAPPE");
}

TEST_F(GetTextTest, TellsKeysApartByCaseAndByTheirWholeLength) {
    GetText("Common.On", "ON");
    EXPECT_EQ(GetText("common.on", "SMALL"), "SMALL");
    EXPECT_EQ(GetText("Common.O", "SHORT"), "SHORT");
    EXPECT_EQ(GetText("Common.On ", "LONG"), "LONG");
    EXPECT_EQ(Localization.Texts.size(), 4U);
}

TEST_F(GetTextTest, TakesADefaultThatIsPartOfALongerText) {
    EXPECT_EQ(GetText("Some.Key", std::string_view("READYMADE").substr(0, 5)), "READY");
}

TEST_F(GetTextTest, GivesAReferenceIntoTheTable) {
    const std::string &text = GetText(TextKey::HudStage);
    EXPECT_EQ(&text, &Localization.Texts.at("Hud.Stage"));
    EXPECT_EQ(&text, &GetText("Hud.Stage", "OTHER"));
}

TEST_F(GetTextTest, GivesAReferenceThatOutlivesThousandsOfOtherKeys) {
    const std::string &stage = GetText(TextKey::HudStage);
    const std::string *const place = &stage;
    for (int i = 0; i < 5000; ++i) {
        GetText(("Key." + std::to_string(i)).c_str(), "TEXT");
    }
    EXPECT_EQ(&GetText(TextKey::HudStage), place);
    EXPECT_EQ(stage, "STAGE");
}

TEST_F(GetTextTest, GivesTheEnglishWordsOfAllKeysWithoutALanguage) {
    for (const ExpectedText &expected : ExpectedTexts) {
        EXPECT_EQ(GetText(expected.Name), expected.Default) << expected.Key;
    }
    ASSERT_EQ(Localization.Texts.size(), ExpectedTexts.size());
    for (const ExpectedText &expected : ExpectedTexts) {
        EXPECT_EQ(Localization.Texts.at(std::string(expected.Key)), expected.Default);
    }
}

TEST_F(GetTextTest, GivesTheLoadedWordsOfAllKeys) {
    for (const ExpectedText &expected : ExpectedTexts) {
        Localization.Texts[std::string(expected.Key)] = "<" + std::string(expected.Key) + ">";
    }
    for (const ExpectedText &expected : ExpectedTexts) {
        EXPECT_EQ(GetText(expected.Name), "<" + std::string(expected.Key) + ">");
    }
    EXPECT_EQ(Localization.Texts.size(), ExpectedTexts.size());
}

TEST(TextTable, HoldsEveryKeyInOrderWithItsDefault) {
    ASSERT_EQ(TextTable.size(), ExpectedTexts.size());
    for (std::size_t i = 0; i < ExpectedTexts.size(); ++i) {
        EXPECT_EQ(TextTable[i].Key, ExpectedTexts[i].Key) << i;
        EXPECT_EQ(TextTable[i].Default, ExpectedTexts[i].Default) << i;
    }
}

TEST(TextTable, HasARowForEachNameOfTheEnumeration) {
    for (std::size_t i = 0; i < ExpectedTexts.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(ExpectedTexts[i].Name), i);
        EXPECT_EQ(RowOf(ExpectedTexts[i].Name).Key, ExpectedTexts[i].Key);
    }
    EXPECT_EQ(static_cast<std::size_t>(TextKey::GameOverHintBackToMainMenu), TextTable.size() - 1);
}

TEST(TextTable, HoldsNoKeyTwice) {
    std::set<std::string_view> keys;
    for (const TextRow &row : TextTable) {
        EXPECT_TRUE(keys.insert(row.Key).second) << row.Key;
    }
}

TEST(TextTable, HoldsNoEmptyDefault) {
    for (const TextRow &row : TextTable) {
        EXPECT_NE(std::string_view(row.Default), "") << row.Key;
    }
}
