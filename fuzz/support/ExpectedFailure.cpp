#include "fuzz/support/ExpectedFailure.hpp"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>
#include <typeinfo>

namespace {

struct FailureKind {
    const std::type_info &Type;
    std::string_view Words;
};

const auto ExpectedFailures = std::to_array<FailureKind>({
    // Invalid UTF-16 or UTF-32.
    {typeid(std::range_error), "Text cannot be converted between UTF-8 and its file's encoding!"},
    // Unicode escapes.
    {typeid(std::runtime_error), "Read beyond end of file, and found invalid unicode escape sequence!"},
    {typeid(std::runtime_error), "Invalid code point for UTF-16 low surrogate pair!"},
    {typeid(std::runtime_error), "Invalid code point range for UTF-16 low surrogate pair!"},
    // The next index of an array.
    {typeid(std::invalid_argument), "An array's key is not a number!"},
    {typeid(std::out_of_range), "An array's key is out of range!"},
    {typeid(std::out_of_range), "No index is left behind the largest one!"},
    // Writing what is no UTF-8.
    {typeid(std::runtime_error), "Invalid UTF-8 sequence!"},
});

} // namespace

bool IsExpected(const std::exception &Failure) {
    return std::ranges::any_of(ExpectedFailures, [&Failure](const FailureKind &Kind) {
        return Kind.Type == typeid(Failure) && Kind.Words == Failure.what();
    });
}
