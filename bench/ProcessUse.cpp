#include "bench/ProcessUse.hpp"

#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

namespace {

constexpr double KibibytesPerMebibyte = 1024.0;

double ProcessorSeconds(pid_t Id) {
    clockid_t clock{};
    timespec used{};
    const int failure = clock_getcpuclockid(Id, &clock);
    if (failure != 0 || clock_gettime(clock, &used) != 0) {
        throw std::runtime_error("The processor time of a program cannot be read: it has ended");
    }
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

/// A line of the system's summary of a program's memory, such as "Rss:", in MiB.
double SummaryLine(pid_t Id, std::string_view Name) {
    std::ifstream summary("/proc/" + std::to_string(Id) + "/smaps_rollup");
    for (std::string word; summary >> word;) {
        double kibibytes = 0.0;
        if (word == Name && summary >> kibibytes) {
            return kibibytes / KibibytesPerMebibyte;
        }
    }
    throw std::runtime_error("The memory of a program cannot be read: there is no " + std::string(Name));
}

} // namespace

double ProcessorShare(pid_t Id, std::chrono::seconds Time) {
    const auto start = std::chrono::steady_clock::now();
    const double before = ProcessorSeconds(Id);
    std::this_thread::sleep_for(Time);
    const double used = ProcessorSeconds(Id) - before;
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    return used / passed.count() * 100.0;
}

MemoryUse MemoryOf(pid_t Id) {
    return {SummaryLine(Id, "Rss:"), SummaryLine(Id, "Private_Dirty:")};
}
