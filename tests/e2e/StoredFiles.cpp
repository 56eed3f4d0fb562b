#include "tests/e2e/StoredFiles.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <array>
#include <regex>
#include <sstream>

namespace {

// The number of so many bytes at that place; nothing if they are not all there.
std::optional<std::uint64_t> NumberAt(const std::string &Text, std::size_t Begin, std::size_t Bytes) {
    if (Begin + Bytes > Text.size()) {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (std::size_t i = Bytes; i > 0; --i) {
        number = number << 8U | static_cast<unsigned char>(Text[Begin + i - 1]);
    }
    return number;
}

// The number behind the first occurrence of a key and the tag of its type.
std::optional<std::uint64_t> NumberBehind(
    const PreparedHome &Home, const std::string &Key, char Tag, std::size_t Bytes) {
    const std::string text = Home.Read(SaveFile).value_or("");
    const std::size_t found = text.find(Key + Tag);
    return found == std::string::npos ? std::nullopt : NumberAt(text, found + Key.size() + 1, Bytes);
}

// A save is made of tokens: a byte that tells the kind, and what belongs to it, lowest byte first.
constexpr char End = '\x01';
constexpr char Bool = '\x02';
constexpr char Int32 = '\x03';
constexpr char Int64 = '\x05';
constexpr char Text = '\x08';
constexpr char ArrayBegin = '\x09';
constexpr char ObjectBegin = '\x0A';

// The bytes behind each of these tags, beginning with 0, which there is not; a text's come behind its length.
constexpr std::array<std::size_t, 11> BytesBehind{0, 0, 1, 4, 4, 8, 8, 8, 4, 0, 0};

// Where the token at that place ends; nothing if it is none or is cut.
std::optional<std::size_t> EndOfToken(const std::string &Save, std::size_t Begin) {
    const auto tag = static_cast<std::size_t>(static_cast<unsigned char>(Save.at(Begin)));
    if (tag == 0 || tag >= BytesBehind.size()) {
        return std::nullopt;
    }
    std::size_t end = Begin + 1 + BytesBehind.at(tag);
    if (Save[Begin] == Text) {
        const std::optional<std::uint64_t> length = NumberAt(Save, Begin + 1, BytesBehind.at(tag));
        end = length ? end + *length : Save.size() + 1;
    }
    return end <= Save.size() ? std::optional(end) : std::nullopt;
}

std::string Bytes(std::uint64_t Number, int Count) {
    std::string bytes;
    for (int i = 0; i < Count; ++i) {
        bytes += static_cast<char>(Number >> (8U * static_cast<unsigned>(i)) & 0xFFU);
    }
    return bytes;
}

std::string Named(const std::string &Key, char Kind, const std::string &Value = "") {
    return Text + Bytes(Key.size(), 4) + Key + Kind + Value;
}

std::string NamedInt32(const std::string &Key, std::int32_t Value) {
    return Named(Key, Int32, Bytes(static_cast<std::uint32_t>(Value), 4));
}

std::string NamedInt64(const std::string &Key, std::int64_t Value) {
    return Named(Key, Int64, Bytes(static_cast<std::uint64_t>(Value), 8));
}

// Options with each value between its quotes taken out.
std::string WithoutValues(const std::string &Options) {
    static const std::regex value("=\"[^\"]*\"");
    return std::regex_replace(Options, value, "=\"\"");
}

} // namespace

std::filesystem::path StoredPath(const PreparedHome &Home, const std::string &Name) {
    return Home.Path() / DataFolder / "Orrin" / "KestrelVolley" / Name;
}

std::optional<std::string> StoredOption(
    const PreparedHome &Home, const std::string &Section, const std::string &Key) {
    std::istringstream lines(Home.Read(OptionsFile).value_or(""));
    bool isInSection = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('[')) {
            isInSection = line.starts_with("[" + Section + "]");
        } else if (isInSection && line.starts_with(Key + "=\"")) {
            const std::size_t begin = Key.size() + 2;
            return line.substr(begin, line.rfind('"') - begin);
        }
    }
    return std::nullopt;
}

testing::AssertionResult Keeps(
    const PreparedHome &Home, const std::string &Section, const std::string &Key, const std::string &Value) {
    const bool isKept = WaitUntil([&] {
        return StoredOption(Home, Section, Key) == Value;
    });
    return isKept ? testing::AssertionSuccess()
                  : testing::AssertionFailure()
                        << Key << " is " << StoredOption(Home, Section, Key).value_or("missing");
}

std::optional<std::int64_t> StoredHighScore(const PreparedHome &Home) {
    const std::optional<std::uint64_t> number = NumberBehind(Home, "HighScore", Int64, 8);
    return number ? std::optional(static_cast<std::int64_t>(*number)) : std::nullopt;
}

std::optional<bool> StoresRun(const PreparedHome &Home) {
    const std::optional<std::uint64_t> flag = NumberBehind(Home, "HasRunState", Bool, 1);
    return flag ? std::optional(*flag != 0) : std::nullopt;
}

bool SaveIsWhole(const std::string &Save) {
    int depth = 0;
    for (std::size_t place = 0; place < Save.size();) {
        const std::optional<std::size_t> end = EndOfToken(Save, place);
        const char tag = Save[place];
        depth += tag == ObjectBegin || tag == ArrayBegin ? 1 : 0;
        depth -= tag == End ? 1 : 0;
        if (!end || depth <= 0) {
            return end == Save.size() && depth == 0 && Save[0] == ObjectBegin;
        }
        place = *end;
    }
    return false;
}

bool OptionsAreWhole(const std::string &Found, const std::string &Whole) {
    return !Found.empty() && WithoutValues(Found) == WithoutValues(Whole);
}

std::string MadeSave(const MadeRun &Run) {
    return ObjectBegin + NamedInt32("FormatVersion", 1) + NamedInt64("HighScore", Run.HighScore) +
           Named("HasRunState", Bool, Bytes(1, 1)) + Named("RunState", ObjectBegin) +
           NamedInt64("Score", Run.Score) + NamedInt32("PlayerLane", Run.Lane) +
           Named("Player", ObjectBegin) + NamedInt32("Hp", Run.Hp) + NamedInt32("Stocks", Run.Stocks) +
           std::string(3, End);
}
