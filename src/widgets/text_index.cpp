#include "widgets/text_index.h"

#include <algorithm>

namespace vellora {

TextIndex::TextIndex(const RowStore& rows, std::uint32_t column, const TextCompare& compare)
    : column_(column) {
    KeyedSlots keys;
    keys.reserve(rows.order().size());
    for (const std::uint32_t slot : rows.order())
        if (column < rows.table().at(slot).texts.count())
            keys.add(slot, compare.fold(text(rows, slot)));
    keys.sort(false);
    slots_.reserve(keys.items().size());
    for (const KeyedSlots::Item& item : keys.items())
        slots_.push_back(item.slot);
    complete_ = slots_.size() == rows.order().size();
}

void TextIndex::take_in(const RowStore& rows, const RowChanges& changes, const TextCompare& compare) {
    KeyedSlots added;
    add_changed(added, rows, changes, compare);
    added.sort(false);
    std::erase_if(slots_, [&](std::uint32_t slot) { return changes.has(slot); });
    merge(rows, added, compare);
    complete_ = slots_.size() == rows.order().size();
}

void TextIndex::add_changed(KeyedSlots& keys, const RowStore& rows, const RowChanges& changes,
                            const TextCompare& compare) const {
    for (const std::uint32_t slot : changes.slots())
        if (rows.table().in_use(slot) && column_ < rows.table().at(slot).texts.count())
            keys.add(slot, compare.fold(text(rows, slot)));
}

/// From the back, so that each old slot moves once.
void TextIndex::merge(const RowStore& rows, const KeyedSlots& added, const TextCompare& compare) {
    auto old_count = static_cast<std::ptrdiff_t>(slots_.size());
    slots_.resize(slots_.size() + added.items().size());
    auto target = slots_.end();
    for (auto item = added.items().rbegin(); item != added.items().rend(); ++item) {
        const auto old_end = slots_.begin() + old_count;
        const auto place = std::partition_point(slots_.begin(), old_end, [&](std::uint32_t slot) {
            return compare_folded(text(rows, slot), item->key(), compare) <= 0;
        });
        target = std::move_backward(place, old_end, target);
        *--target = item->slot;
        old_count = place - slots_.begin();
    }
}

namespace {

/// The first place in [first, last) from which on `before` holds no more, changed slots left out.
template <class Before>
std::size_t boundary(std::span<const std::uint32_t> slots, std::size_t first, const RowChanges& changes,
                     const Before& before) {
    std::size_t last = slots.size();
    while (first < last) {
        const std::size_t middle = first + (last - first) / 2;
        std::size_t probe = middle;
        while (probe < last && changes.has(slots[probe]))
            ++probe;
        if (probe < last && before(slots[probe]))
            first = probe + 1;
        else
            last = middle;
    }
    return first;
}

} // namespace

std::span<const std::uint32_t> TextIndex::range(const RowStore& rows, const RowChanges& changes,
                                                const TextMatcher& matcher) const {
    const std::size_t first =
        boundary(slots_, 0, changes, [&](std::uint32_t slot) { return matcher.order(text(rows, slot)) < 0; });
    const std::size_t last = boundary(
        slots_, first, changes, [&](std::uint32_t slot) { return matcher.order(text(rows, slot)) <= 0; });
    return std::span(slots_).subspan(first, last - first);
}

} // namespace vellora
