#include "tests/store/SaveTables.hpp"

#include <stdexcept>
#include <utility>

std::string TokenOf(SaveKind Kind, double Value) {
    switch (Kind) {
    case SaveKind::Whole:
        return Int32Token(static_cast<std::int32_t>(Value));
    case SaveKind::Long:
        return Int64Token(static_cast<std::int64_t>(Value));
    case SaveKind::Real:
        return DoubleToken(static_cast<double>(static_cast<float>(Value)));
    default:
        return BoolToken(Value != 0.0 ? 1 : 0);
    }
}

double AsHeld(SaveKind Kind, double Value) {
    return Kind == SaveKind::Real ? static_cast<double>(static_cast<float>(Value)) : Value;
}

std::string BytesOf(const Color &Channels) {
    return {static_cast<char>(Channels.R), static_cast<char>(Channels.G), static_cast<char>(Channels.B),
        static_cast<char>(Channels.A)};
}

std::string ColorBytes(std::string_view Channels) {
    std::vector<StreamEntry> entries;
    for (std::size_t i = 0; i < 4; ++i) {
        entries.push_back({std::string(1, "RGBA"[i]), Int32Token(static_cast<unsigned char>(Channels[i]))});
    }
    return ObjectBytes(entries);
}

std::vector<StreamEntry> SampleEntries(std::span<const SaveRow> Rows) {
    std::vector<StreamEntry> entries;
    for (const SaveRow &row : Rows) {
        entries.push_back({row.Key, TokenOf(row.Kind, row.Sample)});
    }
    return entries;
}

std::vector<StreamEntry> SampleEntries(const SaveList &List) {
    std::vector<StreamEntry> entries = SampleEntries(List.Rows);
    if (List.ColorAt != nullptr) {
        entries.push_back({"Color", ColorBytes(SampleColor)});
    }
    return entries;
}

std::vector<StreamEntry> SampleRun() {
    std::vector<StreamEntry> run = SampleEntries(RunRows);
    run.push_back({"Player", ObjectBytes(SampleEntries(PlayerRows))});
    for (const SaveList &list : SaveLists) {
        run.push_back({list.Key, ArrayBytes({ObjectBytes(SampleEntries(list))})});
    }
    return run;
}

std::string SaveBytes(const std::vector<StreamEntry> &Run) {
    return ObjectBytes({{"FormatVersion", Int32Token(1)}, {"HighScore", Int64Token(SampleHighScore)},
        {"HasRunState", BoolToken(1)}, {"RunState", ObjectBytes(Run)}});
}

StreamEntry &Find(std::vector<StreamEntry> &Entries, std::string_view Key) {
    for (StreamEntry &entry : Entries) {
        if (entry.Key == Key) {
            return entry;
        }
    }
    throw std::out_of_range(std::string(Key));
}

std::vector<StreamEntry> Without(std::vector<StreamEntry> Entries, std::string_view Key) {
    std::erase_if(Entries, [Key](const StreamEntry &Entry) {
        return Entry.Key == Key;
    });
    return Entries;
}

std::vector<StreamEntry> With(std::vector<StreamEntry> Entries, std::string_view Key, std::string Value) {
    Find(Entries, Key).Value = std::move(Value);
    return Entries;
}

std::vector<StreamEntry> Doubled(std::vector<StreamEntry> Entries, std::string_view Key, std::string Value) {
    Entries.push_back({std::string(Key), std::move(Value)});
    return Entries;
}
