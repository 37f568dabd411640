// What rows cost, and what is left of them when memory runs out.
#include "native/failing_allocation.h"
#include "native/rows_model.h"
#include "runtime/plain_text_compare.h"
#include "widgets/list_rows.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace vellora::test {

namespace {

class RowMemory : public testing::Test {
protected:
    void add_row(std::u16string_view a, std::u16string_view b, std::u16string_view c) {
        rows_.append();
        rows_.set_text(rows_.count() - 1, 0, a);
        rows_.add_sub_item(rows_.count() - 1, b);
        rows_.add_sub_item(rows_.count() - 1, c);
    }
    /// Lets the change fail at its first, second, ... allocation until it succeeds.
    void expect_all_or_nothing(const std::function<void()>& change) {
        const Model before = model_of(rows_);
        for (std::size_t allowed = 0; attempt(allowed, change); ++allowed)
            ASSERT_EQ(model_of(rows_), before) << "after failing allocation " << allowed;
        EXPECT_NE(model_of(rows_), before);
    }
    static bool attempt(std::size_t allowed, const std::function<void()>& change) {
        FailingAllocation failing(allowed);
        try {
            change();
        } catch (const std::bad_alloc&) {
            return true;
        }
        return false;
    }

    PlainTextCompare compare_;
    ListRows rows_{compare_};
    const std::u16string long_text_ = std::u16string(9000, u'x');
};

} // namespace

TEST_F(RowMemory, AShortRowOfThreeTextsCostsAtMost160Bytes) {
    constexpr std::size_t count = 100000;
    const std::size_t before = bytes_in_use();
    for (std::size_t i = 0; i < count; ++i)
        add_row(u"Customer", u"New York", u"12345678");
    EXPECT_LE(bytes_in_use() - before, count * 160);
}

