#include "tests/e2e/Effects.hpp"
#include "tests/e2e/RecordedGame.hpp"
#include "tools/desktop/RoadSight.hpp"

#include <string>
#include <vector>

namespace {

constexpr const char *MusicOff = "MusicEnabled=\"0\"";

// The volume of the effects that the game starts with.
constexpr float PlainGain = 0.75F;

bool SeesShot(const Screenshot &Seen) {
    return !FindShots(Seen).empty();
}

bool SeesNoKit(const Screenshot &Seen) {
    return KitsShown(Seen) == 0;
}

GameState HurtRun() {
    GameState run = QuietRun();
    run.Player.Hp = 50;
    run.FirstAidKits = 1;
    return run;
}

// A key, what the screen shows then, and what is heard.
struct Press {
    Key Tapped;
    Sight Shows;
    Effect Sounds;
};

// Through the menus, into a hurt run, and into its pause.
std::vector<Press> Tour() {
    return {
        {Key::Down, SixRowMenu(1), MoveSound},
        {Key::W, SixRowMenu(0), MoveSound},
        {Key::S, SixRowMenu(1), MoveSound},
        {Key::Down, SixRowMenu(2), MoveSound},
        {Key::Return, OptionsMenu(0), ConfirmSound},
        {Key::Escape, SixRowMenu(2), BackSound},
        {Key::Down, SixRowMenu(3), MoveSound},
        {Key::Space, ScreenIs(SeenScreen::Help), ConfirmSound},
        {Key::Return, SixRowMenu(3), BackSound},
        {Key::Up, SixRowMenu(2), MoveSound},
        {Key::Up, SixRowMenu(1), MoveSound},
        {Key::Up, SixRowMenu(0), MoveSound},
        {Key::KeypadEnter, ScreenIs(SeenScreen::Playing), ConfirmSound},
        {Key::LeftControl, SeesShot, FireSound},
        {Key::X, SeesBlast, BombSound},
        {Key::Space, SeesNoKit, HealSound},
        {Key::Escape, PauseMenu(0), BackSound},
        {Key::Up, PauseMenu(3), MoveSound},
        {Key::Down, PauseMenu(0), MoveSound},
        {Key::Return, ScreenIs(SeenScreen::Playing), ConfirmSound},
    };
}

// What a run on a quiet road comes upon by itself a second or two after it is continued.
struct Event {
    const char *Name;
    void (*Prepare)(GameState &Run);
    std::vector<Effect> Sounds;
};

// Which is how tests are named that are told by it.
void PrintTo(const Event &Shown, std::ostream *Out) {
    *Out << Shown.Name;
}

std::vector<Event> Events() {
    return {
        {"Hit", ShootDownwards, {HitSound}},
        {"LostLife",
            [](GameState &Run) {
                ShootDownwards(Run);
                Run.Player.Hp = 10;
            },
            {HitSound, DeathSound}},
        {"Enemy", ShootEnemy, {EnemySound}},
        {"Obstacle",
            [](GameState &Run) {
                Run.Bullets.push_back({.X = 640.0F, .Y = 640.0F, .Speed = 430.0F, .Radius = 2.0F});
                Run.Obstacles.push_back({.Y = 40.0F, .Hp = 1});
            },
            {ObstacleSound}},
        {"Item",
            [](GameState &Run) {
                Run.Items.push_back({.Y = 440.0F, .Type = 1});
            },
            {ItemSound}},
    };
}

class SoundEffects : public Measuring {};

class SoundOf : public Measuring, public testing::WithParamInterface<Event> {};

struct Volumes {
    const char *Name;
    const char *Options;
    int Percent;
};

void PrintTo(const Volumes &Shown, std::ostream *Out) {
    *Out << Shown.Name;
}

class EffectVolume : public Measuring, public testing::WithParamInterface<Volumes> {};

template <typename Parameter> std::string NameOf(const testing::TestParamInfo<Parameter> &Info) {
    return Info.param.Name;
}

} // namespace

// A held control key fires again and again until a shot is seen; all other presses sound once.
TEST_F(SoundEffects, EachPressSoundsByItsRecipe) {
    const GameState run = HurtRun();
    RecordedGame game(MusicOff, &run);
    const std::vector<Press> tour = Tour();
    std::vector<std::size_t> ends;
    for (const Press &press : tour) {
        ASSERT_TRUE(game.TapAndHear(press.Tapped, press.Shows)) << press.Sounds.Name;
        ends.push_back(game.SoundsSoFar());
    }
    const Sound heard = game.End();
    const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
    ASSERT_EQ(sounds.size(), ends.back()) << "a sound that nobody asked for";
    std::size_t next = 0;
    for (std::size_t i = 0; i < tour.size(); ++i) {
        EXPECT_TRUE(ends[i] == next + 1 || tour[i].Tapped == Key::LeftControl) << i;
        for (; next < ends[i]; ++next) {
            EXPECT_TRUE(Holds(heard, sounds[next], {tour[i].Sounds}, PlainGain)) << "press " << i;
        }
    }
}

