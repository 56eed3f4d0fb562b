#include "app/Frame.hpp"
#include "app/Program.hpp"
#include "app/ShutDown.hpp"
#include "app/StartUp.hpp"
#include "sim/Lanes.hpp"
#include "sim/NewRun.hpp"
#include "sim/Stages.hpp"
#include "state/LogicalScreen.hpp"
#include "state/MenuRows.hpp"
#include "state/Resolutions.hpp"
#include "store/OptionsFile.hpp"
#include "tests/app/OptionsPromises.hpp"
#include "tests/sim/RunPromises.hpp"
#include "tests/storms/RandomEvents.hpp"
#include "tests/storms/Sights.hpp"
#include "tests/support/LogicalWidthScope.hpp"
#include "tests/support/Promises.hpp"
#include "tests/support/Sdl.hpp"
#include "tests/support/TemporaryHome.hpp"
#include "tests/support/watch/FakeDisplays.hpp"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <tuple>

// The whole program in storms of events: as many as can be had, in an order that no person and no system
// would send them, and after each frame all that ever must hold.

// Sanitizers call it before they end the program; without them there is none.
// NOLINTNEXTLINE(readability-identifier-naming): the name is theirs
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*Callback)());

namespace {

constexpr std::uint32_t MostEventsInFrame = 200;

/// What can be repeated alone, by its seed.
constexpr std::int64_t EventsInStorm = 100000;

/// The frames' lengths in milliseconds: most are of those that a run is played with.
constexpr std::array<Uint64, 10> FrameLengths{0, 1, 8, 16, 17, 33, 33, 33, 40, 5000};

/// Weather for some frames.
struct Spell {
    std::uint32_t Frames = 0;
    std::uint32_t MostEvents = 0; ///< in a frame
    void (RandomEvents::*Push)(const Program &Game) = nullptr;
};

struct StormPlace {
    std::uint32_t Seed = 0;
    std::int64_t Frame = 0;
};
StormPlace Here;

std::string TellPlace() {
    return "in frame " + std::to_string(Here.Frame) + " of STORM_SEED=" + std::to_string(Here.Seed);
}

/// For what ends the program without a word of a test.
void TellPlaceOfDeath() {
    std::fprintf(stderr, "in frame %lld of STORM_SEED=%u\n", static_cast<long long>(Here.Frame), Here.Seed);
}

std::int64_t NumberFrom(const char *Variable, std::int64_t Default) {
    const char *wanted = std::getenv(Variable);
    return wanted == nullptr ? Default : std::atoll(wanted);
}

/// What holds on every screen between two frames; the first broken promise by name.
std::string BrokenScreen(const GameState &State) {
    const auto isMenuOfRun = [](enum Screen Screen) {
        return Screen == ScreenMainMenu || Screen == ScreenPaused;
    };
    return FirstBroken({
        {"Screen", State.Screen >= ScreenMainMenu && State.Screen <= ScreenGameOver},
        {"MainMenuSelection", State.MainMenuSelection < MainMenuRowCount(true)},
        {"PauseSelection", State.PauseSelection >= 0 && State.PauseSelection < PauseRowCount},
        {"OptionsReturnScreen", isMenuOfRun(State.OptionsReturnScreen)},
        {"HelpReturnScreen", isMenuOfRun(State.HelpReturnScreen)},
        {"CreditsScroll", State.CreditsScroll >= 0.0F && State.CreditsScroll <= 1090.0F},
        {"HasRunState", State.HasRunState || (State.Screen != ScreenPlaying && State.Screen != ScreenPaused)},
        {"PendingSounds", State.PendingSounds.Count == 0},
        {"SaveDelay", State.SaveDelay >= 0.0F && State.SaveDelay <= 1.0F},
        {"OptionsDirty", !State.OptionsDirty},
    });
}

/// What may happen from one frame to the next, whatever is pressed.
std::string BrokenCourse(const GameState &Before, const GameState &After) {
    const bool isRunLost = Before.HasRunState && !After.HasRunState;
    return FirstBroken({
        {"the high score does not fall", After.HighScore >= Before.HighScore},
        {"a run ends by its game over alone", !isRunLost || After.Screen == ScreenGameOver},
    });
}

/// What the window and the renderer are brought in line with.
struct DisplayOptions {
    enum AspectMode AspectMode = AspectWidescreen;
    Resolution Size;
    std::int32_t RefreshRate = 0;
    bool Fullscreen = false;
    bool VSync = false;

