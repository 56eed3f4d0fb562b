#pragma once

#include <cstddef>
#include <vector>

/// Calls IsUsedUp once for each entry of a list, in order, and removes those for which it is true. The entry
/// that moves up into a gap is the next one. IsUsedUp may act on the run as well, and with that empty the
/// very list; it gets a copy, which outlives that.
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
