#pragma once

#include <chrono>
#include <thread>

// How long a wait lasts before it counts as failed. Generous: a loaded machine and a program under a
// sanitizer are slow, and a wait that succeeds ends at once.
inline constexpr std::chrono::milliseconds PatientDeadline{60000};

// How long a wait rests before it asks again.
inline constexpr std::chrono::milliseconds ShortRest{10};

// Asks IsTrue again and again, with a rest between, until it holds. False if it never held within
// Deadline; it is asked at least once, and once more after the time is up.
template <typename Predicate>
bool WaitUntil(Predicate IsTrue, std::chrono::milliseconds Deadline = PatientDeadline,
    std::chrono::microseconds Rest = ShortRest) {
    const auto end = std::chrono::steady_clock::now() + Deadline;
    while (std::chrono::steady_clock::now() < end) {
        if (IsTrue()) {
            return true;
        }
        std::this_thread::sleep_for(Rest);
    }
    return IsTrue();
}
