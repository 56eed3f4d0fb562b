#include "tests/e2e/StoredFiles.hpp"

#include "tools/desktop/WaitUntil.hpp"

#include <sstream>

namespace {

// The bytes of that number behind the first occurrence of a key and the tag of its type.
std::optional<std::uint64_t> NumberBehind(
    const PreparedHome &Home, const std::string &Key, char Tag, std::size_t Bytes) {
    const std::string text = Home.Read(SaveFile).value_or("");
    const std::size_t found = text.find(Key + Tag);
    const std::size_t begin = found + Key.size() + 1;
    if (found == std::string::npos || begin + Bytes > text.size()) {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (std::size_t i = Bytes; i > 0; --i) {
        number = number << 8U | static_cast<unsigned char>(text[begin + i - 1]);
    }
    return number;
}

// A save is made of tokens: a byte that tells the kind, and what belongs to it, lowest byte first.
constexpr char End = '\x01';
constexpr char Bool = '\x02';
constexpr char Int32 = '\x03';
constexpr char Int64 = '\x05';
constexpr char Text = '\x08';
constexpr char ObjectBegin = '\x0A';

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

std::string MadeSave(const MadeRun &Run) {
    return ObjectBegin + NamedInt32("FormatVersion", 1) + NamedInt64("HighScore", Run.HighScore) +
           Named("HasRunState", Bool, Bytes(1, 1)) + Named("RunState", ObjectBegin) +
           NamedInt64("Score", Run.Score) + NamedInt32("PlayerLane", Run.Lane) +
           Named("Player", ObjectBegin) + NamedInt32("Hp", Run.Hp) + NamedInt32("Stocks", Run.Stocks) +
           std::string(3, End);
}