    bool operator==(const DisplayOptions &) const = default;
};

DisplayOptions DisplayOptionsOf(const GameState &State) {
    return {State.AspectMode, CurrentResolution(State), State.RefreshRate, State.Fullscreen, State.VSync};
}

/// What the Controls page and the Audio page apply.
auto AppliedOptionsOf(const GameState &State) {
    return std::tie(State.ControlsDevice, State.KeyboardBindings, State.GamepadBindings,
        State.JoystickBindings, State.MasterVolume, State.MusicVolume, State.SfxVolume, State.MusicEnabled,
        State.SfxEnabled, State.Language);
}

/// What is open is there, and in the right place.
std::string BrokenDevice(const InputDevices &Devices) {
    SDL_Gamepad *gamepad = Devices.Gamepad;
    SDL_Joystick *joystick = Devices.Joystick;
    return FirstBroken({
        {"Gamepad", (gamepad == nullptr) == (Devices.GamepadId == 0)},
        {"GamepadId", gamepad == nullptr || SDL_GetGamepadID(gamepad) == Devices.GamepadId},
        {"the gamepad is there", gamepad == nullptr || SDL_GamepadConnected(gamepad)},
        {"Joystick", (joystick == nullptr) == (Devices.JoystickId == 0)},
        {"JoystickId", joystick == nullptr || SDL_GetJoystickID(joystick) == Devices.JoystickId},
        {"the joystick is there", joystick == nullptr || SDL_JoystickConnected(joystick)},
        {"the joystick is no gamepad", joystick == nullptr || !SDL_IsGamepad(Devices.JoystickId)},
    });
}

/// Whether no new run has begun between two frames. One that has begun is one step old at most.
bool IsSameRun(const GameState &Before, const GameState &After) {
    return Before.GameTime > MaxDeltaSeconds && After.GameTime >= Before.GameTime;
}

std::string BrokenPromise(const GameState &Before, const Program &After) {
    const GameState &state = After.State;
    std::string broken = BrokenScreen(state);
    broken += BrokenCourse(Before, state);
    broken += BrokenOption(state);
    broken += BrokenDevice(After.Devices);
    if (state.HasRunState || state.Screen == ScreenGameOver) {
        broken += BrokenRun(state);
    }
    if (IsSameRun(Before, state)) {
        broken += BrokenStep(Before, state);
    }
    return broken;
}

/// Puts a run that has come some way behind CONTINUE GAME.
void PutLateRun(GameState &State, float GameTime) {
    StartNewRun(State);
    State.GameTime = GameTime;
    State.Stage = State.PreviousStage = StageAt(GameTime);
    State.Screen = ScreenMainMenu;
}

/// Leaves the car nothing to lose, and lets a shot fly down each lane: few runs would end otherwise.
void PutLastMoment(GameState &State) {
    State.Player.Hp = std::min(State.Player.Hp, 1);
    State.Player.Stocks = 0;
    for (std::int32_t lane = 0; lane < LaneCount; ++lane) {
        State.EnemyBullets.push_back(
            {.X = LaneCenterX(lane), .Y = 600.0F, .Speed = 190.0F, .Radius = 2.0F, .Damage = 10});
    }
}

class Storm : public ::testing::Test {
protected:
    Storm();
    ~Storm() override;
    void SetUp() override;

    /// Runs the program through the storm of a seed; it begins with no files.
    void Rage(std::uint32_t Seed);

    std::int64_t Events = 0; ///< that came in all storms
    std::int64_t Frames = 0;
    Sights Met;

private:
    void AnswerForTime();
    void Launch();
    void Leave();
    Spell DrawSpell();
    void RunFrameIn(const Spell &Weather);
    std::string BrokenApply(const GameState &Before) const;

