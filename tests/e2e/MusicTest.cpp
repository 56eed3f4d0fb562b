#include "tests/e2e/Effects.hpp"
#include "tests/e2e/RecordedGame.hpp"
#include "tools/desktop/RoadSight.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

namespace {

// The volume of the music that the game starts with.
constexpr double PlainGain = 0.5;

// How far a piece may be off its file, in rounding, and a gain in measuring.
constexpr float RoundingError = 2.0F * FinestStep;
constexpr double GainError = 0.002;

// The start-up fade is over by then, on a busy machine too.
constexpr std::size_t FadedIn = FrameRate;

Sound Piece(const char *Name) {
    return ReadMusic(GameProgram().parent_path() / "Music" / Name);
}

// Whether the frames [From, To) hold the piece at that gain and nothing else.
testing::AssertionResult IsAlone(const Sound &Heard, const Sound &Music, std::size_t Start, std::size_t From,
    std::size_t To, double Gain) {
    for (std::size_t block = From; block + BlockFrames <= To; block += BlockFrames) {
        const Comparison found = Compare(Heard, Music, Start, block, BlockFrames);
        if (found.Error > RoundingError || std::abs(found.Gain - Gain) > GainError) {
            return testing::AssertionFailure() << "at " << Seconds(block) << " s the gain is " << found.Gain
                                               << " and the error " << found.Error / FinestStep << " steps";
        }
    }
    return testing::AssertionSuccess();
}

struct Point {
    double Time = 0.0; // seconds
    double Gain = 0.0;
};

// The gain of a piece block by block, each at the time of its middle, counted from the piece's start.
std::vector<Point> GainsOf(
    const Sound &Heard, const Sound &Music, std::size_t Start, std::size_t From, std::size_t To) {
    std::vector<Point> points;
    for (std::size_t block = From; block + BlockFrames <= To; block += BlockFrames) {
        points.push_back({Seconds(block + BlockFrames / 2) - Seconds(Start),
            Compare(Heard, Music, Start, block, BlockFrames).Gain});
    }
    return points;
}

// The straight line through points by least squares, and how far the worst of them lies off it.
struct Line {
    double AtZero = 0.0;
    double Slope = 0.0; // a second
    double Worst = 0.0;

    double At(double Time) const {
        return AtZero + Slope * Time;
    }
};

Line LineThrough(const std::vector<Point> &Points) {
    double time = 0.0;
    double gain = 0.0;
    for (const Point &point : Points) {
        time += point.Time / static_cast<double>(Points.size());
        gain += point.Gain / static_cast<double>(Points.size());
    }
    double product = 0.0;
    double square = 0.0;
    for (const Point &point : Points) {
        product += (point.Time - time) * (point.Gain - gain);
        square += (point.Time - time) * (point.Time - time);
    }
    Line line{.Slope = product / square};
    line.AtZero = gain - line.Slope * time;
    for (const Point &point : Points) {
        line.Worst = std::max(line.Worst, std::abs(point.Gain - line.At(point.Time)));
    }
    return line;
}

std::vector<Point> Between(const std::vector<Point> &Points, double Low, double High) {
    std::vector<Point> found;
    std::ranges::copy_if(Points, std::back_inserter(found), [&](const Point &Candidate) {
        return Candidate.Gain > Low && Candidate.Gain < High;
    });
    return found;
}

double Median(std::vector<double> Values) {
    const auto middle = Values.begin() + static_cast<std::ptrdiff_t>(Values.size() / 2);
    std::ranges::nth_element(Values, middle);
    return *middle;
}

// The line of the median slope between any two points, which single late frames do not bend.
Line MiddleLine(const std::vector<Point> &Points) {
    std::vector<double> slopes;
    for (auto one = Points.begin(); one != Points.end(); ++one) {
        for (auto other = one + 1; other != Points.end(); ++other) {
            slopes.push_back((other->Gain - one->Gain) / (other->Time - one->Time));
        }
    }
    Line line{.Slope = Median(slopes)};
    std::vector<double> offsets;
    for (const Point &point : Points) {
        offsets.push_back(point.Gain - line.Slope * point.Time);
    }
    line.AtZero = Median(offsets);
    return line;
}

// Whether the gains rise as a start should, from 28 percent to all of it in 350 milliseconds. Each block has
// the gain of the last frame before it was mixed, and it is mixed a block or so before its turn to be heard.
testing::AssertionResult Rises(const std::vector<Point> &Points) {
    const std::vector<Point> rising = Between(Points, 0.0, PlainGain - GainError);
    if (rising.size() < 13 || rising.size() > 17) {
        return testing::AssertionFailure() << "it rises for " << rising.size() << " blocks";
    }
    const Line line = MiddleLine(rising);
    const double first = rising.front().Gain / PlainGain;
    const double start = line.At(rising.front().Time) / PlainGain;
    const double length = (1.0 - 0.28) * PlainGain / line.Slope;
    std::printf("    it begins with %.1f%% (28), by its line with %.1f%%, and rises in %.0f ms (350)\n",
        100.0 * first, 100.0 * start, 1000.0 * length);
    if (first < 0.27 || first > 0.35 || std::abs(start - 0.28) > 0.06 || std::abs(length - 0.35) > 0.035) {
        return testing::AssertionFailure() << "it rises from " << start << " in " << length << " s";
    }
    return testing::AssertionSuccess();
}

void TellStart(const char *Name, std::size_t Start) {
    std::printf("    %s begins at %.3f s\n", Name, Seconds(Start));
}

void TellChange(const char *Name, const Change &Changed) {
    TellStart(Name, Changed.Begin);
    if (Changed.Heard < Changed.Begin) {
        std::printf("    and was heard for %zu frames before that\n", Changed.Begin - Changed.Heard);
    }
}

struct RunMusic {
    const char *Name;
    const char *File;
    void (*Prepare)(GameState &Run);
};

void PrintTo(const RunMusic &Shown, std::ostream *Out) {
    *Out << Shown.Name;
}

class Music : public Measuring {};

class MusicOfARun : public Measuring, public testing::WithParamInterface<RunMusic> {};

} // namespace

