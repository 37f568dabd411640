#include "widgets/row_sort.h"

#include "widgets/text_arena.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace vellora {

namespace {

/// A row's key, which decides most comparisons by its first four units.
struct SortItem {
    std::uint64_t head;
    const char16_t* key;
    std::uint32_t length;
    std::uint32_t slot;

    std::u16string_view text() const { return {key, length}; }
    bool operator<(const SortItem& other) const {
        return head != other.head ? head < other.head : text() < other.text();
    }
};

std::uint64_t first_units(std::u16string_view key) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < 4; ++i)
        head = head << 16 | (i < key.size() ? key[i] : 0);
    return head;
}

/// Holds the keys of one sort.
class KeyMaker {
public:
    explicit KeyMaker(const TextCompare& compare) : compare_(compare) {}

    SortItem make(std::uint32_t slot, std::u16string_view text) {
        const std::u16string key = compare_.sort_key(text);
        const std::size_t bytes = key.size() * sizeof(char16_t);
        std::byte* copy = keys_.allocate(bytes);
        std::memcpy(copy, key.data(), bytes);
        return {first_units(key), reinterpret_cast<const char16_t*>(copy),
                static_cast<std::uint32_t>(key.size()), slot};
    }

private:
    const TextCompare& compare_;
    TextArena keys_;
};

std::vector<SortItem> items_of(const RowStore& rows, std::int32_t column, KeyMaker& keys) {
    std::vector<SortItem> items;
    items.reserve(rows.order().size());
    for (const std::uint32_t slot : rows.order())
        items.push_back(keys.make(slot, cell_text(rows.table().at(slot), column)));
    return items;
}

} // namespace

std::vector<std::uint32_t> sorted_order(const RowStore& rows, std::int32_t column, bool descending,
                                        const TextCompare& compare) {
    KeyMaker keys(compare);
    std::vector<SortItem> items = items_of(rows, column, keys);
    if (descending)
        std::stable_sort(items.begin(), items.end(), [](const auto& a, const auto& b) { return b < a; });
    else
        std::stable_sort(items.begin(), items.end());
    std::vector<std::uint32_t> order(items.size());
    std::transform(items.begin(), items.end(), order.begin(), [](const SortItem& item) { return item.slot; });
    return order;
}

} // namespace vellora
