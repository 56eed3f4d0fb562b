#include "tests/support/watch/CallWatch.hpp"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <utility>

void PrintTo(const CallName &Call, std::ostream *Out) {
    *Out << Call.Text;
}

CallWatch::CallWatch() {
    if (Living != nullptr) {
        throw std::logic_error("another watch lives");
    }
    Living = this;
}

CallWatch::~CallWatch() {
    Living = nullptr;
}

CallNames CallWatch::Order() const {
    CallNames names;
    std::ranges::transform(Noted, std::back_inserter(names), [](const WatchedFunction *Function) {
        return CallName(*Function);
    });
    return names;
}

CallNames CallWatch::OrderOf(const CallNames &Functions) const {
    CallNames names = Order();
    std::erase_if(names, [&Functions](const CallName &Call) {
        return std::ranges::find(Functions, Call) == Functions.end();
    });
    return names;
}

bool CallWatch::SawInOrder(const CallNames &Functions) const {
    auto wanted = Functions.begin();
    for (const CallName &call : Order()) {
        if (wanted != Functions.end() && call == *wanted) {
            ++wanted;
        }
    }
    return wanted == Functions.end();
}

void CallWatch::Forget() {
    for (WatchedFunction *function : Noted) {
        function->Forget();
    }
    Noted.clear();
}

void CallWatch::RefuseOnly(int Number, CallNames Among) {
    CallsToRefusal = Number;
    Refusable = std::move(Among);
    Refused.reset();
}

bool CallWatch::Note(WatchedFunction &Function) {
    Noted.push_back(&Function);
    const CallName name = Function;
    if (CallsToRefusal == 0 || std::ranges::find(Refusable, name) == Refusable.end() ||
        --CallsToRefusal != 0) {
        return false;
    }
    Refused = name;
    return true;
}
