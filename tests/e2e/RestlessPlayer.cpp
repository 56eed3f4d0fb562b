#include "tests/e2e/RestlessPlayer.hpp"

#include "tools/desktop/RoadSight.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

namespace {

constexpr std::chrono::milliseconds Held{30};

void Repeat(std::vector<Key> &Keys, Key Repeated, int Times) {
    Keys.insert(Keys.end(), static_cast<std::size_t>(Times), Repeated);
}

// Each of a page's keys begins and ends on its first row.
void AddControls(std::vector<Key> &Keys) {
    Repeat(Keys, Key::Right, 3);
    Keys.insert(Keys.end(), {Key::Down, Key::Return, Key::A, Key::Down, Key::Return, Key::Escape});
    Repeat(Keys, Key::Down, 4);
    Keys.push_back(Key::Return); // DEFAULT SETTINGS
    Keys.push_back(Key::Down);
    Keys.push_back(Key::Return); // APPLY
    Repeat(Keys, Key::Down, 3);
}

} // namespace

void RestlessPlayer::Act() {
    const Screenshot seen = Game.Person().Look();
    switch (FindScreen(seen)) {
    case SeenScreen::MainMenu:
        ++Visits[SeenScreen::MainMenu];
        ChooseFromMainMenu(seen);
        break;
    case SeenScreen::Playing:
        ++Visits[SeenScreen::Playing];
        PlayOn(seen);
        break;
    case SeenScreen::Paused:
        ++Visits[SeenScreen::Paused];
        ChooseFromPause(seen);
        break;
    case SeenScreen::Options:
        ++Visits[SeenScreen::Options];
        ChangeOptions(seen);
        break;
    default:
        ++Visits[FindScreen(seen)];
        Tap({Key::Return});
        break;
    }
}

bool RestlessPlayer::HasMetAll() {
    constexpr std::array all{SeenScreen::MainMenu, SeenScreen::Playing, SeenScreen::Paused,
        SeenScreen::Options, SeenScreen::GameOver};
    return std::all_of(all.begin(), all.end(), [this](SeenScreen Screen) {
        return Visits[Screen] > 0;
    });
}

int RestlessPlayer::Draw(int Below) {
    return static_cast<int>(Random() % static_cast<unsigned>(Below));
}

void RestlessPlayer::Tap(const std::vector<Key> &Keys) {
    for (const Key key : Keys) {
        Game.Person().TapKey(key, Held);
    }
    // The keys are through by now. The game may be far behind them, most of all where they changed the
    // window, and the next look decides by what they came to.
    std::this_thread::sleep_for(Held * (static_cast<int>(Keys.size()) + 4));
}

void RestlessPlayer::ChooseFromMainMenu(const Screenshot &Seen) {
    const std::optional<SeenMenu> menu = FindMenu(Seen);
    if (!menu) {
        return;
    }
    const bool isFree = Visits[SeenScreen::GameOver] > 0 && Draw(4) == 0;
    const int wanted = isFree ? Draw(menu->Rows - 1) : 0;
    std::vector<Key> keys;
    Repeat(keys, Key::Down, (wanted + menu->Rows - menu->Selected) % menu->Rows);
    keys.push_back(Key::Return);
    Tap(keys);
}

void RestlessPlayer::ChooseFromPause(const Screenshot &Seen) {
    const std::optional<SeenMenu> menu = FindMenu(Seen);
    if (!menu) {
        return;
    }
    std::vector<Key> keys;
    Repeat(keys, Key::Down, Draw(menu->Rows));
    keys.push_back(Key::Return);
    Tap(keys);
}

void RestlessPlayer::PlayOn(const Screenshot &Seen) {
    constexpr std::array keys{Key::Left, Key::Right, Key::Left, Key::Right, Key::X, Key::Space};
    if (Draw(100) == 0) {
        Tap({Key::Escape});
        return;
    }
    if (Draw(10) == 0) {
        Game.Person().PressKey(Key::LeftControl);
    } else if (Draw(10) == 0) {
        Game.Person().ReleaseKey(Key::LeftControl);
    }
    const std::optional<int> car = FindCarLane(Seen);
    const std::optional<int> enemy = FindEnemyLane(Seen);
    if (Draw(10) == 0) {
        Game.Person().TapKey(keys[static_cast<std::size_t>(Draw(static_cast<int>(keys.size())))], Held);
    } else if (car && enemy && *car != *enemy) {
        Game.Person().TapKey(*enemy < *car ? Key::Left : Key::Right, Held);
    }
    std::this_thread::sleep_for(Held);
}

void RestlessPlayer::ChangeOptions(const Screenshot &Seen) {
    const std::optional<SeenMenu> menu = FindMenu(Seen);
    if (!menu) {
        Tap({Key::Escape});
        return;
    }
    const int wanted = Draw(3);
    std::vector<Key> keys;
    Repeat(keys, Key::Down, (wanted + 4 - menu->Selected) % 4);
    keys.push_back(Key::Return);
    switch (wanted) {
    case 0:
        AddControls(keys);
        break;
    case 1:
        AddGraphics(keys);
        break;
    default:
        AddAudio(keys);
        break;
    }
    Repeat(keys, Key::Escape, 2);
    Tap(keys);
}

void RestlessPlayer::AddGraphics(std::vector<Key> &Keys) {
    Repeat(Keys, Key::Right, Draw(5));
    Keys.insert(Keys.end(), {Key::Down, Key::Right}); // the other shape
    Repeat(Keys, Key::Down, 3);
    Repeat(Keys, Key::Return, Draw(3)); // vertical sync
    Repeat(Keys, Key::Down, 2);
    Repeat(Keys, Key::Return, Draw(2)); // APPLY
    Repeat(Keys, Key::Down, 3);
}

void RestlessPlayer::AddAudio(std::vector<Key> &Keys) {
    for (int row = 0; row < 5; ++row) {
        Repeat(Keys, Draw(2) == 0 ? Key::Left : Key::Right, Draw(6));
        Keys.push_back(Key::Down);
    }
    const int steps = 1 + Draw(3);
    Repeat(Keys, Key::Right, steps);
    Keys.insert(Keys.end(), {Key::Down, Key::Down, Key::Return, Key::Up, Key::Up}); // APPLY
    Repeat(Keys, Key::Left, steps);
    Keys.insert(Keys.end(), {Key::Down, Key::Down, Key::Return}); // APPLY, and English again
    Repeat(Keys, Key::Down, 3);
}
