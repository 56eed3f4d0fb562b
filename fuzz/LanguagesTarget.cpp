#include "fuzz/support/ExpectedFailure.hpp"
#include "fuzz/support/Target.hpp"
#include "state/GameState.hpp"
#include "tests/support/watch/ProgramFolder.hpp"
#include "text/Languages.hpp"
#include "text/Utf8.hpp"

#include <algorithm>
#include <array>

// The input as the catalogue of languages and the files of two languages, with a line of two percent signs
// between them.

namespace {

constexpr std::string_view Divider = "\n%%\n";

constexpr std::array Files{"Languages.ini", "En.ini", "De.ini"};

/// Takes what stands before the next divider off the text.
std::string_view TakePart(std::string_view &Text) {
    const std::size_t end = std::min(Text.find(Divider), Text.size());
    const std::string_view part = Text.substr(0, end);
    Text.remove_prefix(std::min(end + Divider.size(), Text.size()));
    return part;
}

/// Where the game finds what ships with it.
struct ShippedFiles {
    SdlWatch Watch;
    const ProgramFolder Folder{Watch};
};

void WriteFiles(std::string_view Input) {
    static ShippedFiles shipped;
    shipped.Watch.Forget(); // what it has noted of the last input
    for (const char *const name : Files) {
        shipped.Folder.Write(std::string("Localization/") + name, TakePart(Input));
    }
}

/// Every text is there, and once in capitals it stays as it is.
void DemandTexts() {
    for (const TextRow &row : TextTable) {
        const std::string upper = ToUpperUtf8(GetText(row.Id));
        Demand(!upper.empty(), "a label is blank");
        Demand(ToUpperUtf8(upper) == upper, "a text in capitals changed");
    }
}

void DemandWholeCatalogue(const GameState &State) {
    Demand(!Localization.Languages.empty(), "there is no language");
    Demand(FindLanguage(Localization.DefaultLanguage) != nullptr, "the default language is none");
    Demand(FindLanguage(Localization.FallbackLanguage) != nullptr, "the fallback language is none");
    Demand(FindLanguage(Localization.CurrentLanguage) != nullptr, "the current language is none");
    Demand(State.Language == Localization.CurrentLanguage, "the options do not know the language");
    for (const LanguageEntry &language : Localization.Languages) {
        Demand(!LanguageDisplayName(language.Code).empty(), "a language has no name");
        Demand(FindLanguage(language.Code) == &language, "two languages have the same code");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Data, std::size_t Size) {
    WriteFiles(TextOf({Data, Size}));
    GameState state;
    state.Language = "de";
    const bool isLoaded = Succeeds([&state] {
        LoadLanguage(state);
    });
    if (isLoaded) {
        DemandWholeCatalogue(state);
        DemandTexts();
    }
    return 0;
}
