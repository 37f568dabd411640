#include "widgets/keyed_slots.h"

#include <algorithm>
#include <cstring>

namespace vellora {

namespace {

std::uint64_t four_units(std::u16string_view key, std::size_t start) {
    std::uint64_t head = 0;
    for (std::size_t i = start; i < start + 4; ++i)
        head = head << 16 | (i < key.size() ? key[i] : 0);
    return head;
}

} // namespace

void KeyedSlots::add(std::uint32_t slot, std::u16string_view key) {
    const std::size_t bytes = key.size() * sizeof(char16_t);
    std::byte* copy = keys_.allocate(bytes);
    std::memcpy(copy, key.data(), bytes);
    items_.push_back(
        {0, reinterpret_cast<const char16_t*>(copy), static_cast<std::uint32_t>(key.size()), slot});
}

std::size_t KeyedSlots::shared_units() const {
    std::u16string_view shared = items_.front().key();
    for (const Item& item : items_) {
        const std::u16string_view key = item.key();
        const auto end = std::mismatch(shared.begin(), shared.end(), key.begin(), key.end()).first;
        shared = shared.substr(0, static_cast<std::size_t>(end - shared.begin()));
    }
    return shared.size();
}

void KeyedSlots::sort(bool descending) {
    if (items_.empty())
        return;
    const std::size_t shared = shared_units();
    for (Item& item : items_)
        item.head = four_units(item.key(), shared);
    const auto before = [shared](const Item& a, const Item& b) {
        return a.head != b.head ? a.head < b.head : a.key().substr(shared) < b.key().substr(shared);
    };
    if (descending)
        std::stable_sort(items_.begin(), items_.end(),
                         [&](const Item& a, const Item& b) { return before(b, a); });
    else
        std::stable_sort(items_.begin(), items_.end(), before);
}

} // namespace vellora
