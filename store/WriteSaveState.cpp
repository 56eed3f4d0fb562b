#include "store/SaveFields.hpp"
#include "store/SaveState.hpp"
#include "store/SaveStateFile.hpp"
#include "store/ValueStream.hpp"

#include <algorithm>

namespace {

// NOT-BUGS: `FormatVersion` in the save state is written and never looked at
constexpr std::int32_t FormatVersion = 1;

void WriteValue(ValueStreamWriter &Writer, float Value) {
    Writer.WriteDouble(static_cast<double>(Value));
}

void WriteValue(ValueStreamWriter &Writer, std::int32_t Value) {
    Writer.WriteInt32(Value);
}

void WriteValue(ValueStreamWriter &Writer, std::int64_t Value) {
    Writer.WriteInt64(Value);
}

void WriteValue(ValueStreamWriter &Writer, bool Value) {
    Writer.WriteBool(Value);
}

void WriteValue(ValueStreamWriter &Writer, const Color &Value) {
    Writer.BeginObject();
    for (const ColorChannel &channel : ColorChannels) {
        Writer.WriteKey(channel.Key);
        Writer.WriteInt32(Value.*channel.Value);
    }
    Writer.End();
}

template <typename Record, std::size_t Count>
void WriteFields(
    ValueStreamWriter &Writer, const std::array<SaveField<Record>, Count> &Fields, const Record &From) {
    for (const SaveField<Record> &field : Fields) {
        Writer.WriteKey(field.Key);
        std::visit(
            [&](auto Member) {
                WriteValue(Writer, From.*Member);
            },
            field.Member);
    }
}

template <typename Record, std::size_t Count>
void WriteObject(
    ValueStreamWriter &Writer, const std::array<SaveField<Record>, Count> &Fields, const Record &From) {
    Writer.BeginObject();
    WriteFields(Writer, Fields, From);
    Writer.End();
}

void WriteLists(ValueStreamWriter &Writer, const GameState &State) {
    VisitSaveLists([&](std::string_view Key, auto List, const auto &Fields, const auto & /*Defaults*/) {
        Writer.WriteKey(Key);
        Writer.BeginArray();
        for (const auto &entry : State.*List) {
            WriteObject(Writer, Fields, entry);
        }
        Writer.End();
    });
}

void WriteRoot(ValueStreamWriter &Writer, const GameState &State) {
    Writer.BeginObject();
    Writer.WriteKey(FormatVersionKey);
    Writer.WriteInt32(FormatVersion);
    Writer.WriteKey(HighScoreKey);
    Writer.WriteInt64(std::max<std::int64_t>(State.HighScore, 0));
    Writer.WriteKey(HasRunStateKey);
    Writer.WriteBool(State.HasRunState);
    Writer.WriteKey(RunStateKey);
    Writer.BeginObject();
    if (State.HasRunState) {
        WriteFields(Writer, RunFields, State);
        Writer.WriteKey(PlayerKey);
        WriteObject(Writer, PlayerFields, State.Player);
        WriteLists(Writer, State);
    }
    Writer.End();
    Writer.End();
}

} // namespace

bool WriteSaveState(const GameState &State) {
    return WriteStagedFile(SaveStateFile, [&State](const std::string &Path) {
        ValueStreamWriter writer;
        if (!writer.Open(Path)) {
            return false;
        }
        WriteRoot(writer, State);
        return writer.Close();
    });
}