TEST_F(RowMemory, RewrittenTextsDoNotPileUp) {
    for (int i = 0; i < 1000; ++i)
        add_row(u"a", u"b", u"c");
    const std::size_t before = bytes_in_use();
    for (std::size_t round = 0; round < 100; ++round)
        for (std::int32_t row = 0; row < 1000; ++row)
            rows_.set_text(row, 1, std::u16string(20 + round % 2 * 60, u'x'));
    // 10 MB of text were written, and 160 KB are left.
    EXPECT_LE(bytes_in_use() - before, 600'000U);
    EXPECT_EQ(rows_.text(999, 1), std::u16string(80, u'x'));
    EXPECT_EQ(rows_.text(999, 2), u"c");
}

TEST_F(RowMemory, RowsThatComeAndGoDoNotPileUp) {
    for (int i = 0; i < 1000; ++i)
        add_row(u"Customer", u"New York", u"12345678");
    const std::size_t before = bytes_in_use();
    for (int i = 0; i < 100'000; ++i) {
        rows_.remove(i * 7919 % 1000);
        add_row(u"Customer", u"New York", u"12345678");
        rows_.set_tool_tip(999, 0, u"Customer");
    }
    EXPECT_LE(bytes_in_use() - before, 600'000U);
}

TEST_F(RowMemory, RemovedRowsGiveTheirTextsBack) {
    const std::size_t before = bytes_in_use();
    for (int i = 0; i < 2000; ++i)
        add_row(std::u16string(500, u'x'), u"b", u"c");
    const std::size_t full = bytes_in_use() - before;
    while (rows_.count() > 100)
        rows_.remove(0);
    EXPECT_LT(bytes_in_use() - before, full / 4);
}

TEST_F(RowMemory, AnEmptyToolTipCostsNothing) {
    add_row(u"a", u"b", u"c");
    const std::size_t before = bytes_in_use();
    rows_.set_tool_tip(0, 2, u"");
    EXPECT_EQ(bytes_in_use(), before);
}

TEST_F(RowMemory, ClearGivesTheMemoryBack) {
    const std::size_t before = bytes_in_use();
    for (int i = 0; i < 10'000; ++i)
        add_row(u"Customer", u"New York", std::u16string(i % 1000 == 0 ? 20'000 : 1, u'x'));
    rows_.clear();
    EXPECT_EQ(bytes_in_use(), before);
    add_row(u"a", u"b", u"c");
    rows_.remove(0);
    EXPECT_EQ(bytes_in_use(), before);
}

TEST_F(RowMemory, BigTexts) {
    constexpr std::size_t units = 5 * 1024 * 1024;
    add_row(std::u16string(units, u'a'), u"b", std::u16string(units, u'c'));
    add_row(u"x", u"y", u"z");
    rows_.set_text(0, 1, std::u16string(units, u'b'));
    EXPECT_EQ(rows_.text(0, 0).size(), units);
    EXPECT_EQ(rows_.text(0, 1), std::u16string(units, u'b'));
    EXPECT_EQ(rows_.text(0, 2).back(), u'c');
    rows_.set_text(0, 0, u"a");
    rows_.set_text(0, 1, u"b");
    rows_.set_text(0, 2, u"c");
    EXPECT_EQ(rows_.text(0, 0), u"a");
    EXPECT_EQ(rows_.text(0, 1), u"b");
    EXPECT_EQ(rows_.text(0, 2), u"c");
    EXPECT_EQ(rows_.text(1, 2), u"z");
}

TEST_F(RowMemory, FailingToAddARowLeavesTheRows) {
    for (int i = 0; i < 256; ++i)
        add_row(u"a", u"b", u"c");
    expect_all_or_nothing([&] { rows_.insert(100); });
}

TEST_F(RowMemory, FailingToWriteATextLeavesTheRows) {
    add_row(u"a", u"b", u"c");
    add_row(u"d", u"e", u"f");
    rows_.select(1);
    expect_all_or_nothing([&] { rows_.set_text(0, 1, long_text_); });
    expect_all_or_nothing([&] { rows_.set_text(0, 1, rows_.text(0, 1).substr(10)); });
    expect_all_or_nothing([&] { rows_.add_sub_item(1, long_text_); });
    expect_all_or_nothing([&] { rows_.add_sub_item(1, rows_.text(1, 3)); });
    expect_all_or_nothing([&] { rows_.set_tool_tip(1, 3, long_text_); });
    expect_all_or_nothing([&] { rows_.set_text(0, 1, u"short"); });
}

TEST_F(RowMemory, FailingToSortLeavesTheRows) {
    for (int i = 0; i < 100; ++i)
        add_row(std::u16string(static_cast<std::size_t>(100 - i), u'b'), u"b", u"c");
    rows_.select(3);
    expect_all_or_nothing([&] { rows_.set_sorted(true); });
    EXPECT_EQ(rows_.selected(), 96);
}

TEST_F(RowMemory, ASortThatFailsDoesNotTakeTheSettingOver) {
    add_row(u"b", u"", u"");
    add_row(u"a", u"", u"");
    EXPECT_TRUE(attempt(0, [&] { rows_.set_sorted(true); }));
    EXPECT_FALSE(rows_.sorted());
}

TEST_F(RowMemory, RemovingAndClearingNeedNoMemory) {
    for (int i = 0; i < 3000; ++i)
        add_row(std::u16string(50, u'a'), u"b", u"c");
    const FailingAllocation failing(0);
    while (rows_.count() > 500)
        rows_.remove(rows_.count() / 3);
    for (std::int32_t row = 0; row < rows_.count(); ++row)
        ASSERT_EQ(rows_.text(row, 0).size(), 50U);
    rows_.clear();
    EXPECT_EQ(rows_.count(), 0);
}

TEST_F(RowMemory, TidyingThatRunsOutOfMemoryKeepsEveryText) {
    for (std::size_t allowed = 0; allowed < 8; ++allowed) {
        rows_.clear();
        for (std::size_t i = 0; i < 3000; ++i)
            add_row(std::u16string(50, static_cast<char16_t>(u'a' + i % 26)), u"b", u"c");
        const FailingAllocation failing(allowed);
        while (rows_.count() > 200)
            rows_.remove(rows_.count() / 2);
        for (std::int32_t row = 0; row < rows_.count(); ++row) {
            const std::u16string_view text = rows_.text(row, 0);
            ASSERT_EQ(text.size(), 50U);
            ASSERT_EQ(text.find_first_not_of(text[0]), std::u16string_view::npos);
            ASSERT_EQ(rows_.text(row, 2), u"c");
        }
    }
}

} // namespace vellora::test
