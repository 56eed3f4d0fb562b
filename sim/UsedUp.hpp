#pragma once

#include <cstddef>
#include <vector>

/// Calls IsUsedUp once for each entry of a list, in order, and removes those for which it returns true.
/// IsUsedUp may empty the very list, as the loss of the last life empties that of the enemy shots; so it gets
/// a copy of the entry.
template <typename Thing, typename UsedUp> void RemoveUsedUp(std::vector<Thing> &Things, UsedUp IsUsedUp) {
    for (std::size_t i = 0; i < Things.size();) {
        const Thing thing = Things[i];
        if (!IsUsedUp(thing)) {
            ++i;
        } else if (!Things.empty()) {
            Things.erase(Things.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
}
