#include "tests/faults/Faults.hpp"
#include "tests/faults/FaultWatch.hpp"
#include "tests/faults/Link.hpp"

#include "state/GameState.hpp"
#include "state/Limits.hpp"
#include "store/OptionsFile.hpp"
#include "store/SaveState.hpp"
#include "tests/support/LogicalWidthScope.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tools/support/Files.hpp"

#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <set>

namespace {

using Names = std::set<std::string>;
using Lines = std::vector<std::string>;

Names FaultyNames() {
    const std::vector<std::string_view> functions = FaultyFunctions();
    return {functions.begin(), functions.end()};
}

Names SafeNames() {
    Names names;
    for (const SafeFunction &function : SafeFunctions()) {
        names.emplace(function.Name);
    }
    return names;
}

// The table.

TEST(FaultTable, HasEveryFunctionThatTheGameCalls) {
    const Names faulty = FaultyNames();
    const Names safe = SafeNames();
    for (const std::string &function : CalledFunctions()) {
        EXPECT_TRUE(faulty.contains(function) || safe.contains(function))
            << function << " is in no table of tests/faults/FaultTable.cpp: can it fail?";
    }
}

TEST(FaultTable, HasAFunctionOnceAndKnowsHowItFails) {
    const Names safe = SafeNames();
    EXPECT_EQ(FaultyNames().size(), FaultyFunctions().size());
    for (const std::string &function : FaultyNames()) {
        EXPECT_FALSE(safe.contains(function)) << function;
        EXPECT_TRUE(EntryOf(function).CanFail) << function;
    }
    EXPECT_LE(WatchedEntries().size(), SessionReport::MostFunctions);
}

TEST(FaultTable, HasNoFunctionThatNoSessionCalls) {
    const Names called = CalledFunctions();
    EXPECT_EQ(CallsOf(PlainSession(Launch::Later), "SDL_GetRenderClipRect"), 0); // as is said of it
    for (const std::string &function : FaultyNames()) {
        const std::string_view without = RowOf(function, 1).AskedWithout;
        const int calls = CallsOf(PlainSession(Launch::First, without), function) +
                          CallsOf(PlainSession(Launch::Later, without), function);
        EXPECT_EQ(calls > 0, called.contains(function)) << function;
    }
}

// The sessions without a fault.

/// What the drivers that need no hardware make the game say.
const Lines NoIcons{"SetWindowIconFromAtlas failed: That operation is not supported"};

void ExpectCleanEnd(const SessionEnd &End) {
    EXPECT_EQ(End.Status, 0);
    EXPECT_EQ(End.Report.Result, 0);
    EXPECT_EQ(End.Report.MixedFiles, 0);
    EXPECT_EQ(End.Report.StrayFiles, 0);
    EXPECT_EQ(End.Lines, NoIcons);
    EXPECT_EQ(End.Printed, Lines{});
}

/// What the files of a session say when a program starts with them.
GameState StoredState(const SessionEnd &End) {
    const TemporaryHome home;
    const LogicalWidthScope width{1280};
    WriteBytes(home.FilePath(OptionsFileName), End.Options.value_or(""));
    WriteBytes(home.FilePath(SaveStateFileName), End.Save.value_or(""));
    GameState state;
    EXPECT_TRUE(LoadOptions(state));
    EXPECT_TRUE(LoadSaveState(state));
    return state;
}

TEST(Session, OfAFirstLaunchLeavesDefaultOptionsAndNoRun) {
    const SessionEnd &end = PlainSession(Launch::First);
    ExpectCleanEnd(end);
    const GameState state = StoredState(end);
    EXPECT_EQ(state.Language, "en");
    EXPECT_TRUE(state.Fullscreen);
    EXPECT_FALSE(state.HasRunState);
}

TEST(Session, OfALaterLaunchLosesALifeThrowsABombAndChangesEveryPage) {
    const SessionEnd &end = PlainSession(Launch::Later);
    ExpectCleanEnd(end);
    const GameState state = StoredState(end);
    EXPECT_TRUE(state.HasRunState);
    EXPECT_EQ(state.HighScore, 5000);
    EXPECT_EQ(state.Player.Stocks, 1);
    EXPECT_EQ(state.Bombs, 2);
    EXPECT_LT(state.AmmoMeter, MaxAmmo);
    EXPECT_GT(state.Score, 0);
    EXPECT_EQ(state.KeyboardBindings[0], SDL_SCANCODE_J);
    EXPECT_EQ(state.AspectMode, AspectClassic4x3);
    EXPECT_FALSE(state.Fullscreen);
    EXPECT_EQ(state.MasterVolume, 95);
    EXPECT_EQ(state.Language, "de");
}

TEST(Session, WithStorageThatIsReadyAtTheSecondAskingEndsAlike) {
    for (const Launch start : {Launch::First, Launch::Later}) {
        const SessionEnd &plain = PlainSession(start);
        const SessionEnd end = PlayAll({{.Start = start, .StorageIsLate = true}}, 1).front();
        ExpectCleanEnd(end);
        EXPECT_EQ(end.Options, plain.Options);
        EXPECT_EQ(end.Save, plain.Save);
        const auto calls = CallsOf(plain, "SDL_StorageReady");
        EXPECT_EQ(CallsOf(end, "SDL_StorageReady"), 2 * calls);
    }
}

// Sessions that are known to end badly.

TEST(Session, ThatLeaksIsFound) {
    if (!LooksForLeaks()) {
        GTEST_SKIP() << "this build cannot tell";
    }
    const SessionPlan plan{.Instead = [] {
        for (int i = 0; i < 10; ++i) { // a register may hold the last one
            static_cast<void>(SDL_malloc(100));
        }
    }};
    EXPECT_EQ(Verdict(plan, PlayAll({plan}, 1).front()), "A sanitizer's finding, or a leak.\n");
}

TEST(Session, ThatDoesNotEndIsFound) {
    const SessionPlan plan{.Instead = [] {
        while (true) {
            SDL_Delay(1);
        }
    }};
    EXPECT_EQ(Verdict(plan, PlayAll({plan}, 1, 1).front()), "Hangs.\n");
}

// The sessions with one.

std::string Joined(const Lines &Said) {
    std::string text;
    for (const std::string &line : Said) {
        text += line + "\n";
    }
    return text;
}

/// Tells how many faults of each function were tried, and gives their sum.
int Tell(const std::map<std::string_view, int> &Tried) {
    int all = 0;
    for (const auto &[function, number] : Tried) {
        std::cout << function << ' ' << number << '\n';
        all += number;
    }
    std::cout << all << " faults of " << Tried.size() << " functions were tried.\n";
    return all;
}

TEST(Fault, EndsAsTold) {
    const std::vector<SessionPlan> faults = WantedFaults();
    const std::vector<SessionEnd> ends = PlayAll(faults, SessionsAtOnce());
    std::map<std::string_view, int> tried;
    int skipped = 0;
    for (std::size_t i = 0; i < faults.size(); ++i) {
        if (!WasTried(faults[i], ends[i])) {
            ++skipped;
            continue;
        }
        ++tried[faults[i].Function];
        const std::string verdict = Verdict(faults[i], ends[i]);
        EXPECT_TRUE(verdict.empty()) << NameOf(faults[i]) << ": " << verdict << "It said:\n"
                                     << Joined(ends[i].Lines) << "It printed:\n"
                                     << Joined(ends[i].Printed);
    }
    EXPECT_GT(Tell(tried), 0);
    std::cout << skipped << " more did not come, as the sounds ended earlier or later.\n";
}

} // namespace
