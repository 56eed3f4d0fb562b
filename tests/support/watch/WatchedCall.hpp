#pragma once

#include "tests/support/watch/CallWatch.hpp"

#include <SDL3/SDL.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

/// How an argument is noted: texts are copied, and absent for null; all else is noted as it is.
template <typename Value>
using NotedArgument =
    std::conditional_t<std::is_same_v<Value, const char *>, std::optional<std::string>, Value>;

template <typename Value> NotedArgument<Value> NoteOf(Value Argument) {
    if constexpr (std::is_same_v<Value, const char *>) {
        return Argument != nullptr ? std::optional<std::string>(Argument) : std::nullopt;
    } else {
        return Argument;
    }
}

/// A function that a test can answer for or let fail, but whose calls are too many to be noted.
template <typename Signature> class SteeredCall;

template <typename Result, typename... Parameters> class SteeredCall<Result(Parameters...)> {
public:
    /// Runs before the call, while what its pointers point to is there.
    std::function<void(Parameters...)> Before;

    /// Answers in place of the real function, which it may call itself.
    std::function<Result(Parameters...)> Answer;

    /// What a refused call does and gives. Without it the call sets SDL's error alone and gives false, null
    /// or 0, or -1 if it gives a size or a place (64 bits or a long).
    std::function<Result(Parameters...)> Failure;

    /// Lets this many calls fail without reaching the library, after so many from now on that work.
    void Refuse(int Times = CallWatch::Always, int After = 0) requires(!std::is_void_v<Result>) {
        Working = After;
        Failing = Times;
    }

    /// Makes a call: the test's answer, a failure, or the real function.
    template <typename RealCall> Result Make(CallWatch & /*Watch*/, RealCall Real, Parameters... Arguments) {
        return MakeUnlessRefused(false, Real, Arguments...);
    }

protected:
    template <typename RealCall>
    Result MakeUnlessRefused(bool IsRefused, RealCall Real, Parameters... Arguments) {
        if (Before) {
            Before(Arguments...);
        }
        const bool fails = TakesRefusal() || IsRefused;
        const UnwatchedScope unwatched;
        if (fails) {
            return Failure ? Failure(Arguments...) : Refusal();
        }
        return Answer ? Answer(Arguments...) : Real(Arguments...);
    }

private:
    bool TakesRefusal() {
        if (Failing == 0) {
            return false;
        }
        if (Working > 0) {
            --Working;
            return false;
        }
        Failing -= Failing != CallWatch::Always ? 1 : 0;
        return true;
    }

    static Result Refusal() {
        SDL_SetError("%s", CallWatch::RefusalText);
        if constexpr (std::is_same_v<Result, std::int64_t> || std::is_same_v<Result, long>) {
            return -1;
        } else if constexpr (!std::is_void_v<Result>) {
            return Result{};
        }
    }

    int Working = 0;
    int Failing = 0;
};

/// A function whose calls are noted as well.
template <typename Signature> class WatchedCall;

template <typename Result, typename... Parameters>
class WatchedCall<Result(Parameters...)> : public SteeredCall<Result(Parameters...)>, public WatchedFunction {
public:
    using WatchedFunction::WatchedFunction;

    using Arguments = std::tuple<NotedArgument<Parameters>...>;

    /// The arguments of each call, in order.
    std::vector<Arguments> Calls;

    /// What each has given that has returned; nothing is noted where there is no result.
    std::conditional_t<std::is_void_v<Result>, std::monostate, std::vector<Result>> Results;

    int Count() const {
        return static_cast<int>(Calls.size());
    }

    /// The arguments of the only call. Throws std::logic_error if there were none or several.
    const Arguments &OnlyCall() const {
        if (Calls.size() != 1) {
            throw std::logic_error(
                std::string(Name) + " was called " + std::to_string(Calls.size()) + " times");
        }
        return Calls.front();
    }

    void Forget() override {
        Calls.clear();
        Results = {};
    }

    /// Notes a call and makes it.
    template <typename RealCall> Result Make(CallWatch &Watch, RealCall Real, Parameters... Values) {
        Calls.emplace_back(NoteOf<Parameters>(Values)...);
        const bool isRefused = Watch.Note(*this);
        if constexpr (std::is_void_v<Result>) {
            this->MakeUnlessRefused(isRefused, Real, Values...);
        } else {
            const Result result = this->MakeUnlessRefused(isRefused, Real, Values...);
            Results.push_back(result);
            return result;
        }
    }
};
