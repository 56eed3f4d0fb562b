#include "tests/quillini/IniTest.hpp"

#include <algorithm>
#include <ctime>
#include <limits>
#include <vector>

using namespace quillINI;

// Files that somebody has filled with thousands of lines: a line takes no longer for all that stands before
// it.

namespace {

constexpr std::size_t FewLines = 3000;
constexpr std::size_t Growth = 8;

/// Where a long file takes as long as eight of an eighth of its lines, more by what a processor's cache no
/// longer holds. Where each line is compared with all before it, it takes up to eight times as long.
constexpr double MostGrowthOfTime = 4.0;

/// The line of a number.
using MakeLine = std::string (*)(std::size_t Number);

/// The shortest of three times that the processor spends on reading a file of so many lines so often, as it
/// counts no other program's work; on Windows, where std::clock counts that as well, what passes meanwhile.
double TimeToRead(MakeLine Make, std::size_t Lines, std::size_t Times) {
    const ScratchFile file;
    std::string text;
    for (std::size_t number = 0; number < Lines; ++number) {
        text += Make(number);
    }
    file.Fill(text);
    double shortest = std::numeric_limits<double>::max();
    for (int i = 0; i < 3; ++i) {
        std::vector<IniDocument> documents(Times);
        const std::clock_t start = std::clock();
        for (IniDocument &document : documents) {
            EXPECT_TRUE(ReadIniFile(document, file.Path()));
        }
        shortest = std::min(shortest, static_cast<double>(std::clock() - start));
    }
    return std::max(shortest, 1.0);
}

/// Both sides take about as long, so that other programs disturb them alike.
void ExpectLinear(MakeLine Make) {
    const double shortFiles = TimeToRead(Make, FewLines, Growth);
    const double longFile = TimeToRead(Make, FewLines * Growth, 1);
    EXPECT_LT(longFile / shortFiles, MostGrowthOfTime);
}

std::string Numbered(const char *Before, std::size_t Number, const char *Behind) {
    return Before + std::to_string(Number) + Behind;
}

} // namespace

TEST(LongFile, OfKeysIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Numbered("key", Number, "=value\n");
    });
}

TEST(LongFile, OfRepeatedKeysIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Numbered("key", Number - Number % 2, "=value\n");
    });
}

TEST(LongFile, OfSectionsIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Numbered("[Section", Number, "]\nkey=value\n");
    });
}

TEST(LongFile, OfRepeatedSectionsIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Number % 2 == 0 ? Numbered("[Even]\nkey", Number, "=value\n")
                               : Numbered("[Odd]\nkey", Number, "=value\n");
    });
}

TEST(LongFile, OfElementsIsReadInLinearTime) {
    ExpectLinear([](std::size_t) {
        return std::string("list[]=value\n");
    });
}

TEST(LongFile, OfElementsWithIndexesIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Numbered("list[", Number, "]=value\n");
    });
}

TEST(LongFile, OfElementsInTurnIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Number % 2 == 0 ? Numbered("even[", Number, "]=value\nodd[]=value\n")
                               : Numbered("odd[", Number, "]=value\neven[]=value\n");
    });
}

TEST(LongFile, OfArraysIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Numbered("list", Number, "[]=value\n");
    });
}

TEST(LongFile, OfCommentsAndBlankLinesIsReadInLinearTime) {
    ExpectLinear([](std::size_t) {
        return std::string(";text\n\n");
    });
}

/// A key like a reserved one could swallow any of the lines.
TEST(LongFile, OfCommentsAndKeysThatLookReservedIsReadInLinearTime) {
    ExpectLinear([](std::size_t Number) {
        return Numbered(";text\nQI_C_", 2 * Number, "=value\n");
    });
}
