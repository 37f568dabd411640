#include "widgets/row_sort.h"

#include "widgets/keyed_slots.h"

#include <algorithm>
#include <string>

namespace vellora {

namespace {

std::u16string key_of(const RowStore& rows, std::uint32_t slot, const SortBy& by,
                      const TextCompare& compare) {
    return compare.sort_key(cell_text(rows.table().at(slot), by.column));
}

/// The rows in their present order: those that changed apart from those that did not.
struct Parted {
    struct Changed {
        std::uint32_t slot;
        std::size_t kept_before; // how many unchanged rows stand before it
    };
    std::vector<std::uint32_t> kept;
    std::vector<Changed> changed;
};

Parted parted(const RowStore& rows, const RowChanges& changes) {
    Parted parts;
    parts.kept.reserve(rows.order().size());
    for (const std::uint32_t slot : rows.order())
        if (changes.has(slot))
            parts.changed.push_back({slot, parts.kept.size()});
        else
            parts.kept.push_back(slot);
    return parts;
}

/// How many of the unchanged rows come before a changed one: those with a lesser key, and those with the same
/// key that stand before it now.
std::size_t place_among(const RowStore& rows, const Parted& parts, const Parted::Changed& row,
                        std::u16string_view key, const SortBy& by, const TextCompare& compare) {
    std::size_t first = 0;
    std::size_t last = parts.kept.size();
    while (first < last) {
        const std::size_t middle = first + (last - first) / 2;
        const int order = key_of(rows, parts.kept[middle], by, compare).compare(key);
        const bool before = order == 0 ? middle < row.kept_before : (order < 0) != by.descending;
        (before ? first : last) = before ? middle + 1 : middle;
    }
    return first;
}

} // namespace

std::vector<std::uint32_t> sorted_order(const RowStore& rows, const SortBy& by, const TextCompare& compare) {
    KeyedSlots keys;
    keys.reserve(rows.order().size());
    for (const std::uint32_t slot : rows.order())
        keys.add(slot, key_of(rows, slot, by, compare));
    keys.sort(by.descending);
    std::vector<std::uint32_t> order;
    order.reserve(rows.order().size());
    for (const KeyedSlots::Item& item : keys.items())
        order.push_back(item.slot);
    return order;
}

MendedOrder mended_order(const RowStore& rows, const RowChanges& changes, const SortBy& by,
                         const TextCompare& compare) {
    const Parted parts = parted(rows, changes);
    KeyedSlots keys;
    for (std::uint32_t i = 0; i < parts.changed.size(); ++i)
        keys.add(i, key_of(rows, parts.changed[i].slot, by, compare));
    keys.sort(by.descending);
    MendedOrder mended;
    mended.order.reserve(rows.order().size());
    mended.moved.reserve(parts.changed.size());
    auto kept = parts.kept.begin();
    for (const KeyedSlots::Item& item : keys.items()) {
        const Parted::Changed& row = parts.changed[item.slot];
        const auto place = parts.kept.begin() + static_cast<std::ptrdiff_t>(
                                                    place_among(rows, parts, row, item.key(), by, compare));
        mended.order.insert(mended.order.end(), kept, place);
        kept = place;
        mended.moved.push_back(static_cast<std::int32_t>(mended.order.size()));
        mended.order.push_back(row.slot);
    }
    mended.order.insert(mended.order.end(), kept, parts.kept.end());
    return mended;
}

} // namespace vellora
