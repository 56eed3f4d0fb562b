#include "sim/Lanes.hpp"
#include "store/SaveFields.hpp"
#include "store/SaveState.hpp"
#include "store/SaveStateFile.hpp"
#include "store/ValueStream.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace {

/// No run comes near so many things of a kind; what stands behind them in a damaged file is left out, for it
/// could keep a single step busy for minutes.
constexpr std::size_t MaxListEntries = 1000;

/// What a file says before any of it reaches the game.
struct SavedGame {
    std::int64_t HighScore = 0;
    bool HasRunState = false;
    bool RunWasRead = false;
    GameState Run;
};

// A value of the wrong kind leaves what was there.

/// NaN leaves what was there, and a number beyond FLT_MAX becomes FLT_MAX.
/// NOT-BUGS: A NaN in a save state is not read
void ReadValue(ValueStreamReader & /*Reader*/, const ValueToken &Token, float &Out) {
    constexpr float largest = std::numeric_limits<float>::max();
    float number = 0.0F;
    if (TokenToFloat(Token, number) && !std::isnan(number)) {
        Out = std::clamp(number, -largest, largest);
    }
}

void ReadValue(ValueStreamReader & /*Reader*/, const ValueToken &Token, std::int32_t &Out) {
    TokenToInt32(Token, Out);
}

void ReadValue(ValueStreamReader & /*Reader*/, const ValueToken &Token, std::int64_t &Out) {
    TokenToInt64(Token, Out);
}

void ReadValue(ValueStreamReader & /*Reader*/, const ValueToken &Token, bool &Out) {
    TokenToBool(Token, Out);
}

/// Calls Visit(key, value) for every entry of an object whose key is a text. Other tokens have no entries.
template <typename Visitor>
void WalkObject(ValueStreamReader &Reader, const ValueToken &Object, Visitor Visit) {
    if (Object.Tag != ValueTag::ObjectBegin) {
        return;
    }
    ValueToken key;
    ValueToken value;
    while (Reader.NextObjectEntry(Object, key, value)) {
        std::string_view name;
        if (TokenToKey(key, name)) {
            Visit(name, value);
        }
    }
}

void ReadValue(ValueStreamReader &Reader, const ValueToken &Token, Color &Out) {
    WalkObject(Reader, Token, [&Out](std::string_view Key, const ValueToken &Value) {
        for (const ColorChannel &channel : ColorChannels) {
            std::int32_t level = 0;
            if (Key == channel.Key && TokenToInt32(Value, level)) {
                Out.*channel.Value = static_cast<std::uint8_t>(std::clamp(level, 0, 255));
            }
        }
    });
}

template <typename Record, std::size_t Count>
void ReadField(ValueStreamReader &Reader, const std::array<SaveField<Record>, Count> &Fields,
    std::string_view Key, const ValueToken &Value, Record &Out) {
    for (const SaveField<Record> &field : Fields) {
        if (Key == field.Key) {
            std::visit(
                [&](auto Member) {
                    ReadValue(Reader, Value, Out.*Member);
                },
                field.Member);
        }
    }
}

template <typename Record, std::size_t Count>
void ReadObject(ValueStreamReader &Reader, const std::array<SaveField<Record>, Count> &Fields,
    const ValueToken &Object, Record &Out) {
    WalkObject(Reader, Object, [&](std::string_view Key, const ValueToken &Value) {
        ReadField(Reader, Fields, Key, Value, Out);
    });
}

/// Replaces a list by an array's objects, each begun with the defaults; any other entry is dropped.
template <typename Record, std::size_t Count>
void ReadList(ValueStreamReader &Reader, const std::array<SaveField<Record>, Count> &Fields,
    const Record &Defaults, const ValueToken &Array, std::vector<Record> &Out) {
    if (Array.Tag != ValueTag::ArrayBegin) {
        return;
    }
    Out.clear();
    ValueToken entry;
    while (Reader.NextArrayEntry(Array, entry)) {
        if (entry.Tag == ValueTag::ObjectBegin && Out.size() < MaxListEntries) {
            Out.push_back(Defaults);
            ReadObject(Reader, Fields, entry, Out.back());
        }
    }
}