// A game that is disturbed by others on the machine shows frames late, and so rises in steps that have
// nothing to do with the rule. No disturbance makes a wrong rise right, so one good start of several is
// enough.
TEST_F(Music, TheFirstMenuPieceRisesFromTwentyEightPercentIn350Milliseconds) {
    testing::AssertionResult risen = testing::AssertionFailure();
    for (int attempt = 0; attempt < 8 && !risen; ++attempt) {
        RecordedGame game;
        ASSERT_TRUE(game.Listen(2.0));
        const Sound heard = game.End();
        const Sound menu = Piece("MenuCredits.ogg");
        const std::size_t start = FindPiece(heard, menu);
        ASSERT_LT(start + 2 * FadedIn, heard.size());
        TellStart("the menu's piece", start);
        const Sound before(heard.begin(), heard.begin() + static_cast<std::ptrdiff_t>(start));
        EXPECT_TRUE(FindSounds(before, 0.0F).empty());
        EXPECT_TRUE(IsAlone(heard, menu, start, start + FadedIn, start + 3 * FadedIn / 2, PlainGain));
        risen = Rises(GainsOf(heard, menu, start, start, start + FadedIn));
    }
    EXPECT_TRUE(risen);
}

TEST_F(Music, FadesOutIn1500MillisecondsAtTheEnd) {
    RecordedGame game;
    ASSERT_TRUE(game.Listen(1.5));
    // The block that is being recorded now may fade already; the one before it does not.
    const std::size_t before = (game.FramesSoFar() / BlockFrames - 1) * BlockFrames;
    const Sound heard = game.End();
    const Sound menu = Piece("MenuCredits.ogg");
    const std::size_t start = FindPiece(heard, menu);
    ASSERT_LT(start, heard.size());
    const std::vector<Point> points = GainsOf(heard, menu, start, before, heard.size());
    const Line line = LineThrough(Between(points, 0.02 * PlainGain, 0.98 * PlainGain));
    std::printf("    it falls in %.0f ms (1500), at most %.4f off a line; the last block has the gain %.4f\n",
        -1000.0 * PlainGain / line.Slope, line.Worst, points.back().Gain);
    EXPECT_NEAR(points.front().Gain, PlainGain, GainError);
    EXPECT_NEAR(-PlainGain / line.Slope, 1.5, 0.015);
    EXPECT_LT(line.Worst, 0.01 * PlainGain);
    EXPECT_LT(points.back().Gain, 0.03 * PlainGain) << "the end does not wait for the fade";
}

