#pragma once

#include <initializer_list>
#include <string>

/// Something that must hold, by name.
struct Promise {
    const char *Name;
    bool Holds;
};

/// The first broken promise by name; empty if all hold.
inline std::string FirstBroken(std::initializer_list<Promise> Promises) {
    for (const Promise &promise : Promises) {
        if (!promise.Holds) {
            return promise.Name;
        }
    }
    return {};
}
