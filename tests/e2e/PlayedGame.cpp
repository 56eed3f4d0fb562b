#include "tests/e2e/PlayedGame.hpp"

#include <stdexcept>

Sight CarInLane(int Lane) {
    return [Lane](const Screenshot &Seen) {
        return FindCarLane(Seen) == Lane;
    };
}

int ScrollMeter::Watch(const Screenshot &Seen) {
    if (const std::optional<int> now = FindDashPhase(Seen)) {
        Scrolled += (*now - Phase.value_or(*now) + DashPeriod) % DashPeriod;
        Phase = now;
    }
    return Scrolled;
}

PlayedGame::PlayedGame(ScreenSize Screen, const Environment &Settings, const PreparedHome *Prepared)
    : OpenedGame(Screen, Settings, Prepared) {
    if (!StartRun()) {
        throw std::runtime_error("No car stands in the middle lane. The game says:\n" + Program().Output());
    }
}

bool PlayedGame::StartRun() {
    return Tap(Key::Return, CarInLane(RoadLanes / 2)).has_value();
}

void PlayedGame::SteerTowards(const Screenshot &Seen, std::optional<int> Lane) {
    // For a car that is lost before it has moved.
    constexpr std::chrono::seconds patience{2};
    const std::optional<int> car = FindCarLane(Seen);
    if (!Lane || !car || Lane == car) {
        return;
    }
    const Key key = *Lane < *car ? Key::Left : Key::Right;
    Person().PressKey(key);
    WaitForPicture(
        [car](const Screenshot &Now) {
            return FindCarLane(Now) != car;
        },
        patience);
    Person().ReleaseKey(key);
}

bool PlayedGame::RamUntil(const Sight &Shows) {
    constexpr std::chrono::minutes patience{6};
    return WaitForPicture(
        [&](const Screenshot &Seen) {
            const bool shown = Shows(Seen);
            if (!shown) {
                SteerTowards(Seen, FindEnemyLane(Seen));
            }
            return shown;
        },
        patience)
        .has_value();
}

testing::AssertionResult PlayedGame::StaysFor(int Frames, const Sight &Shows) {
    std::optional<int> lastPhase;
    int frames = 0;
    while (frames < Frames) {
        const std::optional<Screenshot> next = WaitForPicture([&](const Screenshot &Seen) {
            const std::optional<int> phase = FindDashPhase(Seen);
            return FindCar(Seen) && (!Shows(Seen) || (phase && phase != lastPhase));
        });
        if (!next) {
            return testing::AssertionFailure() << "the road stood still after frame " << frames;
        }
        if (!Shows(*next)) {
            return testing::AssertionFailure() << "no longer so at frame " << frames;
        }
        lastPhase = FindDashPhase(*next);
        ++frames;
    }
    return testing::AssertionSuccess();
}
