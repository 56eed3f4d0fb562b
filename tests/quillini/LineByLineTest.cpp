#include "tests/quillini/IniTest.hpp"

#include <array>
#include <cstdint>
#include <random>
#include <stdexcept>
#include <utility>

using namespace quillINI;

// The reader looks names up by an index of its own. Whatever it finds there, the document has to be the one
// that comes of adding each line to it, which walks the lists.

namespace {

/// Lines of a file at random, and the document that they make.
class RandomLines {
public:
    explicit RandomLines(std::uint32_t Seed) : Random(Seed) {}

    void Add() {
        switch (Below(8)) {
        case 0:
            CurrentName = "Section" + std::to_string(Below(4));
            Text += "[" + CurrentName + "]\n";
            break;
        case 1:
            Text += ";words\n";
            AddIniComment(Current(), "QI_C_" + std::to_string(++Current().CommentCount), "words");
            break;
        case 2:
            Text += "\n";
            AppendIniEmptyLine(Document, Current().Name);
            break;
        case 3:
            AddValue(Key());
            break;
        default:
            AddElement(Key());
        }
    }

    void EnterSection(const std::string &Name) {
        CurrentName = Name;
    }

    /// The section at the end exists even if nothing stands in it.
    const IniDocument &Finish() {
        Current();
        return Document;
    }

    std::string Text;

private:
    std::uint32_t Below(std::uint32_t Limit) {
        return static_cast<std::uint32_t>(Random()) % Limit;
    }

    std::string Key() {
        constexpr std::array<const char *, 6> keys{"a", "b", "c", "d", "QI_C_7", "QI_EL_5"};
        return keys.at(Below(keys.size()));
    }

    IniSection &Current() {
        const auto present = FindIniSection(Document, CurrentName);
        if (present != Document.Sections.end()) {
            return *present;
        }
        IniSection section;
        section.Name = CurrentName;
        return Document.Sections.emplace_back(std::move(section));
    }

    std::string NewValue() {
        return std::to_string(++Values);
    }

    void AddValue(const std::string &Key) {
        const std::string value = NewValue();
        Text += Key + "=" + value + "\n";
        SetIniEntryComment(AddIniValue(Current(), Key, value, false), "");
    }

    void AddElement(const std::string &Key) {
        const std::string value = NewValue();
        const bool hasComment = Below(4) == 0;
        const bool hasIndex = Below(2) == 0;
        const std::string index = hasIndex ? std::to_string(static_cast<int>(Below(60)) - 5) : "";
        Text += Key + "[" + index + "]=" + value + (hasComment ? " ; why\n" : "\n");
        AddIniArrayElement(Current(), Key, value, false, hasComment, "why", index, hasIndex);
    }

    std::mt19937 Random;
    IniDocument Document;
    std::string CurrentName{IniGlobalSection};
    int Values = 0;
};

} // namespace

TEST(LineByLine, AFileMakesTheDocumentThatItsLinesMake) {
    constexpr int lineCount = 2000; // so that there are arrays of dozens of elements
    for (std::uint32_t seed = 1; seed <= 30; ++seed) {
        RandomLines lines(seed);
        for (int i = 0; i < lineCount; ++i) {
            lines.Add();
        }
        const ScratchFile file;
        file.Fill(lines.Text);
        IniDocument document;
        EXPECT_TRUE(ReadIniFile(document, file.Path()));
        EXPECT_TRUE(document == lines.Finish()) << "seed " << seed;
    }
}

TEST(LineByLine, ASecondFileGoesOnWhereTheFirstOneEnded) {
    constexpr int lineCount = 500;
    RandomLines lines(31);
    IniDocument document;
    for (int part = 0; part < 4; ++part) {
        lines.Text = "[Section1]\n"; // a file begins in the global section
        lines.EnterSection("Section1");
        for (int i = 0; i < lineCount; ++i) {
            lines.Add();
        }
        const ScratchFile file;
        file.Fill(lines.Text);
        EXPECT_TRUE(ReadIniFile(document, file.Path()));
        EXPECT_TRUE(document == lines.Finish()) << "part " << part;
    }
}

TEST(LineByLine, AnElementThatIsNoNumberLeavesNoNextOneInALongArray) {
    const ScratchFile file;
    std::string text;
    for (int i = 0; i < 20; ++i) {
        text += "a[]=x\n";
    }
    file.Fill(text + "a[word]=y\na[]=z\n");
    IniDocument document;
    EXPECT_THROW(ReadIniFile(document, file.Path()), std::invalid_argument);
    const IniSection &section = IniSectionAt(document, 0);
    EXPECT_EQ(section.Entries.front().Elements.size(), 21U);
    EXPECT_EQ(section.Entries.front().NextIndex, 19);
}
