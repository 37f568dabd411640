// Selecting, sorting and finding rows.
#include "native/error_of.h"
#include "native/rows_recorder.h"
#include "runtime/plain_text_compare.h"
#include "widgets/list_rows.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace vellora::test {

namespace {

using Texts = std::vector<std::u16string>;

class RowOrderTest : public testing::Test {
protected:
    void fill(std::initializer_list<std::u16string_view> texts) {
        for (const std::u16string_view text : texts) {
            rows_.append();
            rows_.set_text(rows_.count() - 1, 0, text);
        }
    }
    Texts texts() const {
        Texts result;
        for (std::int32_t row = 0; row < rows_.count(); ++row)
            result.emplace_back(rows_.text(row, 0));
        return result;
    }
    std::int32_t find(std::u16string_view target, std::int32_t start = 0, bool partial = false,
                      FindWhere where = FindWhere::text) const {
        return rows_.find(target, where, start, partial);
    }

    PlainTextCompare compare_;
    ListRows rows_{compare_};
};

using RowSelection = RowOrderTest;
using RowSort = RowOrderTest;
using RowSearch = RowOrderTest;

} // namespace

TEST_F(RowSelection, SelectsARowOrNone) {
    fill({u"a", u"b"});
    RowsRecorder recorder(rows_);
    rows_.select(1);
    EXPECT_EQ(rows_.selected(), 1);
    rows_.select(-1);
    EXPECT_EQ(rows_.selected(), -1);
    EXPECT_EQ(recorder.take(), (Notes{"selection 1", "selection -1"}));
}

TEST_F(RowSelection, SelectingTheSelectedRowReportsNothing) {
    fill({u"a", u"b"});
    rows_.select(1);
    RowsRecorder recorder(rows_);
    rows_.select(1);
    EXPECT_EQ(recorder.take(), Notes{});
}

TEST_F(RowSelection, RowsThatAreNotThereCannotBeSelected) {
    EXPECT_EQ(error_of([&] { rows_.select(0); }), error_number::index_out_of_bounds);
    fill({u"a"});
    rows_.select(0);
    EXPECT_EQ(error_of([&] { rows_.select(1); }), error_number::index_out_of_bounds);
    EXPECT_EQ(error_of([&] { rows_.select(-2); }), error_number::index_out_of_bounds);
    EXPECT_EQ(rows_.selected(), 0);
}

TEST_F(RowSelection, StaysWithItsRow) {
    fill({u"b", u"c", u"d"});
    rows_.select(1);
    rows_.insert(0);
    EXPECT_EQ(rows_.selected(), 2);
    rows_.insert(2);
    EXPECT_EQ(rows_.selected(), 3);
    rows_.insert(4);
    EXPECT_EQ(rows_.selected(), 3);
    rows_.remove(0);
    EXPECT_EQ(rows_.selected(), 2);
    rows_.remove(3);
    EXPECT_EQ(rows_.selected(), 2);
    EXPECT_EQ(rows_.text(rows_.selected(), 0), u"c");
}

TEST_F(RowSelection, EndsWithItsRow) {
    fill({u"a", u"b"});
    rows_.select(0);
    RowsRecorder recorder(rows_);
    rows_.remove(0);
    EXPECT_EQ(rows_.selected(), -1);
    EXPECT_EQ(recorder.take(), (Notes{"rows", "selection -1"}));
    rows_.select(0);
    recorder.take();
    rows_.clear();
    EXPECT_EQ(rows_.selected(), -1);
    EXPECT_EQ(recorder.take(), (Notes{"rows", "selection -1"}));
}

TEST_F(RowSelection, FollowsASortWithoutAReportOfItsOwn) {
    fill({u"c", u"a", u"b"});
    rows_.select(0);
    RowsRecorder recorder(rows_);
    rows_.set_sorted(true);
    EXPECT_EQ(rows_.selected(), 2);
    EXPECT_EQ(recorder.take(), Notes{"rows"});
}

