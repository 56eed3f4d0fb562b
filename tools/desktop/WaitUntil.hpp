#pragma once

#include <chrono>
#include <thread>

// How long a wait lasts before it counts as failed. Generous: a loaded machine and a program under a
// sanitizer are slow, and a wait that succeeds ends at once.
inline constexpr std::chrono::milliseconds PatientDeadline{30000};

// Asks IsTrue again and again, with a short rest between, until it holds. False if it never held within
// Deadline; it is asked at least once, and once more after the time is up.
template <typename Predicate>
bool WaitUntil(Predicate IsTrue, std::chrono::milliseconds Deadline = PatientDeadline,
    std::chrono::milliseconds Rest = std::chrono::milliseconds{4}) {
    const auto end = std::chrono::steady_clock::now() + Deadline;
    while (std::chrono::steady_clock::now() < end) {
        if (IsTrue()) {
            return true;
        }
        std::this_thread::sleep_for(Rest);
    }
    return IsTrue();
}