// Not a sample of anything else lies between the two, and the press itself is not heard.
TEST_F(Music, NewGameCutsToTheGameplayPiece) {
    RecordedGame game;
    ASSERT_TRUE(game.Listen(1.5));
    const std::size_t pressed = game.FramesSoFar();
    ASSERT_TRUE(game.Game().Tap(Key::Return, ScreenIs(SeenScreen::Playing)));
    const std::size_t shown = game.FramesSoFar();
    ASSERT_TRUE(game.Listen(1.0));
    const Sound heard = game.End();
    const Sound menu = Piece("MenuCredits.ogg");
    const Sound gameplay = Piece("Gameplay.ogg");
    const std::size_t start = FindPiece(heard, menu);
    const Change cut = FindChange(heard, gameplay, start + FadedIn, PlainGain);
    ASSERT_LT(cut.Begin, heard.size());
    std::printf("    pressed at %.3f s, the run is seen at %.3f s\n", Seconds(pressed), Seconds(shown));
    TellChange("the run's piece", cut);
    EXPECT_GE(cut.Heard + BlockFrames, pressed);
    EXPECT_LE(cut.Begin, shown + FrameRate / 5);
    EXPECT_TRUE(IsAlone(heard, menu, start, start + FadedIn, cut.Heard, PlainGain));
    EXPECT_TRUE(IsAlone(heard, gameplay, cut.Begin, cut.Begin, shown + FrameRate, PlainGain));
}

// The pause has the run's music, and so has the main menu that is reached from it until the loop ends.
TEST_F(Music, EffectsLieOverItAndThePauseMenuDoesNotCutIt) {
    struct Step {
        Key Tapped;
        Sight Shows;
        Effect Sounds;
    };
    const std::vector<Step> steps{
        {Key::Down, SixRowMenu(1), MoveSound},
        {Key::Up, SixRowMenu(0), MoveSound},
        {Key::Return, ScreenIs(SeenScreen::Playing), ConfirmSound},
        {Key::X, SeesBlast, BombSound},
        {Key::Escape, PauseMenu(0), BackSound},
        {Key::Up, PauseMenu(3), MoveSound},
        {Key::Return, SixRowMenu(0), ConfirmSound},
        {Key::Down, SixRowMenu(1), MoveSound},
    };
    const GameState run = QuietRun();
    RecordedGame game({}, &run);
    ASSERT_TRUE(game.Listen(1.5));
    for (const Step &step : steps) {
        ASSERT_TRUE(game.Game().Tap(step.Tapped, step.Shows)) << step.Sounds.Name;
        ASSERT_TRUE(game.Listen(0.5));
    }
    const std::size_t end = game.FramesSoFar();
    Sound heard = game.End();

    const Sound menu = Piece("MenuCredits.ogg");
    const Sound gameplay = Piece("Gameplay.ogg");
    const std::size_t start = FindPiece(heard, menu);
    const Change cut = FindChange(heard, gameplay, start + FadedIn, PlainGain);
    ASSERT_LT(cut.Begin, end);
    TellChange("the run's piece", cut);
    TakeOut(heard, menu, start, start + FadedIn, cut.Heard, PlainGain);
    TakeOut(heard, gameplay, cut.Heard, cut.Heard, cut.Begin, PlainGain);
    TakeOut(heard, gameplay, cut.Begin, cut.Begin, end, PlainGain);
    const Sound rest(heard.begin() + static_cast<std::ptrdiff_t>(start + FadedIn),
        heard.begin() + static_cast<std::ptrdiff_t>(end));
    const std::vector<Stretch> sounds = FindSounds(rest, RoundingError);
    ASSERT_EQ(sounds.size(), steps.size());
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_TRUE(Holds(rest, sounds[i], {steps[i].Sounds}, 0.75F)) << i;
    }
}

TEST_P(MusicOfARun, IsCutTo) {
    GameState run = QuietRun();
    GetParam().Prepare(run);
    RecordedGame game("SfxEnabled=\"0\"", &run);
    ASSERT_TRUE(game.Listen(1.0));
    ASSERT_TRUE(game.Game().Tap(Key::Return, ScreenIs(SeenScreen::Playing)));
    const std::size_t shown = game.FramesSoFar();
    ASSERT_TRUE(game.Listen(1.0));
    const Sound heard = game.End();
    const Sound piece = Piece(GetParam().File);
    const Change cut = FindChange(heard, piece, FadedIn, PlainGain);
    ASSERT_LT(cut.Begin, heard.size());
    TellChange(GetParam().File, cut);
    EXPECT_LE(cut.Begin, shown + FrameRate / 5);
    EXPECT_TRUE(IsAlone(heard, piece, cut.Begin, cut.Begin, shown + FrameRate, PlainGain));
}

