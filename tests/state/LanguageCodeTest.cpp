#include "state/LanguageCode.hpp"

#include <gtest/gtest.h>

namespace {

struct Row {
    std::string_view Code;
    const char *Expected;
};

constexpr Row Rows[] = {{"en", "en"}, {"de", "de"}, {"DE", "de"}, {"De", "de"}, {" de", "de"}, {"de ", "de"},
    {" d e ", "de"}, {"\td\ne\r\v\f", "de"}, {"pt-BR", "pt-br"}, {"PT_br", "pt_br"}, {"", "en"}, {" ", "en"},
    {" \t\r\n\v\f", "en"}, {"1", "1"}, {"language name", "languagename"}, {"\xC3\x84", "\xC3\x84"}};

TEST(LanguageCode, IsLowerCaseAsciiWithoutWhiteSpaceAndEnglishIfNothingIsLeft) {
    for (const Row &row : Rows) {
        EXPECT_EQ(NormalizeLanguageCode(row.Code), row.Expected) << '"' << row.Code << '"';
    }
}

} // namespace
