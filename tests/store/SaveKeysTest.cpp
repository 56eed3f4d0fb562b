#include "tests/store/SaveSpots.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Entries = std::vector<StreamEntry>;

class SaveKeysTest : public SaveSpotTest {};

TEST_F(SaveKeysTest, AreAllTaken) {
    LoadRun(SampleRun());
    ExpectSampleRun();
}

TEST_F(SaveKeysTest, HaveTheirDefaultWhenTheyAreMissing) {
    ForEveryKey(
        [](const Entries &Sample, const SaveRow &Row) {
            return Without(Sample, Row.Key);
        },
        [](const SaveRow &Row) {
            return Row.Default;
        });
}

TEST_F(SaveKeysTest, TakeTheLaterOfTwo) {
    ForEveryKey(
        [](const Entries &Sample, const SaveRow &Row) {
            return Doubled(With(Sample, Row.Key, TokenOf(Row.Kind, Row.Default)), Row.Key,
                TokenOf(Row.Kind, Row.Sample));
        },
        [](const SaveRow &Row) {
            return Row.Sample;
        });
    ForEveryKey(
        [](const Entries &Sample, const SaveRow &Row) {
            return Doubled(Sample, Row.Key, TokenOf(Row.Kind, Row.Default));
        },
        [](const SaveRow &Row) {
            return Row.Default;
        });
}

/// Values that a key of this kind does not take.
std::vector<std::string> WrongTokens(SaveKind Kind) {
    std::vector<std::string> tokens{TextToken(""), TextToken("5"), ArrayBytes({}),
        ArrayBytes({Int32Token(5)}), ObjectBytes({}),
        ObjectBytes({{"Score", Int32Token(5)}, {"Lane", Int32Token(5)}})};
    if (Kind != SaveKind::Flag) {
        tokens.push_back(BoolToken(0));
        tokens.push_back(BoolToken(1));
    }
    if (Kind == SaveKind::Long) {
        tokens.push_back(DoubleToken(5.0));
    }
    return tokens;
}

TEST_F(SaveKeysTest, HaveTheirDefaultWithAValueOfTheWrongKind) {
    for (std::size_t i = 0; i < WrongTokens(SaveKind::Flag).size() + 3; ++i) {
        ForEveryKey(
            [i](const Entries &Sample, const SaveRow &Row) {
                const std::vector<std::string> wrong = WrongTokens(Row.Kind);
                return With(Sample, Row.Key, wrong[i % wrong.size()]);
            },
            [](const SaveRow &Row) {
                return Row.Default;
            });
    }
}

TEST_F(SaveKeysTest, KeepAGoodValueWhenAWrongOneFollows) {
    for (std::size_t i = 0; i < WrongTokens(SaveKind::Flag).size() + 3; ++i) {
        ForEveryKey(
            [i](const Entries &Sample, const SaveRow &Row) {
                const std::vector<std::string> wrong = WrongTokens(Row.Kind);
                return Doubled(Sample, Row.Key, wrong[i % wrong.size()]);
            },
            [](const SaveRow &Row) {
                return Row.Sample;
            });
    }
}

TEST_F(SaveKeysTest, TakeNoNumberThatIsNone) {
    ForEveryKey(
        [](const Entries &Sample, const SaveRow &Row) {
            return With(Sample, Row.Key, DoubleToken(std::numeric_limits<double>::quiet_NaN()));
        },
        [](const SaveRow &Row) {
            return Row.Default;
        });
}

TEST_F(SaveKeysTest, TakeNoInfinityForAWholeNumber) {
    for (const double number : {Anything, -Anything}) {
        ForEveryKey(
            [number](const Entries &Sample, const SaveRow &Row) {
                return Row.Kind == SaveKind::Real ? Sample : With(Sample, Row.Key, DoubleToken(number));
            },
            [](const SaveRow &Row) {
                return Row.Kind == SaveKind::Real ? Row.Sample : Row.Default;
            });
    }
}

double Clamped(double Value, double Least, double Most) {
    return std::min(std::max(Value, Least), Most);
}