// A new run forgets the sounds that are asked for, that of the press that starts it too. The run is left
// before its first traffic comes.
TEST_F(SoundEffects, NewGameIsSilent) {
    RecordedGame game(MusicOff);
    ASSERT_TRUE(game.Game().Tap(Key::Return, ScreenIs(SeenScreen::Playing)));
    ASSERT_TRUE(game.Listen(0.5));
    ASSERT_TRUE(game.TapAndHear(Key::Escape, PauseMenu(0)));
    const Sound heard = game.End();
    const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
    ASSERT_EQ(sounds.size(), 1U);
    EXPECT_TRUE(Holds(heard, sounds[0], {BackSound}, PlainGain));
}

// The menu knows neither of its two keys, a kit is not spent at full health, and without bombs none is
// thrown.
TEST_F(SoundEffects, KeysThatDoNothingAreSilent) {
    GameState run = QuietRun();
    run.FirstAidKits = 1;
    run.Bombs = 0;
    RecordedGame game(MusicOff, &run);
    EXPECT_TRUE(game.Game().Ignores(Key::X, SixRowMenu(0)));
    EXPECT_TRUE(game.Game().Ignores(Key::Left, SixRowMenu(0)));
    ASSERT_TRUE(game.TapAndHear(Key::Return, ScreenIs(SeenScreen::Playing)));
    EXPECT_TRUE(game.Game().Ignores(Key::Space, [](const Screenshot &Seen) {
        return KitsShown(Seen) == 1;
    }));
    EXPECT_TRUE(game.Game().Ignores(Key::X, ScreenIs(SeenScreen::Playing)));
    const Sound heard = game.End();
    const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
    ASSERT_EQ(sounds.size(), 1U);
    EXPECT_TRUE(Holds(heard, sounds[0], {ConfirmSound}, PlainGain));
}

TEST_P(SoundOf, IsHeardInTheRun) {
    GameState run = QuietRun();
    GetParam().Prepare(run);
    RecordedGame game(MusicOff, &run);
    ASSERT_TRUE(game.TapAndHear(Key::Return, ScreenIs(SeenScreen::Playing)));
    ASSERT_TRUE(game.HearMore());
    const Sound heard = game.End();
    const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
    ASSERT_EQ(sounds.size(), 2U);
    EXPECT_TRUE(Holds(heard, sounds[0], {ConfirmSound}, PlainGain));
    EXPECT_TRUE(Holds(heard, sounds[1], GetParam().Sounds, PlainGain));
}

INSTANTIATE_TEST_SUITE_P(SoundEffects, SoundOf, testing::ValuesIn(Events()), NameOf<Event>);

// A third of a half is 16.5 percent, and parts of a percent do not count.
TEST_P(EffectVolume, ScalesTheLevel) {
    RecordedGame game(std::string(MusicOff) + "\r\n" + GetParam().Options);
    ASSERT_TRUE(game.TapAndHear(Key::Down, FiveRowMenu(1)));
    const Sound heard = game.End();
    const std::vector<Stretch> sounds = FindSounds(heard, FinestStep);
    ASSERT_EQ(sounds.size(), 1U);
    EXPECT_TRUE(Holds(heard, sounds[0], {MoveSound}, static_cast<float>(GetParam().Percent) / 100.0F));
}

INSTANTIATE_TEST_SUITE_P(SoundEffects, EffectVolume,
    testing::Values(Volumes{"Full", "SfxVolume=\"100\"", 100},
        Volumes{"Halved", "MasterVolume=\"50\"\r\nSfxVolume=\"40\"", 20},
        Volumes{"CutDown", "MasterVolume=\"33\"\r\nSfxVolume=\"50\"", 16}),
    NameOf<Volumes>);

TEST_F(SoundEffects, AreSilentWhenSwitchedOff) {
    const GameState run = HurtRun();
    RecordedGame game(std::string(MusicOff) + "\r\nSfxEnabled=\"0\"", &run);
    for (const Press &press : Tour()) {
        ASSERT_TRUE(game.Game().Tap(press.Tapped, press.Shows)) << press.Sounds.Name;
        ASSERT_TRUE(game.Listen(0.15));
    }
    const Sound heard = game.End();
    EXPECT_GT(Seconds(heard.size()), 3.0);
    EXPECT_TRUE(FindSounds(heard, 0.0F).empty());
}
