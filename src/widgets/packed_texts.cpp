#include "widgets/packed_texts.h"

#include <bit>
#include <cstring>
#include <functional>
#include <new>
#include <string>

namespace vellora {

namespace {

constexpr std::size_t most_units = 0x3FFFFFFF;

/// Room of the table of ends: powers of two, so that a row which gains its cells one by one seldom moves its
/// texts behind a longer table.
std::size_t table_bytes(std::uint32_t count) {
    return std::bit_ceil(count) * sizeof(std::uint32_t);
}

std::size_t block_bytes(std::uint32_t count, std::size_t units) {
    return table_bytes(count) + units * sizeof(char16_t);
}

std::uint32_t* ends(std::byte* block) {
    return reinterpret_cast<std::uint32_t*>(block);
}

char16_t* units(std::byte* block, std::uint32_t count) {
    return reinterpret_cast<char16_t*>(block + table_bytes(count));
}

std::uint32_t start(std::byte* block, std::uint32_t cell) {
    return cell == 0 ? 0 : ends(block)[cell - 1] + 1;
}

void move_units(char16_t* to, const char16_t* from, std::size_t count) {
    std::char_traits<char16_t>::move(to, from, count);
}

} // namespace

/// A text that takes the place of a cell, or of nothing behind the last cell. Positions are units of the
/// texts.
struct PackedTexts::Splice {
    std::u16string_view text;
    std::uint32_t cell;
    std::uint32_t count; // of cells afterwards
    std::uint32_t start;
    std::uint32_t old_end;
    std::uint32_t new_end;
    std::uint32_t tail; // units from the old end on, its zero included
    bool appends;

    std::size_t bytes() const { return block_bytes(count, std::size_t{new_end} + (appends ? 1 : tail)); }
};

std::u16string_view PackedTexts::at(std::uint32_t cell) const {
    if (!block_)
        return u"";
    const std::uint32_t first = start(block_, cell);
    return {units(block_, count_) + first, ends(block_)[cell] - first};
}

std::size_t PackedTexts::bytes() const {
    return block_ ? block_bytes(count_, start(block_, count_)) : 0;
}

bool PackedTexts::holds(std::u16string_view text) const {
    const auto* place = reinterpret_cast<const std::byte*>(text.data());
    return block_ && !std::less<>()(place, block_) && std::less<>()(place, block_ + bytes());
}

void PackedTexts::replace(std::uint32_t cell, std::u16string_view text, TextArena& arena) {
    if (holds(text))
        splice(cell, std::u16string(text), arena);
    else
        splice(cell, text, arena);
}

void PackedTexts::append(std::u16string_view text, TextArena& arena) {
    if (count_ == 0 && text.empty()) {
        count_ = 1;
        return;
    }
    if (count_ == 1 && !block_)
        splice(0, {}, arena);
    replace(count_, text, arena);
}

PackedTexts::Splice PackedTexts::plan(std::uint32_t cell, std::u16string_view text) const {
    const std::uint32_t used = block_ ? start(block_, count_) : 0;
    if (text.size() > most_units - used)
        throw std::bad_alloc();
    const bool appends = cell == stored();
    const std::uint32_t first = appends ? used : start(block_, cell);
    const std::uint32_t old_end = appends ? used : ends(block_)[cell];
    const auto new_end = static_cast<std::uint32_t>(first + text.size());
    return {text, cell, appends ? cell + 1 : count_, first, old_end, new_end, used - old_end, appends};
}

/// Parts move from the back to the front: in place they only move upwards when the table grows, and only the
/// tail moves otherwise.
void PackedTexts::carry_out(const Splice& splice, std::byte* target) const {
    char16_t* to = units(target, splice.count);
    if (block_) {
        const char16_t* from = units(block_, count_);
        move_units(to + splice.new_end, from + splice.old_end, splice.tail);
        move_units(to, from, splice.start);
        std::memmove(target, block_, count_ * sizeof(std::uint32_t));
    }
    move_units(to + splice.start, splice.text.data(), splice.text.size());
    to[splice.new_end] = u'\0';
    ends(target)[splice.cell] = splice.new_end;
    for (std::uint32_t cell = splice.cell + 1; cell < splice.count; ++cell)
        ends(target)[cell] += splice.new_end - splice.old_end;
}

void PackedTexts::splice(std::uint32_t cell, std::u16string_view text, TextArena& arena) {
    const Splice splice = plan(cell, text);
    const std::size_t size = splice.bytes();
    if (arena.resize_in_place(block_, bytes(), size)) {
        carry_out(splice, block_);
    } else {
        std::byte* target = arena.allocate(size, block_ && splice.appends ? size / 2 : 0);
        carry_out(splice, target);
        release(arena);
        block_ = target;
    }
    count_ = splice.count;
}

void PackedTexts::release(TextArena& arena) noexcept {
    arena.release(block_, bytes());
    block_ = nullptr;
    count_ = 0;
}

void PackedTexts::move(TextArena::Compaction& compaction) {
    block_ = compaction.move(block_, bytes());
}

} // namespace vellora