/// What a key becomes: the two flow directions are a sign, all others are clamped.
double InRange(const SaveRow &Row, double Value) {
    if (std::string_view(Row.Key).ends_with("WaterFlowDirection")) {
        return Value < 0 ? -1 : 1;
    }
    return Clamped(Value, Row.Least, Row.Most);
}

TEST_F(SaveKeysTest, BeyondAllFloatsBecomeTheLargestAndAreBroughtIntoTheirRange) {
    constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
    for (const double number : {1e39, -1e39, 1e300, Anything, -Anything}) {
        ForEveryKey(
            [number](const Entries &Sample, const SaveRow &Row) {
                return Row.Kind == SaveKind::Real ? With(Sample, Row.Key, DoubleToken(number)) : Sample;
            },
            [number](const SaveRow &Row) {
                return Row.Kind == SaveKind::Real ? InRange(Row, number < 0 ? -largest : largest)
                                                  : Row.Sample;
            });
    }
}

TEST_F(SaveKeysTest, AreBroughtIntoTheirRange) {
    for (const double value : {-2147483648.0, -1000.0, -2.0, -1.0, 0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0,
             8.0, 9.0, 10.0, 11.0, 100.0, 101.0, 719.0, 720.0, 721.0, 2147483647.0}) {
        ForEveryKey(
            [value](const Entries &Sample, const SaveRow &Row) {
                return Row.Kind == SaveKind::Flag ? Sample : With(Sample, Row.Key, TokenOf(Row.Kind, value));
            },
            [value](const SaveRow &Row) {
                return Row.Kind == SaveKind::Flag ? Row.Sample : InRange(Row, AsHeld(Row.Kind, value));
            });
    }
}

TEST_F(SaveKeysTest, AreBroughtIntoTheirRangeByFractions) {
    for (const double value :
        {-1e30, -0.5, -1e-30, 1e-30, 0.5, 0.99, 1.01, 9.99, 10.01, 99.99, 100.01, 719.99, 720.01, 1e30}) {
        ForEveryKey(
            [value](const Entries &Sample, const SaveRow &Row) {
                return Row.Kind == SaveKind::Real ? With(Sample, Row.Key, DoubleToken(value)) : Sample;
            },
            [value](const SaveRow &Row) {
                return Row.Kind == SaveKind::Real ? InRange(Row, AsHeld(SaveKind::Real, value)) : Row.Sample;
            });
    }
}

TEST_F(SaveKeysTest, TakeWholeNumbersOfAnyKind) {
    using MakeToken = std::string (*)(double);
    constexpr MakeToken makers[] = {
        [](double Value) {
            return Int32Token(static_cast<std::int32_t>(Value));
        },
        [](double Value) {
            return UInt32Token(static_cast<std::uint32_t>(static_cast<std::int64_t>(Value)));
        },
        [](double Value) {
            return Int64Token(static_cast<std::int64_t>(Value));
        },
        [](double Value) {
            return UInt64Token(static_cast<std::uint64_t>(static_cast<std::int64_t>(Value)));
        },
    };
    for (const MakeToken make : makers) {
        ForEveryKey(
            [make](const Entries &Sample, const SaveRow &Row) {
                return With(
                    Sample, Row.Key, make(Row.Kind == SaveKind::Long ? 77.0 : std::round(Row.Sample)));
            },
            [](const SaveRow &Row) {
                if (Row.Kind == SaveKind::Long) {
                    return 77.0;
                }
                // Nothing of the sample below 0 but the directions, which are whole.
                return InRange(Row, std::round(Row.Sample));
            });
    }
}

TEST_F(SaveKeysTest, RoundADoubleInAWholeNumbersPlace) {
    ForEveryKey(
        [](const Entries &Sample, const SaveRow &Row) {
            const double up =
                Row.Sample < 0 ? Row.Sample - 0.4 : Row.Sample - 0.5; // halves go away from zero
            return Row.Kind == SaveKind::Whole ? With(Sample, Row.Key, DoubleToken(up)) : Sample;
        },
        [](const SaveRow &Row) {
            return Row.Sample;
        });
}