TEST_F(RowSort, OnlyWhenItIsOn) {
    fill({u"c", u"a", u"b"});
    rows_.refresh();
    rows_.set_sort_order(1);
    rows_.set_sort_column(2);
    EXPECT_EQ(texts(), (Texts{u"c", u"a", u"b"}));
    rows_.set_sort_column(0);
    rows_.set_sorted(true);
    EXPECT_EQ(texts(), (Texts{u"c", u"b", u"a"}));
    EXPECT_TRUE(rows_.sorted());
    EXPECT_EQ(rows_.sort_order(), SortOrder::descending);
}

TEST_F(RowSort, AtOnceWhenASettingChanges) {
    fill({u"c", u"a", u"b"});
    rows_.set_sorted(true);
    EXPECT_EQ(texts(), (Texts{u"a", u"b", u"c"}));
    rows_.set_sort_order(1);
    EXPECT_EQ(texts(), (Texts{u"c", u"b", u"a"}));
    rows_.set_sort_order(5);
    EXPECT_EQ(rows_.sort_order(), SortOrder::ascending);
    EXPECT_EQ(texts(), (Texts{u"a", u"b", u"c"}));
}

TEST_F(RowSort, NotWhenASettingStaysAsItIs) {
    fill({u"b"});
    rows_.set_sorted(true);
    fill({u"a"});
    rows_.set_sorted(true);
    rows_.set_sort_order(0);
    rows_.set_sort_order(-3);
    rows_.set_sort_column(0);
    EXPECT_EQ(texts(), (Texts{u"b", u"a"}));
    rows_.refresh();
    EXPECT_EQ(texts(), (Texts{u"a", u"b"}));
}

TEST_F(RowSort, SwitchingOffLeavesTheOrder) {
    fill({u"b", u"a"});
    rows_.set_sorted(true);
    rows_.set_sorted(false);
    fill({u"0"});
    rows_.refresh();
    EXPECT_EQ(texts(), (Texts{u"a", u"b", u"0"}));
}

TEST_F(RowSort, IgnoresCaseAndKeepsEqualRowsInOrder) {
    fill({u"B", u"a", u"b", u"A", u"B"});
    rows_.set_sorted(true);
    EXPECT_EQ(texts(), (Texts{u"a", u"A", u"B", u"b", u"B"}));
}

TEST_F(RowSort, DescendingKeepsEqualRowsInOrderToo) {
    fill({u"B", u"a", u"b", u"A"});
    rows_.set_sort_order(1);
    rows_.set_sorted(true);
    EXPECT_EQ(texts(), (Texts{u"B", u"b", u"a", u"A"}));
}

TEST_F(RowSort, AMissingCellCountsAsEmpty) {
    fill({u"with z", u"without", u"with empty", u"with a"});
    rows_.add_sub_item(0, u"z");
    rows_.add_sub_item(2, u"");
    rows_.add_sub_item(3, u"a");
    rows_.set_sort_column(1);
    rows_.set_sorted(true);
    EXPECT_EQ(texts(), (Texts{u"without", u"with empty", u"with a", u"with z"}));
    EXPECT_EQ(rows_.sort_column(), 1);
}

TEST_F(RowSort, ComparesWholeTexts) {
    fill({u"prefix-b", u"prefix-a", u"pref", u"prefix", std::u16string_view(u"pref\0", 5)});
    rows_.set_sorted(true);
    EXPECT_EQ(texts(), (Texts{u"pref", std::u16string(u"pref\0", 5), u"prefix", u"prefix-a", u"prefix-b"}));
}

TEST_F(RowSort, ANegativeColumnIsNoValue) {
    EXPECT_EQ(error_of([&] { rows_.set_sort_column(-1); }), error_number::invalid_property_value);
    EXPECT_EQ(rows_.sort_column(), 0);
}

