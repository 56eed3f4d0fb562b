#include "tests/support/watch/SdlWatch.hpp"

#include <SDL3/SDL.h>

#include <algorithm>
#include <ostream>
#include <utility>

namespace {

SdlWatch *LivingWatch = nullptr;

} // namespace

void PrintTo(const SdlCall &Call, std::ostream *Out) {
    *Out << Call.Name << "(";
    const char *separator = "";
    for (const std::int64_t argument : Call.Arguments) {
        *Out << separator << argument;
        separator = ", ";
    }
    *Out << ")";
}

SdlWatch::SdlWatch() {
    SDL_assert_always(LivingWatch == nullptr);
    LivingWatch = this;
}

SdlWatch::~SdlWatch() {
    LivingWatch = nullptr;
}

void SdlWatch::Refuse(const std::string &Function, int Times) {
    Refusals[Function] = Times;
}

void SdlWatch::Before(const std::string &Function, std::function<void()> Action) {
    Actions[Function] = std::move(Action);
}

int SdlWatch::Count(const std::string &Function) const {
    return static_cast<int>(CallsOf(Function).size());
}

std::vector<SdlCall> SdlWatch::CallsOf(const std::string &Function) const {
    std::vector<SdlCall> found;
    std::copy_if(Calls.begin(), Calls.end(), std::back_inserter(found), [&Function](const SdlCall &Call) {
        return Call.Name == Function;
    });
    return found;
}

std::vector<std::string> SdlWatch::NamesAmong(const std::vector<std::string> &Functions) const {
    std::vector<std::string> names;
    for (const SdlCall &call : Calls) {
        if (std::find(Functions.begin(), Functions.end(), call.Name) != Functions.end()) {
            names.push_back(call.Name);
        }
    }
    return names;
}

bool SdlWatch::SawInOrder(const std::vector<std::string> &Functions) const {
    auto wanted = Functions.begin();
    for (const SdlCall &call : Calls) {
        if (wanted != Functions.end() && call.Name == *wanted) {
            ++wanted;
        }
    }
    return wanted == Functions.end();
}

bool SdlWatch::Notice(const char *Function, std::vector<std::int64_t> Arguments) {
    SdlWatch *watch = LivingWatch;
    if (watch == nullptr) {
        return false;
    }
    watch->Calls.push_back({Function, std::move(Arguments)});
    const auto action = watch->Actions.find(Function);
    if (action != watch->Actions.end()) {
        action->second();
    }
    return watch->IsRefused(Function);
}

bool SdlWatch::IsRefused(const std::string &Function) {
    const auto refusal = Refusals.find(Function);
    if (refusal == Refusals.end() || refusal->second == 0) {
        return false;
    }
    if (refusal->second != Always) {
        --refusal->second;
    }
    SDL_SetError("%s", RefusalText);
    return true;
}
