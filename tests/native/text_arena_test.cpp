// Blocks of an arena: how they grow, what they leave behind, and how they are moved together.
#include "widgets/text_arena.h"

#include "native/failing_allocation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace vellora::test {

namespace {

constexpr std::size_t big = 20'000;

std::byte* filled(TextArena& arena, std::size_t bytes, int value) {
    std::byte* block = arena.allocate(bytes);
    std::memset(block, value, bytes);
    return block;
}

bool holds(const std::byte* block, std::size_t bytes, int value) {
    for (std::size_t i = 0; i < bytes; ++i)
        if (block[i] != static_cast<std::byte>(value))
            return false;
    return true;
}

} // namespace

TEST(TextArena, BlocksAreAlignedAndApart) {
    TextArena arena;
    std::vector<std::byte*> blocks;
    for (int i = 0; i < 2000; ++i)
        blocks.push_back(filled(arena, static_cast<std::size_t>(i % 97), i % 50));
    for (int i = 0; i < 2000; ++i) {
        std::byte* block = blocks[static_cast<std::size_t>(i)];
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % sizeof(std::uint32_t), 0U);
        EXPECT_TRUE(holds(block, static_cast<std::size_t>(i % 97), i % 50));
    }
}

TEST(TextArena, TheLastBlockGrowsInPlace) {
    TextArena arena;
    std::byte* first = arena.allocate(20);
    std::byte* last = arena.allocate(20);
    EXPECT_FALSE(arena.resize_in_place(first, 20, 40));
    EXPECT_TRUE(arena.resize_in_place(last, 20, 200));
    EXPECT_FALSE(arena.resize_in_place(last, 200, 5000)); // beyond its chunk
    EXPECT_TRUE(arena.resize_in_place(last, 200, 8));
    EXPECT_EQ(arena.allocate(4), last + 8);
}

TEST(TextArena, SmallBlocksShrinkInPlace) {
    TextArena arena;
    std::byte* block = arena.allocate(100);
    arena.allocate(4);
    EXPECT_TRUE(arena.resize_in_place(block, 100, 10));
    EXPECT_FALSE(arena.resize_in_place(block, 10, 100));
}

TEST(TextArena, NoBlockCannotBeResized) {
    TextArena arena;
    EXPECT_FALSE(arena.resize_in_place(nullptr, 0, 10));
    arena.release(nullptr, 0);
}

TEST(TextArena, BigBlocksGrowIntoTheirSpareBytes) {
    TextArena arena;
    std::byte* block = arena.allocate(big, big);
    EXPECT_TRUE(arena.resize_in_place(block, big, 2 * big));
    EXPECT_FALSE(arena.resize_in_place(block, 2 * big, 2 * big + 1));
    EXPECT_FALSE(arena.resize_in_place(block, 2 * big, 100)); // a small one has no chunk of its own
}

TEST(TextArena, BigBlocksDoNotKeepFourTimesTheirSize) {
    TextArena arena;
    std::byte* block = arena.allocate(10 * big);
    EXPECT_TRUE(arena.resize_in_place(block, 10 * big, 5 * big));
    EXPECT_FALSE(arena.resize_in_place(block, 10 * big, 2 * big));
}

TEST(TextArena, BigBlocksAreGivenBackAtOnce) {
    TextArena arena;
    const std::size_t before = bytes_in_use();
    std::byte* a = arena.allocate(big);
    std::byte* b = arena.allocate(big);
    std::byte* c = arena.allocate(big);
    arena.release(b, big);
    arena.release(c, big);
    arena.release(a, big);
    EXPECT_EQ(bytes_in_use(), before);
    EXPECT_FALSE(arena.wasteful());
}

TEST(TextArena, IsWastefulOnceMoreIsDeadThanAlive) {
    TextArena arena;
    std::vector<std::byte*> blocks;
    for (int i = 0; i < 1000; ++i)
        blocks.push_back(arena.allocate(200));
    for (std::size_t i = 0; i < 500; ++i)
        arena.release(blocks[i], 200);
    EXPECT_FALSE(arena.wasteful());
    arena.release(blocks[500], 200);
    EXPECT_TRUE(arena.wasteful());
}

TEST(TextArena, WhatShrunkIsDeadToo) {
    TextArena arena;
    std::vector<std::byte*> blocks;
    for (int i = 0; i < 1000; ++i)
        blocks.push_back(arena.allocate(200));
    for (std::byte* block : blocks)
        arena.resize_in_place(block, 200, 80);
    EXPECT_TRUE(arena.wasteful());
}

TEST(TextArena, ALittleWasteIsTolerated) {
    TextArena arena;
    std::byte* block = arena.allocate(200);
    arena.allocate(4);
    arena.release(block, 200);
    EXPECT_FALSE(arena.wasteful());
}

TEST(TextArena, CompactionMovesWhatLives) {
    TextArena arena;
    std::vector<std::byte*> blocks;
    for (int i = 0; i < 1000; ++i)
        blocks.push_back(filled(arena, 300, i % 100));
    std::byte* apart = filled(arena, big, 7);
    for (std::size_t i = 1; i < 1000; ++i)
        if (i % 10 != 0)
            arena.release(blocks[i], 300);
    const std::size_t before = bytes_in_use();
    TextArena::Compaction compaction(arena);
    for (std::size_t i = 0; i < 1000; i += 10)
        blocks[i] = compaction.move(blocks[i], 300);
    EXPECT_EQ(compaction.move(apart, big), apart);
    compaction.finish();
    EXPECT_LT(bytes_in_use(), before - 150'000);
    EXPECT_FALSE(arena.wasteful());
    for (std::size_t i = 0; i < 1000; i += 10)
        EXPECT_TRUE(holds(blocks[i], 300, static_cast<int>(i % 100)));
    EXPECT_TRUE(holds(apart, big, 7));
}

TEST(TextArena, AnUnfinishedCompactionLosesNothingAndWaits) {
    TextArena arena;
    std::vector<std::byte*> blocks;
    for (int i = 0; i < 1000; ++i)
        blocks.push_back(filled(arena, 300, i % 100));
    for (std::size_t i = 0; i < 600; ++i)
        arena.release(blocks[i], 300);
    ASSERT_TRUE(arena.wasteful());
    {
        TextArena::Compaction compaction(arena);
        const FailingAllocation failing(2);
        EXPECT_THROW(for (std::size_t i = 600; i < 1000; ++i) blocks[i] = compaction.move(blocks[i], 300),
                     std::bad_alloc);
    }
    for (std::size_t i = 600; i < 1000; ++i)
        EXPECT_TRUE(holds(blocks[i], 300, static_cast<int>(i % 100)));
    EXPECT_FALSE(arena.wasteful());
}

} // namespace vellora::test