    TemporaryHome Home;
    LogicalWidthScope ScreenWidth{1280};
    SdlWatch Watch;
    FakeDisplays Displays{Watch};
    std::vector<FakeDisplay> KnownDisplays;
    LogCatcher Log;
    Uint64 Now = 0; ///< in milliseconds
    int VSync = 0;
    DisplayOptions OnDisplay; ///< as they were when vertical sync was last set, which every apply does
    std::int32_t WidthOnDisplay = 0;
    RandomEvents Drawn{0};
    std::unique_ptr<Program> Game;
};

Storm::Storm() {
    AnswerForTime();
    Watch.GetKeyboardState.Answer = [this](int * /*Count*/) {
        return Drawn.Held.data();
    };
    // Small ones, but of every shape.
    Displays.Add(7, 1024, 768).Modes = {Mode(960, 540, 60.0F), Mode(960, 540, 144.0F), Mode(960, 600, 60.0F),
        Mode(960, 640, 75.0F), Mode(1280, 540, 60.0F), Mode(1280, 360, 120.0F), Mode(800, 600, 60.0F),
        Mode(800, 600, 85.0F), Mode(640, 480, 60.0F)};
    KnownDisplays = Displays.List;
    std::signal(SIGABRT, [](int /*Signal*/) {
        TellPlaceOfDeath();
    });
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(TellPlaceOfDeath);
    }
}

Storm::~Storm() {
    if (Game != nullptr) {
        Leave();
    }
}

void Storm::SetUp() {
    ChooseSoftwareDrivers();
    ASSERT_TRUE(SDL_Init(SDL_INIT_JOYSTICK)) << SDL_GetError();
    const bool hasRealDevices = HasRealDevices();
    SDL_Quit();
    if (hasRealDevices) {
        GTEST_SKIP() << "a real pad or joystick is plugged in";
    }
}

/// Nothing waits: the clock goes on by what is drawn and by what the program would sleep, and what paces
/// presents is only noted.
void Storm::AnswerForTime() {
    Watch.GetTicks.Answer = [this] {
        return Now;
    };
    Watch.Delay.Answer = [this](Uint32 Milliseconds) {
        Now += Milliseconds;
    };
    Watch.SetRenderVSync.Answer = [this](SDL_Renderer * /*Renderer*/, int Wanted) {
        VSync = Wanted;
        OnDisplay = DisplayOptionsOf(Game->State);
        WidthOnDisplay = LogicalWidth;
        return true;
    };
    Watch.GetRenderVSync.Answer = [this](SDL_Renderer * /*Renderer*/, int *Actual) {
        *Actual = VSync;
        return true;
    };
}

/// Starts the program as a person would: with what is left of the last time, on a display or, at times, on
/// one that tells nothing.
void Storm::Launch() {
    ChooseSoftwareDrivers(); // the end of SDL forgets what was chosen
    Displays.List = Drawn.Draw(4) == 0 ? std::vector<FakeDisplay>{} : KnownDisplays;
    Displays.Primary = Displays.OfWindow = Displays.List.empty() ? 0 : KnownDisplays.front().Id;
    Game = std::make_unique<Program>();
    Log.Lines.clear();
    ASSERT_TRUE(StartUp(*Game)) << SDL_GetError() << ' ' << TellPlace();
    ASSERT_EQ(Log.Lines, std::vector{NoIconsLine}) << TellPlace();
    Game->State.Rng.seed(Drawn.Draw(1000000));
    if (Drawn.Draw(2) == 0) {
        PutLateRun(Game->State, static_cast<float>(Drawn.Draw(500)));
    }
}

void Storm::Leave() {
    Log.Lines.clear();
    ShutDown(*Game);
    EXPECT_EQ(Log.Lines, std::vector<std::string>{}) << TellPlace();
    Drawn.LetGo();
    Game.reset();
}