TEST_F(SaveKeysTest, CutWholeNumbersTo32Bits) {
    ForEveryKey(
        [](const Entries &Sample, const SaveRow &Row) {
            const auto value = static_cast<std::int64_t>(Row.Sample) + 0x300000000;
            return Row.Kind == SaveKind::Whole ? With(Sample, Row.Key, Int64Token(value)) : Sample;
        },
        [](const SaveRow &Row) {
            return Row.Sample;
        });
}

TEST_F(SaveKeysTest, TakeANumberForTheFlag) {
    for (const auto &[token, expected] : std::vector<std::pair<std::string, bool>>{{Int32Token(0), false},
             {Int32Token(-3), true}, {Int64Token(1), true}, {DoubleToken(0.4), false},
             {DoubleToken(0.5), true}, {BoolToken(0), false}, {BoolToken(7), true}}) {
        LoadRun(With(SampleRun(), "SpecialActive", token));
        EXPECT_EQ(State.SpecialActive, expected) << Hex(token);
    }
}

TEST_F(SaveKeysTest, MayStandInAnyOrder) {
    Entries run = SampleRun();
    Entries player = SampleEntries(PlayerRows);
    std::ranges::reverse(player);
    Find(run, "Player").Value = ObjectBytes(player);
    for (const SaveList &list : SaveLists) {
        Entries entry = SampleEntries(list);
        std::ranges::reverse(entry);
        Find(run, list.Key).Value = ArrayBytes({ObjectBytes(entry)});
    }
    std::ranges::reverse(run);
    EXPECT_TRUE(Load(ObjectBytes({{"RunState", ObjectBytes(run)}, {"HasRunState", BoolToken(1)},
        {"HighScore", Int64Token(5)}, {"FormatVersion", Int32Token(1)}})));
    EXPECT_TRUE(State.HasRunState);
    EXPECT_EQ(State.HighScore, 5);
    ExpectSampleRun();
}

TEST_F(SaveKeysTest, ThatAreUnknownArePassedOver) {
    const std::string nested =
        ObjectBytes({{"Stage", Int32Token(99)}, {"Player", ArrayBytes({ObjectBytes({})})}});
    const auto spoilt = [&nested](const Entries &Known) {
        Entries entries;
        for (const StreamEntry &entry : Known) {
            entries.push_back({"Unknown", nested});
            entries.push_back({entry.Key + " ", Int32Token(99)});
            entries.push_back({'x' + entry.Key, ArrayBytes({nested, Int32Token(99)})});
            entries.push_back(entry);
            entries.push_back({entry.Key.substr(1), BoolToken(1)});
            entries.push_back({"", TextToken("text")});
        }
        std::erase_if(entries, [](const StreamEntry &Entry) {
            return Entry.Key == "Type " || Entry.Key == "core";
        });
        return entries;
    };
    Entries run = SampleRun();
    Find(run, "Player").Value = ObjectBytes(spoilt(SampleEntries(PlayerRows)));
    for (const SaveList &list : SaveLists) {
        Find(run, list.Key).Value = ArrayBytes({ObjectBytes(spoilt(SampleEntries(list)))});
    }
    LoadRun(spoilt(run));
    ExpectSampleRun();
}

TEST_F(SaveKeysTest, AreComparedToTheLetter) {
    Entries run = SampleRun();
    for (const char *key : {"score", "SCORE", "Score ", " Score", "Scor", "Scores"}) {
        run.push_back({key, Int64Token(1)});
    }
    run.push_back({std::string("Score\0", 6), Int64Token(1)});
    LoadRun(run);
    EXPECT_EQ(State.Score, 123456789012);
}

