#include "widgets/text_arena.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

namespace vellora {

namespace {

constexpr std::size_t first_chunk = 4 * 1024;
constexpr std::size_t largest_chunk = 64 * 1024;
constexpr std::size_t big_block = largest_chunk / 4;

constexpr std::size_t aligned(std::size_t bytes) {
    return (bytes + sizeof(std::uint32_t) - 1) / sizeof(std::uint32_t) * sizeof(std::uint32_t);
}

template <class Header>
std::byte* behind(Header* header) {
    return reinterpret_cast<std::byte*>(header + 1);
}

template <class Header>
Header* allocate_with_header(std::size_t bytes) {
    if (bytes > PTRDIFF_MAX - sizeof(Header))
        throw std::bad_alloc();
    return static_cast<Header*>(::operator new(sizeof(Header) + bytes));
}

} // namespace

bool TextArena::is_big(std::size_t bytes) noexcept {
    return bytes >= big_block;
}

std::byte* TextArena::top() const noexcept {
    return behind(chunks_) + chunks_->used;
}

void TextArena::add_chunk(std::size_t least_size) {
    const std::size_t usual = chunks_ ? std::min(chunks_->size * 2, largest_chunk) : first_chunk;
    const std::size_t size = std::max(usual, least_size);
    auto* chunk = allocate_with_header<Chunk>(size);
    chunks_ = new (chunk) Chunk{chunks_, size, 0};
}

std::byte* TextArena::allocate(std::size_t bytes, std::size_t spare) {
    if (is_big(bytes))
        return allocate_big(bytes + spare);
    const std::size_t needed = aligned(bytes);
    if (!chunks_ || chunks_->size - chunks_->used < needed)
        add_chunk(needed);
    std::byte* block = top();
    chunks_->used += needed;
    live_ += needed;
    return block;
}

std::byte* TextArena::allocate_big(std::size_t bytes) {
    auto* big = new (allocate_with_header<BigBlock>(bytes)) BigBlock{big_blocks_, nullptr, bytes};
    if (big_blocks_)
        big_blocks_->previous = big;
    big_blocks_ = big;
    return behind(big);
}

bool TextArena::resize_in_place(std::byte* block, std::size_t old_bytes, std::size_t new_bytes) noexcept {
    if (!block || is_big(old_bytes) != is_big(new_bytes))
        return false;
    if (is_big(new_bytes)) {
        const std::size_t capacity = reinterpret_cast<BigBlock*>(block)[-1].capacity;
        return new_bytes <= capacity && new_bytes >= capacity / 4;
    }
    const std::size_t before = aligned(old_bytes);
    const std::size_t after = aligned(new_bytes);
    const bool last = block + before == top();
    if (after > before && !(last && after - before <= chunks_->size - chunks_->used))
        return false;
    if (last)
        chunks_->used += after - before; // wraps around for a shrinking block, as meant
    else
        dead_ += before - after;
    live_ += after - before;
    return true;
}

void TextArena::release(std::byte* block, std::size_t bytes) noexcept {
    if (!block)
        return;
    if (is_big(bytes))
        return release_big(block);
    const std::size_t size = aligned(bytes);
    live_ -= size;
    if (block + size == top())
        chunks_->used -= size;
    else
        dead_ += size;
}

void TextArena::release_big(std::byte* block) noexcept {
    BigBlock* big = reinterpret_cast<BigBlock*>(block) - 1;
    (big->previous ? big->previous->next : big_blocks_) = big->next;
    if (big->next)
        big->next->previous = big->previous;
    ::operator delete(big);
}

void TextArena::free_chunks(Chunk* chunk) noexcept {
    while (chunk)
        ::operator delete(std::exchange(chunk, chunk->next));
}

void TextArena::clear() noexcept {
    free_chunks(std::exchange(chunks_, nullptr));
    while (big_blocks_)
        ::operator delete(std::exchange(big_blocks_, big_blocks_->next));
    live_ = 0;
    dead_ = 0;
    tolerated_dead_ = least_waste;
}

bool TextArena::wasteful() const noexcept {
    return dead_ > std::max(live_, tolerated_dead_);
}

TextArena::Compaction::Compaction(TextArena& arena) noexcept
    : arena_(arena), old_chunks_(std::exchange(arena.chunks_, nullptr)) {}

std::byte* TextArena::Compaction::move(std::byte* block, std::size_t bytes) {
    if (!block || is_big(bytes))
        return block;
    std::byte* moved = arena_.allocate(bytes);
    std::memcpy(moved, block, bytes);
    arena_.live_ -= aligned(bytes);
    arena_.dead_ += aligned(bytes);
    return moved;
}

void TextArena::Compaction::finish() noexcept {
    free_chunks(std::exchange(old_chunks_, nullptr));
    arena_.dead_ = 0;
    arena_.tolerated_dead_ = least_waste;
}

TextArena::Compaction::~Compaction() {
    if (!old_chunks_)
        return;
    Chunk** end = &arena_.chunks_;
    while (*end)
        end = &(*end)->next;
    *end = old_chunks_;
    arena_.tolerated_dead_ = arena_.dead_ * 2; // memory is short: not again at the next change
}

} // namespace vellora
