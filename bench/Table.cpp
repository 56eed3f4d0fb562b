#include "bench/Table.hpp"

#include "bench/Targets.hpp"

#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

namespace {

std::string Fixed(double Number, int Digits) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", Digits, Number);
    return text.data();
}

/// With two digits behind the point below 10, one below 100, none above.
std::string Rounded(double Number) {
    return Fixed(Number, Number < 10.0 ? 2 : Number < 100.0 ? 1 : 0);
}

std::string ValueText(const Measurement &Measured) {
    std::string text = Rounded(Measured.Value) + " " + Measured.Unit;
    if (Measured.UpperQuartile > 0.0) {
        text += " (" + Rounded(Measured.LowerQuartile) + " to " + Rounded(Measured.UpperQuartile) + ")";
    }
    return text;
}

std::optional<Measurement> Find(const Measurements &Results, const char *Name) {
    const auto found = Name != nullptr ? Results.find(Name) : Results.end();
    return found != Results.end() ? std::optional(found->second) : std::nullopt;
}

/// What a row is judged by; nothing if that was not measured.
std::optional<double> ResultOf(const Row &Asked, const Measurements &Results) {
    const std::optional<Measurement> ours = Find(Results, Asked.Ours);
    const std::optional<Measurement> bare = Find(Results, Asked.Bare);
    const std::optional<Measurement> music = Find(Results, "Music");
    switch (Asked.By) {
    case Judgement::Told:
    case Judgement::Value:
        return ours ? std::optional(ours->Value) : std::nullopt;
    case Judgement::Part:
    case Judgement::Ratio:
        return ours && bare && bare->Value > 0.0 ? std::optional(ours->Value / bare->Value) : std::nullopt;
    case Judgement::Excess:
        return ours && bare && music ? std::optional(ours->Value - bare->Value - music->Value) : std::nullopt;
    }
    return std::nullopt;
}

std::string ResultText(const Row &Asked, double Result) {
    switch (Asked.By) {
    case Judgement::Part:
        return Fixed(Result * 100.0, 0) + " % of it";
    case Judgement::Ratio:
        return Fixed(Result, 3);
    case Judgement::Excess:
        return Fixed(Result, 1) + " MiB more";
    default:
        return "";
    }
}

bool HasTarget(Judgement By) {
    return By != Judgement::Told && By != Judgement::Part;
}

/// A row's target in the words of its result; empty if it has none.
std::string TargetText(const Row &Asked) {
    switch (Asked.By) {
    case Judgement::Value:
        return Fixed(Asked.Most, 0) + " %";
    case Judgement::Ratio:
        return Fixed(Asked.Most, 2);
    case Judgement::Excess:
        return Fixed(Asked.Most, 0) + " MiB";
    default:
        return "";
    }
}

std::string RowText(
    const Row &Asked, const Measurements &Results, std::optional<double> Result, bool IsKept) {
    const std::optional<Measurement> ours = Find(Results, Asked.Ours);
    const std::optional<Measurement> bare =
        Asked.By != Judgement::Part ? Find(Results, Asked.Bare) : std::nullopt;
    return std::string("| ") + Asked.Words + " | " + (ours ? ValueText(*ours) : "not measured") + " | " +
           (bare ? ValueText(*bare) : "") + " | " + (Result ? ResultText(Asked, *Result) : "") + " | " +
           TargetText(Asked) + (IsKept ? "" : " **missed**") + " |\n";
}

bool IsLeftOut(const Row &Asked, bool IsMeasured, TableWish Wish) {
    const bool isOpenGl = std::string_view(Asked.Ours).find("/OpenGl") != std::string_view::npos;
    return (isOpenGl && !Wish.HasOpenGl) || (!IsMeasured && !Wish.IsWhole);
}

} // namespace

Table TableOf(const Measurements &Results, TableWish Wish) {
    Table table{"| | the game | bare | the game to bare | at most |\n|---|---|---|---|---|\n"};
    for (const Row &row : Rows) {
        const std::optional<double> result = ResultOf(row, Results);
        if (IsLeftOut(row, result.has_value(), Wish)) {
            continue;
        }
        const bool isKept = result && (!HasTarget(row.By) || *result <= row.Most);
        table.Text += RowText(row, Results, result, isKept);
        table.IsKept = table.IsKept && isKept;
    }
    return table;
}
