#pragma once

#include <algorithm>
#include <vector>

/// Whether an equal entry is in the list.
template <typename Value> bool Contains(const std::vector<Value> &List, const Value &Entry) {
    return std::ranges::find(List, Entry) != List.end();
}

/// Appends what is not there yet.
template <typename Value> void AppendNew(std::vector<Value> &List, const Value &Entry) {
    if (!Contains(List, Entry)) {
        List.push_back(Entry);
    }
}
