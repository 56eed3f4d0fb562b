#pragma once

#include <algorithm>
#include <ranges>
#include <vector>

/// Whether an equal entry is in the list.
template <std::ranges::input_range List>
bool Contains(const List &Entries, const std::ranges::range_value_t<List> &Entry) {
    return std::ranges::find(Entries, Entry) != std::ranges::end(Entries);
}

/// Appends what is not there yet.
template <typename Value> void AppendNew(std::vector<Value> &List, const Value &Entry) {
    if (!Contains(List, Entry)) {
        List.push_back(Entry);
    }
}
