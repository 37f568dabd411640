// A set of slots of the table of rows: one bit for each.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vellora {

class SlotSet {
public:
    bool has(std::uint32_t slot) const {
        const std::size_t word = slot / word_bits;
        return word < words_.size() && (words_[word] >> slot % word_bits & 1U) != 0;
    }
    /// Throws std::bad_alloc, changing nothing.
    void add(std::uint32_t slot) {
        if (slot / word_bits >= words_.size())
            words_.resize(slot / word_bits + 1);
        words_[slot / word_bits] |= 1U << slot % word_bits;
    }
    /// Empties the set and keeps its memory.
    void remove_all() noexcept { std::fill(words_.begin(), words_.end(), 0U); }
    /// Empties the set and gives its memory back.
    void clear() noexcept { std::vector<std::uint32_t>().swap(words_); }

private:
    static constexpr std::uint32_t word_bits = 32;

    std::vector<std::uint32_t> words_;
};

} // namespace vellora
