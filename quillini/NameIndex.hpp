#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

/// Where the names of one list stand, for a reader that looks for one with every line of a long file. As long
/// as it is asked, the list may only grow at its end.
class NameIndex {
public:
    /// The first item of a name, or the end of the list. At the end the name is noted as that of the item to
    /// come, so the caller has to append it before anything else is looked up.
    template <class Item>
    typename std::vector<Item>::iterator FindOrAwait(
        std::vector<Item> &List, std::string Item::*Name, std::string_view Wanted) {
        if (List.empty()) { // takes no room while a list has nothing to find
            return List.end();
        }
        NoteNewItems(List, Name);
        std::uint32_t &slot = SlotOf(List, Name, Wanted);
        if (slot == Empty) {
            slot = Noted++;
            return List.end();
        }
        return List.begin() + static_cast<std::ptrdiff_t>(slot);
    }

private:
    static constexpr std::uint32_t Empty = std::numeric_limits<std::uint32_t>::max();

    template <class Item> void NoteNewItems(const std::vector<Item> &List, std::string Item::*Name) {
        // Half of them stay empty, so that every search ends soon.
        if (Slots.size() < 2 * (List.size() + 1)) {
            Slots.assign(std::bit_ceil(2 * (List.size() + 1)), Empty);
            Noted = 0;
        }
        for (; Noted < List.size(); ++Noted) {
            std::uint32_t &slot = SlotOf(List, Name, List[Noted].*Name);
            slot = std::min(slot, Noted); // of several items with a name the first one stays
        }
    }

    /// The slot of a name's item, or the empty one where that belongs.
    template <class Item>
    std::uint32_t &SlotOf(const std::vector<Item> &List, std::string Item::*Name, std::string_view Wanted) {
        const std::size_t last = Slots.size() - 1;
        std::size_t at = std::hash<std::string_view>()(Wanted) & last;
        while (Slots[at] != Empty && List[Slots[at]].*Name != Wanted) {
            at = (at + 1) & last;
        }
        return Slots[at];
    }

    std::vector<std::uint32_t> Slots; ///< places in the list; their number is a power of two
    std::uint32_t Noted = 0;          ///< how many items of the list are in them
};

} // namespace quillINI