TEST_F(RowSort, CarriesEverythingOfARowAlong) {
    fill({u"b", u"a"});
    rows_.add_sub_item(0, u"sub of b");
    rows_.set_tool_tip(0, 0, u"tip of b");
    rows_.set_tag(0, 2);
    rows_.set_checked(0, true);
    const RowRef b = rows_.ref(0);
    rows_.set_sorted(true);
    EXPECT_EQ(rows_.position(b), 1);
    EXPECT_EQ(rows_.text(1, 1), u"sub of b");
    EXPECT_EQ(rows_.tool_tip(1, 0), u"tip of b");
    EXPECT_EQ(rows_.tag(1), 2);
    EXPECT_TRUE(rows_.checked(1));
    EXPECT_EQ(rows_.tag(0), std::nullopt);
}

TEST_F(RowSort, ReportsOnlyWhenRowsMove) {
    fill({u"a", u"b"});
    RowsRecorder recorder(rows_);
    rows_.set_sorted(true);
    rows_.refresh();
    EXPECT_EQ(recorder.take(), Notes{});
    const std::uint64_t before = rows_.revision();
    rows_.set_sort_order(1);
    EXPECT_EQ(recorder.take(), Notes{"rows"});
    EXPECT_EQ(rows_.revision(), before);
}

TEST_F(RowSearch, FindsTheFirstEqualTextFromTheStart) {
    fill({u"a", u"B", u"b", u"ab"});
    EXPECT_EQ(find(u"b"), 1);
    EXPECT_EQ(find(u"B", 1), 1);
    EXPECT_EQ(find(u"b", 2), 2);
    EXPECT_EQ(find(u"b", 3), -1);
    EXPECT_EQ(find(u"c"), -1);
    EXPECT_EQ(find(u""), -1);
}

TEST_F(RowSearch, PartialMeansTheBeginning) {
    fill({u"xabc", u"ABCD", u"abc", u"ab"});
    EXPECT_EQ(find(u"abc", 0, true), 1);
    EXPECT_EQ(find(u"abc", 2, true), 2);
    EXPECT_EQ(find(u"abc", 3, true), -1);
    EXPECT_EQ(find(u"", 0, true), 0);
    EXPECT_EQ(find(u"", 3, true), 3);
}

TEST_F(RowSearch, IgnoresCaseBeyondPlainLetters) {
    fill({u"\u00E4pfel", u"\u0416\u0443\u043A", u"A\u00E9\u03A9"});
    EXPECT_EQ(find(u"\u00C4PFEL"), 0);
    EXPECT_EQ(find(u"\u0436\u0423\u041A"), 1);
    EXPECT_EQ(find(u"a\u00C9", 0, true), 2);
    EXPECT_EQ(find(u"a\u00C8", 0, true), -1);
    EXPECT_EQ(find(u"apfel"), -1);
}

TEST_F(RowSearch, SubItemsAreSearchedInsteadOfTheText) {
    fill({u"x", u"b", u"c"});
    rows_.add_sub_item(1, u"y");
    rows_.add_sub_item(1, u"X");
    rows_.add_sub_item(2, u"xx");
    EXPECT_EQ(find(u"x", 0, false, FindWhere::sub_items), 1);
    EXPECT_EQ(find(u"x", 2, false, FindWhere::sub_items), -1);
    EXPECT_EQ(find(u"x", 2, true, FindWhere::sub_items), 2);
    EXPECT_EQ(find(u"b", 0, false, FindWhere::sub_items), -1);
}

TEST_F(RowSearch, FindsEmptyTextsAndZeroUnits) {
    fill({u"a", u"", std::u16string_view(u"\0", 1)});
    EXPECT_EQ(find(u""), 1);
    EXPECT_EQ(find(std::u16string_view(u"\0", 1)), 2);
}

TEST_F(RowSearch, StartsWithinTheRows) {
    fill({u"a"});
    EXPECT_EQ(error_of([&] { find(u"a", 1); }), error_number::index_out_of_bounds);
    EXPECT_EQ(error_of([&] { find(u"a", -1); }), error_number::index_out_of_bounds);
}

TEST_F(RowSearch, AnEmptyListHoldsNothingWhereverItStarts) {
    EXPECT_EQ(find(u"a", 0), -1);
    EXPECT_EQ(find(u"a", 5), -1);
    EXPECT_EQ(find(u"", -5, true), -1);
}

} // namespace vellora::test
