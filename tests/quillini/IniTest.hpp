#pragma once

#include "quillini/quillini.hpp"
#include "tools/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

// Real files in a folder of their own, what the library says on standard output, and documents in a form that
// can be compared at a glance.

/// A path for one test, in a folder that goes away with it.
class ScratchFile {
public:
    explicit ScratchFile(std::string_view Name = "file.ini");

    std::string Path() const;
    void Fill(std::string_view Bytes) const;
    std::string Bytes() const;

private:
    TemporaryFolder Folder;
    std::filesystem::path File;
};

/// Catches standard output for as long as it lives, also when something is thrown.
class OutputCatcher {
public:
    OutputCatcher();
    ~OutputCatcher();
    OutputCatcher(const OutputCatcher &) = delete;
    OutputCatcher &operator=(const OutputCatcher &) = delete;

    /// What was printed; it ends the catching.
    std::string Text();

private:
    bool Catching = true;
};

struct ReadResult {
    bool Success = false;
    quillINI::IniDocument Document;
    std::string Output;
};

/// Reads a file of these bytes into a fresh document.
ReadResult Read(std::string_view Bytes);

/// Reads a file of these bytes, which has to be read without a word.
quillINI::IniDocument ReadQuietly(std::string_view Bytes);

/// Bytes by their values.
std::string Bytes(std::initializer_list<unsigned> Values);

/// A document's file.
std::string Written(const quillINI::IniDocument &Document, bool Spaced = false,
    quillINI::IniEncoding Encoding = quillINI::IniEncoding::Utf8);

/// One line for each section and entry:
///   [Name] ;comment
///   key=value ;comment     key="value"     a plain and a quoted value
///   # QI_C_1=text          # QI_C_1!=text  a comment and a raw one
///   - QI_EL_1              a blank line
///   key@next               an array with the latest index handed out; with !quoted where it is flagged
///   key[5]=value           each of its elements
std::vector<std::string> Shown(const quillINI::IniDocument &Document);
std::vector<std::string> Shown(const quillINI::IniSection &Section);

/// The lines of a list, as Shown gives them.
using ShownLines = std::vector<std::string>;

/// The message of what a call throws as exactly this type; anything else is a failure of the test.
template <class Exception, class Call> std::string MessageOf(Call &&Action) {
    try {
        Action();
    } catch (const Exception &exception) {
        EXPECT_EQ(typeid(exception).name(), typeid(Exception).name());
        return exception.what();
    }
    ADD_FAILURE() << "nothing of that type was thrown";
    return {};
}

namespace quillINI {

void PrintTo(const IniEntry &Entry, std::ostream *Stream);
void PrintTo(const IniDocument &Document, std::ostream *Stream);

} // namespace quillINI
