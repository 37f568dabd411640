// Searching a list that is long enough to be indexed: what the index must not get wrong, and what it costs.
#include "native/error_of.h"
#include "native/failing_allocation.h"
#include "runtime/plain_text_compare.h"
#include "widgets/list_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <string>

namespace vellora::test {

namespace {

std::u16string numbered(std::int32_t number) {
    std::u16string text(u"000000");
    for (auto unit = text.rbegin(); number > 0; number /= 10)
        *unit++ = static_cast<char16_t>(u'0' + number % 10);
    return text;
}

class RowIndex : public testing::Test {
protected:
    static constexpr std::int32_t count = 2000;

    void fill(std::int32_t sub_items = 0) {
        for (std::int32_t row = 0; row < count; ++row) {
            rows_.append();
            rows_.set_text(row, 0, numbered(row));
            for (std::int32_t column = 1; column <= sub_items; ++column)
                rows_.add_sub_item(row, numbered(row));
        }
    }
    std::int32_t find(std::u16string_view target, std::int32_t start = 0, bool partial = false) const {
        return rows_.find(target, FindWhere::text, start, partial);
    }
    std::int32_t find_sub_item(std::u16string_view target) const {
        return rows_.find(target, FindWhere::sub_items, 0, false);
    }
    void make_index() const {
        find(u"none");
        find(u"none");
    }

    PlainTextCompare compare_;
    ListRows rows_{compare_};
};

} // namespace

TEST_F(RowIndex, TheFirstRowOfTheListWinsNotTheFirstText) {
    fill();
    rows_.set_text(1500, 0, u"Item b");
    rows_.set_text(1600, 0, u"item a");
    EXPECT_EQ(rows_.first_beginning_with(u"ITEM", 0), 1500);
    EXPECT_EQ(rows_.first_beginning_with(u"ITEM A", 0), 1600);
    EXPECT_EQ(rows_.first_beginning_with(u"", 0), 0);
    EXPECT_EQ(rows_.first_beginning_with(u"item", 1), -1);
    EXPECT_EQ(rows_.first_beginning_with(u"item", -1), -1);
}

TEST_F(RowIndex, ManyMatchesBehindTheStart) {
    fill();
    for (std::int32_t row = 300; row < 900; ++row)
        rows_.set_text(row, 0, row % 2 == 0 ? u"same" : u"SAME");
    make_index();
    EXPECT_EQ(find(u"Same"), 300);
    EXPECT_EQ(find(u"Same", 450), 450);
    EXPECT_EQ(find(u"Same", 900), -1);
    EXPECT_EQ(rows_.find_exact(u"SAME", 0, 0, false), 301);
    EXPECT_EQ(rows_.find_exact(u"SAME", 0, 899, true), 899);
    EXPECT_EQ(rows_.find_exact(u"Same", 0, 0, true), -1);
}

TEST_F(RowIndex, FollowsEveryChange) {
    fill();
    make_index();
    rows_.set_text(1000, 0, u"new");
    EXPECT_EQ(find(u"001000"), -1);
    EXPECT_EQ(find(u"NEW"), 1000);
    rows_.remove(100);
    EXPECT_EQ(find(u"000100"), -1);
    EXPECT_EQ(find(u"new"), 999);
    rows_.insert(500);
    rows_.set_text(500, 0, u"000100");
    EXPECT_EQ(find(u"000100"), 500);
    EXPECT_EQ(find(u"new"), 1000);
    EXPECT_EQ(find(u"001999"), 1999);
}

TEST_F(RowIndex, ASlotThatIsUsedAgainHoldsTheNewRow) {
    fill();
    make_index();
    rows_.remove(1200);
    rows_.insert(700);
    EXPECT_EQ(find(u"001200"), -1);
    EXPECT_EQ(find(u""), 700);
    rows_.set_text(700, 0, u"again");
    EXPECT_EQ(find(u"again"), 700);
}

TEST_F(RowIndex, GoesByTheOrderAsItIsNow) {
    fill();
    rows_.set_text(1990, 0, u"x1");
    rows_.set_text(1000, 0, u"x2");
    make_index();
    EXPECT_EQ(find(u"x", 0, true), 1000);
    rows_.set_sorted(true);
    EXPECT_EQ(find(u"x", 0, true), 1998);
    EXPECT_EQ(find(u"x2", 0, true), 1999);
    rows_.set_sort_order(1);
    EXPECT_EQ(find(u"x", 0, true), 0);
    EXPECT_EQ(find(u"000000"), 1999);
}

TEST_F(RowIndex, StartsAnewAfterClear) {
    fill();
    make_index();
    rows_.clear();
    EXPECT_EQ(find(u"000001"), -1);
    fill(1);
    make_index();
    EXPECT_EQ(find(u"001999"), 1999);
    EXPECT_EQ(find_sub_item(u"001999"), 1999);
    while (rows_.count() > 0)
        rows_.remove(0);
    rows_.append();
    rows_.set_text(0, 0, u"000001");
    EXPECT_EQ(find(u"000001"), 0);
}

TEST_F(RowIndex, SubItemsOfMoreColumnsThanHaveAnIndex) {
    fill(70);
    rows_.set_text(1900, 70, u"last");
    rows_.set_text(1800, 3, u"third");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(find_sub_item(u"LAST"), 1900);
        EXPECT_EQ(find_sub_item(u"third"), 1800);
        EXPECT_EQ(find_sub_item(u"none"), -1);
        EXPECT_EQ(rows_.first_beginning_with(u"last", 70), 1900);
    }
}

