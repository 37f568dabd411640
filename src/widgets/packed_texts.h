// The texts of one row, packed into one block of an arena: the ends of the texts first, then the texts, each
// followed by a zero unit so that the platform can be pointed right at it.
#pragma once

#include "widgets/text_arena.h"

#include <cstdint>
#include <string_view>

namespace vellora {

/// A handle of a pointer and a count; whoever owns the arena copies it, and releases it once. Cells are
/// counted from 0. What throws std::bad_alloc has changed nothing.
class PackedTexts {
public:
    PackedTexts() = default;
    /// `count` empty texts, which take no memory while there is at most one.
    explicit PackedTexts(std::uint32_t count) : count_(count) {}

    std::uint32_t count() const { return count_; }
    /// Valid until the texts or their arena change.
    std::u16string_view at(std::uint32_t cell) const;
    /// The text may lie in this very block.
    void replace(std::uint32_t cell, std::u16string_view text, TextArena& arena);
    void append(std::u16string_view text, TextArena& arena);
    void release(TextArena& arena) noexcept;
    void move(TextArena::Compaction& compaction);

private:
    std::uint32_t stored() const { return block_ ? count_ : 0; }
    std::size_t bytes() const;
    bool holds(std::u16string_view text) const;

    struct Splice;
    Splice plan(std::uint32_t cell, std::u16string_view text) const;
    void carry_out(const Splice& splice, std::byte* target) const;
    void splice(std::uint32_t cell, std::u16string_view text, TextArena& arena);

    std::byte* block_ = nullptr; // null: no text, or one empty text
    std::uint32_t count_ = 0;
};

} // namespace vellora