TEST_F(SaveKeysTest, ThatAreNoTextArePassedOverWithTheirValue) {
    std::string run =
        ObjectToken + Int32Token(1) + Int32Token(2) + BoolToken(1) + ArrayBytes({Int32Token(3)});
    for (const StreamEntry &entry : SampleRun()) {
        run += EntryBytes(entry) + Int64Token(4) + ObjectBytes({{"Stage", Int32Token(99)}});
    }
    EXPECT_TRUE(Load(ObjectBytes({{"HasRunState", BoolToken(1)}, {"RunState", run + EndToken}})));
    EXPECT_TRUE(State.HasRunState);
    ExpectSampleRun();
}

// The player and the lists as wholes.

TEST_F(SaveKeysTest, GiveADefaultPlayerWithoutOneOrWithAWrongOne) {
    const Player expected{705, 670, 12, 100, 100, 2, 0};
    LoadRun(Without(SampleRun(), "Player"));
    EXPECT_EQ(State.Player, expected);
    for (const std::string &wrong :
        {Int32Token(1), TextToken("Player"), ArrayBytes({Int32Token(5)}), BoolToken(1)}) {
        LoadRun(With(SampleRun(), "Player", wrong));
        EXPECT_EQ(State.Player, expected);
    }
    LoadRun(With(SampleRun(), "Player", ObjectBytes({})));
    EXPECT_EQ(State.Player, expected);
}

TEST_F(SaveKeysTest, GiveEmptyListsWithoutOneOrWithAWrongOne) {
    for (const SaveList &list : SaveLists) {
        SCOPED_TRACE(list.Key);
        LoadRun(Without(SampleRun(), list.Key));
        EXPECT_EQ(list.Size(State), 0U);
        for (const std::string &wrong : {Int32Token(1), TextToken("x"), ObjectBytes({{"X", Int32Token(5)}}),
                 ObjectBytes(SampleEntries(list)), BoolToken(1), ArrayBytes({})}) {
            LoadRun(With(SampleRun(), list.Key, wrong));
            EXPECT_EQ(list.Size(State), 0U);
        }
    }
}

TEST_F(SaveKeysTest, ReplaceAListByALaterOne) {
    for (const SaveList &list : SaveLists) {
        SCOPED_TRACE(list.Key);
        const std::string plain = ArrayBytes({ObjectBytes({}), ObjectBytes({}), ObjectBytes({})});
        LoadRun(Doubled(
            With(SampleRun(), list.Key, plain), list.Key, ArrayBytes({ObjectBytes(SampleEntries(list))})));
        ExpectSampleList(list);
        LoadRun(Doubled(SampleRun(), list.Key, plain));
        EXPECT_EQ(list.Size(State), 3U);
        LoadRun(Doubled(SampleRun(), list.Key, ArrayBytes({})));
        EXPECT_EQ(list.Size(State), 0U);
        LoadRun(Doubled(SampleRun(), list.Key, Int32Token(1)));
        ExpectSampleList(list);
    }
}

TEST_F(SaveKeysTest, DropEntriesThatAreNoObjects) {
    for (const SaveList &list : SaveLists) {
        SCOPED_TRACE(list.Key);
        const std::string sample = ObjectBytes(SampleEntries(list));
        LoadRun(With(SampleRun(), list.Key,
            ArrayBytes({Int32Token(1), TextToken("x"), ArrayBytes({sample}), sample, BoolToken(1),
                DoubleToken(2)})));
        ExpectSampleList(list);
    }
}

TEST_F(SaveKeysTest, BeginEveryEntryWithTheDefaultsOfItsList) {
    for (const SaveList &list : SaveLists) {
        SCOPED_TRACE(list.Key);
        LoadRun(With(SampleRun(), list.Key,
            ArrayBytes({ObjectBytes({}), ObjectBytes(SampleEntries(list)), ObjectBytes({})})));
        ASSERT_EQ(list.Size(State), 3U);
        ExpectSample(list.Rows, 1);
        for (const SaveRow &row : list.Rows) {
            EXPECT_EQ(row.Get(State, 0), AsHeld(row.Kind, row.Default)) << row.Key;
            EXPECT_EQ(row.Get(State, 2), AsHeld(row.Kind, row.Default)) << row.Key;
        }
        if (list.ColorAt != nullptr) {
            EXPECT_EQ(Hex(BytesOf(list.ColorAt(State, 2))), Hex(list.DefaultColor));
        }
    }
}