INSTANTIATE_TEST_SUITE_P(Music, MusicOfARun,
    testing::Values(RunMusic{"OnLand", "Gameplay.ogg", [](GameState & /*Run*/) {}},
        RunMusic{"OnWater", "Water.ogg",
            [](GameState &Run) {
                Run.Stage = 2;
                Run.GameTime = 30.0F;
            }},
        RunMusic{"WithTwoShots", "DualWeapon.ogg",
            [](GameState &Run) {
                Run.DualWeaponPowerTimer = 60.0F;
            }},
        RunMusic{"Invincible", "Invincibility.ogg",
            [](GameState &Run) {
                Run.DualWeaponPowerTimer = 60.0F;
                Run.InvincibilityPowerTimer = 60.0F;
            }}),
    [](const testing::TestParamInfo<RunMusic> &Info) {
        return std::string(Info.param.Name);
    });

// The run's loop of twenty-six seconds is played to its end, and the menu's piece follows at once again.
TEST_F(Music, GameOverWaitsForTheLoopsEndAndTheMenuAfterItDoesNot) {
    GameState run = QuietRun();
    run.Player.Hp = 10;
    run.Player.Stocks = 0;
    ShootDownwards(run);
    RecordedGame game("SfxEnabled=\"0\"", &run);
    ASSERT_TRUE(game.Listen(1.0));
    ASSERT_TRUE(game.Game().Tap(Key::Return, ScreenIs(SeenScreen::Playing)));
    ASSERT_TRUE(game.Game().WaitForPicture(ScreenIs(SeenScreen::GameOver)));
    const std::size_t over = game.FramesSoFar();
    ASSERT_TRUE(game.Listen(26.5));
    ASSERT_TRUE(game.Game().Tap(Key::Return, FiveRowMenu(0)));
    const std::size_t back = game.FramesSoFar();
    ASSERT_TRUE(game.Listen(1.0));
    const Sound heard = game.End();

    const Sound gameplay = Piece("Gameplay.ogg");
    const Sound gameOver = Piece("GameOver.ogg");
    const Sound menu = Piece("MenuCredits.ogg");
    const Change start = FindChange(heard, gameplay, FadedIn, PlainGain);
    ASSERT_LT(start.Begin, over);
    const Change ended = FindChange(heard, gameOver, start.Begin, PlainGain);
    ASSERT_LT(ended.Begin, heard.size());
    const Change cut = FindChange(heard, menu, ended.Begin, PlainGain);
    ASSERT_LT(cut.Begin, heard.size());
    TellChange("the run's piece", start);
    TellChange("the piece of the game's end", ended);
    TellChange("the menu's piece", cut);
    // The mixer starts the loop anew by itself, and the next frame sees that.
    EXPECT_GE(ended.Heard, start.Begin + gameplay.size());
    EXPECT_LE(ended.Begin, start.Begin + gameplay.size() + FrameRate / 5);
    EXPECT_TRUE(IsAlone(heard, gameplay, start.Begin, start.Begin, ended.Heard, PlainGain));
    EXPECT_TRUE(IsAlone(heard, gameOver, ended.Begin, ended.Begin, cut.Heard, PlainGain));
    EXPECT_LE(cut.Begin, back + FrameRate / 5);
    EXPECT_TRUE(IsAlone(heard, menu, cut.Begin, cut.Begin, back + FrameRate, PlainGain));
}

// Half of sixty percent.
TEST_F(Music, VolumesScaleTheLevel) {
    RecordedGame game("MasterVolume=\"50\"\r\nMusicVolume=\"60\"");
    ASSERT_TRUE(game.Listen(2.0));
    const std::size_t end = game.FramesSoFar();
    const Sound heard = game.End();
    const Sound menu = Piece("MenuCredits.ogg");
    const std::size_t start = FindPiece(heard, menu);
    ASSERT_LT(start + FadedIn + BlockFrames, end);
    std::printf(
        "    the gain is %.4f (0.3000)\n", Compare(heard, menu, start, start + FadedIn, BlockFrames).Gain);
    EXPECT_TRUE(IsAlone(heard, menu, start, start + FadedIn, end, 0.3));
}