void ReadRunEntry(ValueStreamReader &Reader, std::string_view Key, const ValueToken &Value, GameState &Run) {
    if (Key == PlayerKey) {
        ReadObject(Reader, PlayerFields, Value, Run.Player);
        return;
    }
    VisitSaveLists([&](std::string_view ListKey, auto List, const auto &Fields, const auto &Defaults) {
        if (Key == ListKey) {
            ReadList(Reader, Fields, Defaults, Value, Run.*List);
        }
    });
    ReadField(Reader, RunFields, Key, Value, Run);
}

void ReadRun(ValueStreamReader &Reader, const ValueToken &Value, SavedGame &Saved) {
    Saved.RunWasRead = Value.Tag == ValueTag::ObjectBegin;
    WalkObject(Reader, Value, [&](std::string_view Key, const ValueToken &Entry) {
        ReadRunEntry(Reader, Key, Entry, Saved.Run);
    });
}

/// False if the file does not begin with an object: this alone makes it a save state.
bool ReadRoot(ValueStreamReader &Reader, SavedGame &Saved) {
    const ValueToken root = Reader.NextToken();
    WalkObject(Reader, root, [&](std::string_view Key, const ValueToken &Value) {
        if (Key == HighScoreKey) {
            TokenToInt64(Value, Saved.HighScore);
        } else if (Key == HasRunStateKey) {
            TokenToBool(Value, Saved.HasRunState);
        } else if (Key == RunStateKey) {
            ReadRun(Reader, Value, Saved);
        }
    });
    return root.Tag == ValueTag::ObjectBegin;
}

/// Brings a record's numbers into their ranges.
template <typename Record, std::size_t Count>
void ClampFields(const std::array<SaveField<Record>, Count> &Fields, Record &Out) {
    for (const SaveField<Record> &field : Fields) {
        std::visit(
            [&](auto Member) {
                using Value = std::remove_cvref_t<decltype(Out.*Member)>;
                if constexpr (std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>) {
                    Value &value = Out.*Member;
                    if (static_cast<double>(value) < field.Lowest) {
                        value = static_cast<Value>(field.Lowest);
                    } else if (static_cast<double>(value) > field.Highest) {
                        value = static_cast<Value>(field.Highest);
                    }
                }
            },
            field.Member);
    }
}

std::int32_t ClampFlowDirection(std::int32_t Direction) {
    return Direction < 0 ? -1 : 1;
}

void ClampRun(GameState &State) {
    ClampFields(RunFields, State);
    State.WaterFlowDirection = ClampFlowDirection(State.WaterFlowDirection);
    State.PreviousWaterFlowDirection = ClampFlowDirection(State.PreviousWaterFlowDirection);
    ClampFields(PlayerFields, State.Player);
    State.Player.Hp = std::min(State.Player.Hp, State.Player.MaxHp);
    VisitSaveLists([&](std::string_view /*Key*/, auto List, const auto &Fields, const auto & /*Defaults*/) {
        for (auto &entry : State.*List) {
            ClampFields(Fields, entry);
        }
    });
}

/// Brings a run into the game. Its lists are moved out of Run.
void TakeRun(GameState &State, GameState &Run) {
    for (const SaveField<GameState> &field : RunFields) {
        std::visit(
            [&](auto Member) {
                State.*Member = Run.*Member;
            },
            field.Member);
    }
    State.Player = Run.Player;
    VisitSaveLists(
        [&](std::string_view /*Key*/, auto List, const auto & /*Fields*/, const auto & /*Defaults*/) {
            State.*List = std::move(Run.*List);
        });
    ClampRun(State);
    SnapToLanes(State);
    // NOT-BUGS: A run that was saved while the car was dying goes on with no health left
    State.PlayerDying = false;
    State.DeathTimer = 0.0F;
    State.PauseSelection = 0;
    State.OptionsReturnScreen = ScreenMainMenu;
    State.HelpReturnScreen = ScreenMainMenu;
    State.Screen = ScreenMainMenu;
    State.HasRunState = true;
}

} // namespace

bool LoadSaveState(GameState &State) {
    State.HighScore = 0;
    State.HasRunState = false;
    State.SaveRequested = false;
    State.SaveDelay = 0.0F;
    SavedGame saved;
    const bool isSave = ReadStagedFile(SaveStateFile, [&saved](const std::string &Path) {
        ValueStreamReader reader;
        return reader.Load(Path) && ReadRoot(reader, saved);
    });
    if (!isSave) {
        return false;
    }
    State.HighScore = std::max<std::int64_t>(saved.HighScore, 0);
    if (saved.HasRunState && saved.RunWasRead) {
        TakeRun(State, saved.Run);
    }
    return true;
}