TEST_F(SaveKeysTest, KeepTheOrderOfAList) {
    std::vector<std::string> bullets;
    for (int i = 0; i < 500; ++i) {
        bullets.push_back(ObjectBytes({{"X", Int32Token(i)}}));
    }
    LoadRun(With(SampleRun(), "Bullets", ArrayBytes(bullets)));
    ASSERT_EQ(State.Bullets.size(), 500U);
    for (std::size_t i = 0; i < 500; ++i) {
        EXPECT_EQ(State.Bullets[i].X, static_cast<float>(i));
    }
}

// Colours.

class SaveColorsTest : public SaveTest {
protected:
    /// The colour of an explosion that is saved with this value, or without one if it is empty.
    std::string Loaded(const std::string &Value) {
        Entries entry = SampleEntries(ExplosionList);
        entry = Value.empty() ? Without(entry, "Color") : With(entry, "Color", Value);
        LoadRun(With(SampleRun(), "Explosions", ArrayBytes({ObjectBytes(entry)})));
        ExpectSampleList(ExplosionList, "Color");
        return State.Explosions.empty() ? "" : Hex(BytesOf(State.Explosions[0].Color));
    }
};

TEST_F(SaveColorsTest, HaveTheListsDefaultWhenMissingOrWrong) {
    for (const std::string &value :
        {std::string(), Int32Token(5), TextToken("red"), ArrayBytes({Int32Token(1)}), ObjectBytes({})}) {
        EXPECT_EQ(Loaded(value), "FF DC 64 DC ");
    }
}

TEST_F(SaveColorsTest, KeepTheDefaultOfAMissingOrWrongChannel) {
    const auto one = [this](const char *Key, const std::string &Value) {
        return Loaded(ObjectBytes({{Key, Value}}));
    };
    EXPECT_EQ(one("R", Int32Token(1)), "01 DC 64 DC ");
    EXPECT_EQ(one("G", Int32Token(1)), "FF 01 64 DC ");
    EXPECT_EQ(one("B", Int32Token(1)), "FF DC 01 DC ");
    EXPECT_EQ(one("A", Int32Token(1)), "FF DC 64 01 ");
    EXPECT_EQ(one("r", Int32Token(1)), "FF DC 64 DC ");
    for (const std::string &wrong :
        {BoolToken(1), TextToken("1"), ArrayBytes({}), DoubleToken(std::nan(""))}) {
        EXPECT_EQ(one("G", wrong), "FF DC 64 DC ");
    }
}

TEST_F(SaveColorsTest, AreClampedToBytes) {
    EXPECT_EQ(Loaded(ObjectBytes({{"R", Int32Token(-1)}, {"G", Int32Token(256)},
                  {"B", Int32Token(-2147483647)}, {"A", Int32Token(2147483647)}})),
        "00 FF 00 FF ");
    EXPECT_EQ(Loaded(ObjectBytes({{"R", Int32Token(0)}, {"G", Int32Token(255)}, {"B", DoubleToken(12.5)},
                  {"A", UInt64Token(7)}})),
        "00 FF 0D 07 ");
}

TEST_F(SaveColorsTest, TakeTheLaterOfTwoChannels) {
    EXPECT_EQ(Loaded(ObjectBytes(
                  {{"R", Int32Token(1)}, {"R", Int32Token(2)}, {"X", Int32Token(9)}, {"R", TextToken("")}})),
        "02 DC 64 DC ");
}

TEST_F(SaveColorsTest, OfAnEnemyAreWhiteByDefault) {
    LoadRun(With(SampleRun(), "Enemies", ArrayBytes({ObjectBytes({})})));
    ASSERT_EQ(State.Enemies.size(), 1U);
    EXPECT_EQ(Hex(BytesOf(State.Enemies[0].Color)), "FF FF FF FF ");
}

} // namespace