TEST_F(RowIndex, AnExactSearchRefusesARowWithoutTheCellUnlessOneIsFoundBefore) {
    fill(2);
    rows_.insert(1500);
    rows_.add_sub_item(1500, u"001700");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(rows_.find_exact(u"001400", 2, 0, false), 1400);
        EXPECT_EQ(rows_.find_exact(u"001700", 2, 1501, false), 1701);
        EXPECT_EQ(error_of([&] { rows_.find_exact(u"001700", 2, 0, false); }),
                  error_number::index_out_of_bounds);
        EXPECT_EQ(error_of([&] { rows_.find_exact(u"0017", 2, 1400, true); }),
                  error_number::index_out_of_bounds);
        EXPECT_EQ(rows_.find_exact(u"0017", 2, 0, false), -1);
        EXPECT_EQ(error_of([&] { rows_.find_exact(u"000000", 32766, 0, false); }),
                  error_number::index_out_of_bounds);
        EXPECT_EQ(rows_.find_exact(u"none", 32766, 0, true), -1);
    }
    EXPECT_EQ(error_of([&] { rows_.find_exact(u"a", 0, 2001, false); }), error_number::index_out_of_bounds);
}

TEST_F(RowIndex, CostsAtMost40BytesPerRowAndIsGivenBack) {
    const std::size_t empty = bytes_in_use();
    fill();
    const std::size_t filled = bytes_in_use();
    make_index();
    EXPECT_GT(bytes_in_use(), filled);
    EXPECT_LE(bytes_in_use() - filled, count * 40U);
    rows_.clear();
    EXPECT_EQ(bytes_in_use(), empty);
}

TEST_F(RowIndex, IsGivenUpWhenMostRowsChange) {
    fill();
    const std::size_t filled = bytes_in_use();
    make_index();
    for (std::int32_t row = 0; row < count; ++row)
        rows_.set_text(row, 0, numbered(row + 1));
    EXPECT_LE(bytes_in_use(), filled + 64);
    EXPECT_EQ(find(u"002000"), 1999);
}

TEST_F(RowIndex, NoneIsMadeForOneSearch) {
    fill();
    const std::size_t filled = bytes_in_use();
    EXPECT_EQ(find(u"none"), -1);
    EXPECT_LE(bytes_in_use() - filled, 64U);
}

TEST_F(RowIndex, IsThereBeforeTheFirstCompletionWhereItWasPrepared) {
    fill();
    const std::size_t filled = bytes_in_use();
    rows_.prepare_completion(0);
    const std::size_t prepared = bytes_in_use();
    EXPECT_GT(prepared - filled, count * sizeof(std::uint32_t));
    EXPECT_EQ(rows_.first_beginning_with(u"001999", 0), 1999);
    EXPECT_EQ(bytes_in_use(), prepared);
    rows_.prepare_completion(-1);
    rows_.prepare_completion(70);
    EXPECT_EQ(bytes_in_use(), prepared);
}

// Texts of at most seven units, so that the searches themselves need no memory.
TEST_F(RowIndex, WithoutMemoryForItTheSearchGoesOn) {
    fill(1);
    for (std::size_t allowed = 0; allowed < 40; ++allowed) {
        const FailingAllocation failing(allowed);
        for (int i = 0; i < 4; ++i) {
            ASSERT_EQ(find(u"001999"), 1999) << allowed;
            ASSERT_EQ(find_sub_item(u"001998"), 1998) << allowed;
            ASSERT_EQ(rows_.first_beginning_with(u"0015", 0), 1500) << allowed;
        }
    }
    EXPECT_EQ(find(u"001999"), 1999);
}

TEST_F(RowIndex, WithoutMemoryToFollowAChangeTheSearchGoesOn) {
    for (std::size_t allowed = 0; allowed < 12; ++allowed) {
        rows_.clear();
        fill();
        make_index();
        {
            const FailingAllocation failing(allowed);
            for (std::int32_t row = 1000; row < 1400; ++row)
                rows_.set_text(row, 0, numbered(row + 5000));
            ASSERT_EQ(find(u"006399"), 1399) << allowed;
            ASSERT_EQ(find(u"001399"), -1) << allowed;
            ASSERT_EQ(find(u"0", 1500, true), 1500) << allowed;
        }
        ASSERT_EQ(find(u"006000"), 1000) << allowed;
    }
}

TEST_F(RowIndex, SortingAgainWithoutMemoryLeavesTheRows) {
    fill();
    rows_.set_sorted(true);
    rows_.set_text(0, 0, u"zzz");
    for (std::size_t allowed = 0; allowed < 3; ++allowed) {
        const FailingAllocation failing(allowed);
        EXPECT_THROW(rows_.refresh(), std::bad_alloc);
        EXPECT_EQ(rows_.text(0, 0), u"zzz");
    }
    rows_.refresh();
    EXPECT_EQ(rows_.text(1999, 0), u"zzz");
    EXPECT_EQ(rows_.text(0, 0), u"000001");
}

TEST_F(RowIndex, RowsKnowTheirPlaceAfterManyMoves) {
    fill();
    const RowRef last = rows_.ref(1999);
    const RowRef middle = rows_.ref(1000);
    for (std::int32_t moves = 1; moves <= 700; ++moves) {
        rows_.insert(0);
        rows_.remove(500 + moves);
        rows_.insert(3);
        ASSERT_EQ(rows_.position(last), 1999 + moves);
    }
    EXPECT_EQ(rows_.text(rows_.position(middle), 0), u"001000");
}

} // namespace vellora::test