/// Menus are walked slowly; a run goes on through harmless floods, or it would never come far; and now and
/// then everything comes at once, once more than the queue of sounds holds.
Spell Storm::DrawSpell() {
    const bool isPlaying = Game->State.Screen == ScreenPlaying;
    const std::uint32_t drawn = Drawn.Draw(20);
    if (drawn == 0) {
        return {1 + Drawn.Draw(4), MostEventsInFrame, &RandomEvents::PushAny};
    }
    if (drawn == 1) {
        return {1 + Drawn.Draw(8), MostEventsInFrame, &RandomEvents::PushKeyOrOther};
    }
    if (drawn < (isPlaying ? 11U : 4U)) {
        if (isPlaying && Drawn.Draw(4) == 0) {
            PutLastMoment(Game->State);
        }
        return {5 + Drawn.Draw(isPlaying ? 300U : 20U), MostEventsInFrame, &RandomEvents::PushHarmless};
    }
    return {5 + Drawn.Draw(200), 12, &RandomEvents::PushKeyOrOther};
}

/// What is applied goes into Config.ini within the frame, and on the display; on the Graphics page alone the
/// options may be others than there.
std::string Storm::BrokenApply(const GameState &Before) const {
    const GameState &after = Game->State;
    const bool isStored = std::ranges::any_of(Watch.WriteStorageFile.Calls, [](const auto &Call) {
        return std::get<1>(Call) == OptionsFileName;
    });
    const bool isOnPage = after.OptionsPage == OptionsPageGraphics;
    return FirstBroken({
        {"what is applied is stored", isStored || AppliedOptionsOf(Before) == AppliedOptionsOf(after)},
        {"the display was applied and is stored", isStored || Watch.SetRenderVSync.Count() == 0},
        {"the display has the options", isOnPage || OnDisplay == DisplayOptionsOf(after)},
        {"LogicalWidth", LogicalWidth == WidthOnDisplay},
    });
}

void Storm::RunFrameIn(const Spell &Weather) {
    for (std::uint32_t i = Drawn.Draw(Weather.MostEvents + 1); i > 0; --i) {
        (Drawn.*Weather.Push)(*Game);
    }
    Events += SDL_PeepEvents(nullptr, 0, SDL_PEEKEVENT, SDL_EVENT_FIRST, SDL_EVENT_LAST);
    Now += Drawn.DrawFrom<Uint64>(FrameLengths);
    const GameState before = Game->State;
    Watch.Forget();
    Log.Lines.clear();
    RunFrame(*Game);
    ASSERT_EQ(BrokenPromise(before, *Game), "") << TellPlace();
    ASSERT_EQ(BrokenApply(before), "") << TellPlace();
    ASSERT_EQ(Log.Lines, std::vector<std::string>{}) << TellPlace();
    Met.Note(before, *Game, Watch.SetRenderVSync.Count() > 0);
    ++Frames;
    ++Here.Frame;
}

void Storm::Rage(std::uint32_t Seed) {
    Here = {Seed, 0};
    Drawn = RandomEvents(Seed);
    Now = 0;
    for (const char *file : {"Config.ini", "SaveState.bin"}) {
        std::filesystem::remove(Home.FilePath(file));
    }
    Launch();
    Spell weather;
    for (const std::int64_t end = Events + EventsInStorm; Events < end && !HasFatalFailure();) {
        if (weather.Frames == 0) {
            weather = DrawSpell();
        }
        --weather.Frames;
        RunFrameIn(weather);
        if (!Game->State.Running) {
            Leave();
            Launch();
            weather = {};
        }
    }
    Leave();
}

} // namespace

// STORM_EVENTS sets how many there are in all, STORM_SEED with which storm to begin.
TEST_F(Storm, OfEventsOfEveryKindBreaksNothing) {
    const std::int64_t wanted = NumberFrom("STORM_EVENTS", 3 * EventsInStorm);
    auto seed = static_cast<std::uint32_t>(NumberFrom("STORM_SEED", 1));
    for (; Events < wanted; ++seed) {
        std::printf("storm %u, after %lld events\n", seed, static_cast<long long>(Events));
        std::fflush(stdout);
        Rage(seed);
        if (HasFatalFailure()) {
            return;
        }
    }
    std::printf("%lld events in %lld frames, of which showed:\n%s", static_cast<long long>(Events),
        static_cast<long long>(Frames), Met.Table().c_str());
    // A single one that is repeated need not have met all.
    if (std::getenv("STORM_SEED") == nullptr) {
        EXPECT_EQ(Met.Missing(), std::vector<std::string>{});
    }
}
