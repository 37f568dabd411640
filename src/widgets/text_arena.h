// Memory for many small blocks: they are cut one after the other from large chunks, so a block costs no more
// than its own bytes. Space given back is only counted; the owner moves what lives together when too much of
// it has died. A big block has a chunk of its own and is given back at once.
#pragma once

#include <cstddef>

namespace vellora {

/// Blocks are aligned for 32-bit numbers and handed back with the size they were asked for.
class TextArena {
public:
    class Compaction;

    TextArena() = default;
    ~TextArena() { clear(); }
    TextArena(const TextArena&) = delete;
    TextArena& operator=(const TextArena&) = delete;

    /// Throws std::bad_alloc and changes nothing when memory is short. A big block that will grow further may
    /// ask for spare bytes, a small one gets none.
    std::byte* allocate(std::size_t bytes, std::size_t spare = 0);
    /// True when the block may go on where it stands with another size; always so for a small one that
    /// shrinks and stays small, and for the block allocated last while its chunk has room.
    bool resize_in_place(std::byte* block, std::size_t old_bytes, std::size_t new_bytes) noexcept;
    void release(std::byte* block, std::size_t bytes) noexcept;
    /// Gives everything back, in time proportional to the chunks.
    void clear() noexcept;

    /// Whether moving the living blocks together would free more than it copies.
    bool wasteful() const noexcept;

private:
    struct Chunk {
        Chunk* next;
        std::size_t size;
        std::size_t used;
    };
    struct BigBlock {
        BigBlock* next;
        BigBlock* previous;
        std::size_t capacity;
    };

    static bool is_big(std::size_t bytes) noexcept;
    static void free_chunks(Chunk* chunk) noexcept;
    std::byte* allocate_big(std::size_t bytes);
    void release_big(std::byte* block) noexcept;
    void add_chunk(std::size_t least_size);
    std::byte* top() const noexcept;

    Chunk* chunks_ = nullptr; // blocks are cut from the first
    BigBlock* big_blocks_ = nullptr;
    std::size_t live_ = 0; // of small blocks
    std::size_t dead_ = 0;
    std::size_t tolerated_dead_ = least_waste;

    static constexpr std::size_t least_waste = 64 * 1024;
};

/// Moves the living blocks of an arena into fresh chunks. What was not finished leaves every block valid.
class TextArena::Compaction {
public:
    explicit Compaction(TextArena& arena) noexcept;
    ~Compaction();
    Compaction(const Compaction&) = delete;
    Compaction& operator=(const Compaction&) = delete;

    /// The block's new place. Throws std::bad_alloc; the block then stands where it was.
    std::byte* move(std::byte* block, std::size_t bytes);
    /// All living blocks have been moved: the old chunks go.
    void finish() noexcept;

private:
    TextArena& arena_;
    Chunk* old_chunks_;
};

} // namespace vellora
