#include "tests/faults/Link.hpp"

#include <array>
#include <cstdio>
#include <memory>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace {

struct PipeClose {
    void operator()(FILE *Pipe) const {
        pclose(Pipe);
    }
};

std::string OutputOf(const std::string &Command) {
    const std::unique_ptr<FILE, PipeClose> pipe(popen(Command.c_str(), "r"));
    if (pipe == nullptr) {
        throw std::runtime_error(Command + " cannot be run");
    }
    std::string output;
    std::array<char, 4096> part{};
    for (std::size_t size = 1; size != 0;) {
        size = std::fread(part.data(), 1, part.size(), pipe.get());
        output.append(part.data(), size);
    }
    return output;
}

/// What the compiler calls by itself.
bool IsOfTheCompiler(const std::string &Symbol) {
    static const std::regex names(
        "(__cxa_|__asan_|__ubsan_|__sanitizer_|__sancov_|__gxx_|__dso_handle|__stack_chk_|_Unwind_|"
        "_GLOBAL_OFFSET_TABLE_).*");
    return std::regex_match(Symbol, names);
}

/// What is of interest among the mangled names: of std::filesystem all but its paths, and file streams that
/// are opened or asked whether they are open.
bool IsOfFiles(const std::string &Symbol) {
    static const std::regex names(
        "_ZNSt10filesystem[0-9]+(?!__cxx11).*|.*basic_(file|ifst|ofst).*(7is_open|4open)E.*");
    return std::regex_match(Symbol, names);
}

/// A call that the compiler has guarded, as __fprintf_chk, by its plain name.
std::string PlainName(const std::string &Symbol) {
    static const std::regex guarded("__(.*)_chk");
    return std::regex_replace(Symbol, guarded, "$1");
}

} // namespace

std::set<std::string> CalledFunctions() {
    std::istringstream lines(OutputOf(NM " " GAME_CODE));
    std::set<std::string> called;
    std::set<std::string> defined;
    for (std::string line; std::getline(lines, line);) {
        static const std::regex entry("[0-9a-f ]*\\b([A-Za-z]) (\\S+)");
        std::smatch match;
        if (std::regex_match(line, match, entry)) {
            (match[1] == "U" ? called : defined).insert(match[2]);
        }
    }
    std::set<std::string> functions;
    for (const std::string &symbol : called) {
        const bool isWanted = symbol.starts_with("_Z") ? IsOfFiles(symbol) : !IsOfTheCompiler(symbol);
        if (isWanted && !defined.contains(symbol)) {
            functions.insert(PlainName(symbol));
        }
    }
    if (functions.empty()) {
        throw std::runtime_error("the game's code cannot be read");
    }
    return functions;
}
