// Slots with a key each, to be sorted by the keys.
#pragma once

#include "widgets/text_arena.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace vellora {

/// Holds copies of the keys. What allocates throws std::bad_alloc.
class KeyedSlots {
public:
    struct Item {
        std::uint64_t head; // the first units in which keys differ at all; they decide most comparisons
        const char16_t* units;
        std::uint32_t length;
        std::uint32_t slot;

        std::u16string_view key() const { return {units, length}; }
    };

    void reserve(std::size_t count) { items_.reserve(count); }
    void add(std::uint32_t slot, std::u16string_view key);
    /// By code unit, in O(n log n); slots with equal keys keep the order they were added in, descending as
    /// well.
    void sort(bool descending);
    const std::vector<Item>& items() const { return items_; }

private:
    std::size_t shared_units() const;

    TextArena keys_;
    std::vector<Item> items_;
};

} // namespace vellora
