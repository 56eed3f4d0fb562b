#pragma once

#include <iosfwd>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

/// One function whose calls a watch notes, whatever its signature.
class WatchedFunction {
public:
    explicit WatchedFunction(const char *FunctionName) : Name(FunctionName) {}
    virtual ~WatchedFunction() = default;
    WatchedFunction(const WatchedFunction &) = delete;
    WatchedFunction &operator=(const WatchedFunction &) = delete;

    /// Drops the calls that were noted.
    virtual void Forget() = 0;

    const char *const Name;
};

/// Which function was called. It is made of a field of a watch, never of a text, so that none can be
/// misspelt.
class CallName {
public:
    CallName(const WatchedFunction &Function) : Text(Function.Name) {}

    bool operator==(const CallName &) const = default;

    /// Makes a failed comparison readable.
    friend void PrintTo(const CallName &Call, std::ostream *Out);

private:
    std::string_view Text;
};

using CallNames = std::vector<CallName>;

/// While it lives, the calls of its thread that are watched pass through it; its kinds have a field for each
/// function. What a library does inside itself or on a thread of its own is not seen, nor what is called for
/// an answer of the test's: that goes straight to the library. Only one lives at a time.
class CallWatch {
public:
    /// For a refusal that does not end.
    static constexpr int Always = std::numeric_limits<int>::max();

    /// The SDL error of a refused call.
    static constexpr const char *RefusalText = "refused for the test";

    /// Throws std::logic_error if another one lives.
    CallWatch();
    virtual ~CallWatch();
    CallWatch(const CallWatch &) = delete;
    CallWatch &operator=(const CallWatch &) = delete;

    /// All noted calls, or those of some functions, in order.
    CallNames Order() const;
    CallNames OrderOf(const CallNames &Functions) const;

    /// Whether these functions were called in this order, whatever was called between them.
    bool SawInOrder(const CallNames &Functions) const;

    /// Drops all that was noted. Answers and refusals stay.
    void Forget();

    /// Refuses the call of this number alone, counted from 1 and from now among the calls of these functions;
    /// for 0 none.
    void RefuseOnly(int Number, CallNames Among = {});

    /// The call that was refused so, if it has come to that.
    std::optional<CallName> Refused;

    /// For a watched call: notes it and tells whether it is the one that RefuseOnly has meant.
    bool Note(WatchedFunction &Function);

    /// The one of this thread, or null.
    static inline constinit thread_local CallWatch *Living = nullptr;

private:
    std::vector<WatchedFunction *> Noted;
    CallNames Refusable;
    int CallsToRefusal = 0;
};

/// While it lives, nothing is watched.
class UnwatchedScope {
public:
    UnwatchedScope() : Watch(CallWatch::Living) {
        CallWatch::Living = nullptr;
    }
    ~UnwatchedScope() {
        CallWatch::Living = Watch;
    }
    UnwatchedScope(const UnwatchedScope &) = delete;
    UnwatchedScope &operator=(const UnwatchedScope &) = delete;

private:
    CallWatch *Watch;
};
