#pragma once

#include "tests/support/watch/WatchedCall.hpp"

#include <cstddef>
#include <tuple>
#include <type_traits>

// A stand-in takes the calls of one function: the linker sends them to __wrap_Function and knows the
// library's own as __real_Function. Its signature is the function's, whatever that is.

template <typename Result, typename... Parameters> struct Signature {
    using Type = Result(Parameters...);
    using Answer = Result;
    template <std::size_t Index> using Parameter = std::tuple_element_t<Index, std::tuple<Parameters...>>;
};

/// The signature of a function, without what its type says beside that, as that it throws nothing. It is only
/// declared, for SIGNATURE.
template <typename Result, typename... Parameters>
Signature<Result, Parameters...> SignatureOf(Result (*Function)(Parameters...));

#define SIGNATURE(Function) decltype(SignatureOf(&::Function))

/// Hands a call to the living watch if it is of the kind that knows the function, else to the function.
template <typename Watch, typename Call, typename Result, typename... Parameters>
Result PassOn(
    Call Watch::*Field, Result (*Real)(Parameters...), std::type_identity_t<Parameters>... Arguments) {
    auto *const watch = dynamic_cast<Watch *>(CallWatch::Living);
    return watch != nullptr ? (watch->*Field).Make(*watch, Real, Arguments...) : Real(Arguments...);
}

// NOLINTBEGIN(bugprone-macro-parentheses): these are names and lists of parameters.

#define STAND_IN(Watch, Function, Field, Parameters, ...)                                                    \
    extern "C" SIGNATURE(Function)::Type __real_##Function;                                                  \
    extern "C" SIGNATURE(Function)::Type __wrap_##Function;                                                  \
    extern "C" SIGNATURE(Function)::Answer __wrap_##Function Parameters {                                    \
        return CallWatch::Living == nullptr                                                                  \
                   ? __real_##Function(__VA_ARGS__)                                                          \
                   : PassOn(&Watch::Field, __real_##Function __VA_OPT__(, ) __VA_ARGS__);                    \
    }

#define PARAMETER(Function, Index) SIGNATURE(Function)::Parameter<Index>

/// The stand-in for a function of so many parameters.
#define STAND_IN_0(Watch, Function, Field) STAND_IN(Watch, Function, Field, ())
#define STAND_IN_1(Watch, Function, Field) STAND_IN(Watch, Function, Field, (PARAMETER(Function, 0) A), A)
#define STAND_IN_2(Watch, Function, Field)                                                                   \
    STAND_IN(Watch, Function, Field, (PARAMETER(Function, 0) A, PARAMETER(Function, 1) B), A, B)
#define STAND_IN_3(Watch, Function, Field)                                                                   \
    STAND_IN(Watch, Function, Field,                                                                         \
        (PARAMETER(Function, 0) A, PARAMETER(Function, 1) B, PARAMETER(Function, 2) C), A, B, C)
#define STAND_IN_4(Watch, Function, Field)                                                                   \
    STAND_IN(Watch, Function, Field,                                                                         \
        (PARAMETER(Function, 0) A, PARAMETER(Function, 1) B, PARAMETER(Function, 2) C,                       \
            PARAMETER(Function, 3) D),                                                                       \
        A, B, C, D)
#define STAND_IN_5(Watch, Function, Field)                                                                   \
    STAND_IN(Watch, Function, Field,                                                                         \
        (PARAMETER(Function, 0) A, PARAMETER(Function, 1) B, PARAMETER(Function, 2) C,                       \
            PARAMETER(Function, 3) D, PARAMETER(Function, 4) E),                                             \
        A, B, C, D, E)

/// A field of a watch for a function, of the function's own signature.
// NOLINTNEXTLINE(bugprone-macro-parentheses): not every clangd knows NOLINTBEGIN
#define NOTED_FIELD(Count, Function, Field) WatchedCall<SIGNATURE(Function)::Type> Field{#Function};
// NOLINTNEXTLINE(bugprone-macro-parentheses)
#define STEERED_FIELD(Count, Function, Field) SteeredCall<SIGNATURE(Function)::Type> Field;

// NOLINTEND(bugprone-macro-parentheses)
