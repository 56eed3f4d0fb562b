#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// A call that the program made into SDL: numbers as they are, pointers as 1, or 0 for null.
struct SdlCall {
    std::string Name;
    std::vector<std::int64_t> Arguments;

    bool operator==(const SdlCall &) const = default;
};

/// Makes a failed comparison readable.
void PrintTo(const SdlCall &Call, std::ostream *Out);

/// While it lives, it notes in order the watched calls that the test program makes into SDL, and lets those
/// fail that the test picks. Only one lives at a time. Which calls are watched stands in WatchedCalls.cpp and
/// in this folder's CMakeLists.txt; what SDL does inside itself is not seen.
class SdlWatch {
public:
    static constexpr int Always = -1;

    /// The SDL error of a refused call.
    static constexpr const char *RefusalText = "refused for the test";

    SdlWatch();
    ~SdlWatch();
    SdlWatch(const SdlWatch &) = delete;
    SdlWatch &operator=(const SdlWatch &) = delete;

    /// Makes the next calls of Function fail without reaching SDL.
    void Refuse(const std::string &Function, int Times = Always);

    /// Runs Action before each call of Function reaches SDL.
    void Before(const std::string &Function, std::function<void()> Action);

    /// How often Function was called.
    int Count(const std::string &Function) const;

    /// The calls of one function, or the names of all calls of several, in order.
    std::vector<SdlCall> CallsOf(const std::string &Function) const;
    std::vector<std::string> NamesAmong(const std::vector<std::string> &Functions) const;

    /// Whether these functions were called in this order, whatever was called between them.
    bool SawInOrder(const std::vector<std::string> &Functions) const;

    /// For the watched calls themselves: notes the call and tells whether it is to fail.
    static bool Notice(const char *Function, std::vector<std::int64_t> Arguments);

    /// Everything noted so far. A test may clear it.
    std::vector<SdlCall> Calls;

private:
    bool IsRefused(const std::string &Function);

    std::map<std::string, int> Refusals;
    std::map<std::string, std::function<void()>> Actions;
};
