#include "store/OptionValues.hpp"

#include <gtest/gtest.h>

namespace {

class OptionValues : public ::testing::Test {
protected:
    OptionValues() {
        for (const char *value :
            {"", " ", "0", "1", "-5", "+5", "5 ", "text", "Yes", "oFF", "2147483648", "010"}) {
            quillINI::SetIniString(Document, "S", std::string("Key") + value, value);
        }
    }
    std::string Text(const std::string &Value) const {
        return GetOptionText(Document, "S", "Key" + Value, "default");
    }
    std::int32_t Int(const std::string &Value) const {
        return GetOptionInt(Document, "S", "Key" + Value, 77);
    }
    bool Bool(const std::string &Value, bool Default) const {
        return GetOptionBool(Document, "S", "Key" + Value, Default);
    }

    quillINI::IniDocument Document;
};

TEST_F(OptionValues, AreTheirTextOrTheDefault) {
    EXPECT_EQ(Text("text"), "text");
    EXPECT_EQ(Text(" "), " ");
    EXPECT_EQ(Text(""), "default");
    EXPECT_EQ(Text("missing"), "default");
    EXPECT_EQ(GetOptionText(Document, "s", "Keytext", "default"), "default");
    EXPECT_EQ(GetOptionText(Document, "Missing", "Keytext", ""), "");
}

TEST_F(OptionValues, AreTheirNumberOrTheDefault) {
    EXPECT_EQ(Int("0"), 0);
    EXPECT_EQ(Int("-5"), -5);
    EXPECT_EQ(Int("010"), 10);
    for (const char *bad : {"", " ", "+5", "5 ", "text", "2147483648", "missing"}) {
        EXPECT_EQ(Int(bad), 77) << bad;
    }
    EXPECT_EQ(GetOptionInt(Document, "S", "missing", std::numeric_limits<std::int32_t>::min()),
        std::numeric_limits<std::int32_t>::min());
}

TEST_F(OptionValues, AreTheirWordOrTheDefault) {
    for (const bool fallback : {false, true}) {
        EXPECT_TRUE(Bool("1", fallback));
        EXPECT_TRUE(Bool("Yes", fallback));
        EXPECT_FALSE(Bool("0", fallback));
        EXPECT_FALSE(Bool("oFF", fallback));
        for (const char *bad : {"", " ", "-5", "text", "010", "missing"}) {
            EXPECT_EQ(Bool(bad, fallback), fallback) << bad;
        }
    }
}

} // namespace
