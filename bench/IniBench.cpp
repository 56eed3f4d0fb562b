#include "quillini/quillini.hpp"
#include "store/Paths.hpp"
#include "tools/support/Files.hpp"
#include "tools/support/TemporaryFolder.hpp"

// It takes the bytes of a file as they are, and is compiled here, with the options of our own reader.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>
#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <string>

// Reading INI files beside another reader: huge ones made of one kind of line, and a real one. What is read
// is also given up again.

namespace {

constexpr std::size_t Megabyte = 1U << 20U;

/// The line of a number, which is its only one.
using MakeLine = std::string (*)(std::size_t Number);

std::string KeyLine(std::size_t Number) {
    return "Key" + std::to_string(Number) + "=Value" + std::to_string(Number) + "\n";
}

std::string SectionLines(std::size_t Number) {
    return "[Section" + std::to_string(Number) + "]\nKey=Value\n";
}

std::string ElementLine(std::size_t Number) {
    return "Key[]=Value" + std::to_string(Number) + "\n";
}

std::string IndexedLine(std::size_t Number) {
    return "Key[" + std::to_string(Number) + "]=Value" + std::to_string(Number) + "\n";
}

/// A file of such lines in a section, for as long as it lives.
class HugeFile {
public:
    HugeFile(MakeLine Make, std::size_t Megabytes) {
        std::string text = "[Section]\n";
        for (std::size_t number = 0; text.size() < Megabytes * Megabyte; ++number) {
            text += Make(number);
        }
        WriteBytes(Path(), text);
    }

    std::filesystem::path Path() const {
        return Folder.Path() / "huge.ini";
    }

private:
    TemporaryFolder Folder;
};

void ReadFile(benchmark::State &Bench, const std::string &Path) {
    for (auto iteration : Bench) {
        quillINI::IniDocument document;
        if (!quillINI::ReadIniFile(document, Path)) {
            Bench.SkipWithError("the file was not read");
            return;
        }
    }
}

void ReadFileBySimpleIni(benchmark::State &Bench, const std::string &Path) {
    constexpr bool isUtf8 = true;
    constexpr bool keepsRepeatedKeys = true; // as the elements of an array without indexes are for it
    for (auto iteration : Bench) {
        CSimpleIniCaseA document(isUtf8, keepsRepeatedKeys);
        if (document.LoadFile(Path.c_str()) < 0) {
            Bench.SkipWithError("the file was not read");
            return;
        }
    }
}

void ReadIni(benchmark::State &Bench, MakeLine Make) {
    const HugeFile file(Make, static_cast<std::size_t>(Bench.range(0)));
    ReadFile(Bench, file.Path().string());
}

void ReadBySimpleIni(benchmark::State &Bench, MakeLine Make) {
    const HugeFile file(Make, static_cast<std::size_t>(Bench.range(0)));
    ReadFileBySimpleIni(Bench, file.Path().string());
}

void ReadGermanWords(benchmark::State &Bench) {
    ReadFile(Bench, BaseFilePath("Localization/De.ini"));
}

void ReadGermanWordsBySimpleIni(benchmark::State &Bench) {
    ReadFileBySimpleIni(Bench, BaseFilePath("Localization/De.ini"));
}

/// By megabytes.
void Sizes(benchmark::internal::Benchmark *Bench) {
    Bench->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(ReadIni, keys, KeyLine)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadBySimpleIni, keys, KeyLine)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadIni, sections, SectionLines)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadBySimpleIni, sections, SectionLines)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadIni, array, ElementLine)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadBySimpleIni, array, ElementLine)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadIni, indexes, IndexedLine)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadBySimpleIni, indexes, IndexedLine)->Apply(Sizes);
BENCHMARK(ReadGermanWords)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadGermanWordsBySimpleIni)->Unit(benchmark::kMicrosecond);

} // namespace
