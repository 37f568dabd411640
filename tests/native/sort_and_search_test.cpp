// Keeping rows sorted and finding one of them.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

#include <limits>

namespace vellora::test {

namespace {

/// Rows of two columns, as pairs.
struct Pairs : HeadlessControl {
    Pairs(std::initializer_list<std::pair<const char16_t*, const char16_t*>> pairs) {
        columns().put_Columns(2);
        for (const auto& [first, second] : pairs) {
            add(TestVariant::array({Element(first), Element(second)}));
        }
        journal().take_all();
    }
    std::int32_t find(const TestVariant& target, std::int16_t column = 0, std::int32_t start = 1,
                      std::int32_t options = vlWholeWord) {
        return sort_and_search().FindItem(target, column, start, options);
    }
};

Failure find_item_failure(std::int32_t number, const std::u16string& description) {
    return {number, u"Vellora.FindItem", u"Vellora.FindItem:" + description};
}

} // namespace

TEST(Sorted, PutsTheRowsInOrderAtOnce) {
    Pairs combo{{u"c", u"1"}, {u"a", u"2"}, {u"B", u"3"}};
    combo.sort_and_search().put_Sorted(true);
    EXPECT_EQ(combo.list(0), u"a");
    EXPECT_EQ(combo.list(1), u"B");
    EXPECT_EQ(combo.list(2), u"c");
    EXPECT_TRUE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Sorted)"});
}

TEST(Sorted, MarksOnlyAListWithRows) {
    HeadlessControl combo;
    combo.sort_and_search().put_Sorted(true);
    EXPECT_FALSE(combo.state().mbListDirty);
    combo.add(u"a");
    combo.state().mbListDirty = false;
    combo.sort_and_search().put_Sorted(false);
    EXPECT_TRUE(combo.state().mbListDirty);
    EXPECT_FALSE(combo.sort_and_search().Sorted());
}

TEST(Sorted, LetsAddedRowsWaitForTheNextLook) {
    Pairs combo{{u"b", u"1"}};
    combo.sort_and_search().put_Sorted(true);
    combo.add(u"a");
    EXPECT_EQ(combo.list(0), u"b");
    combo.items().ItemData(0);
    EXPECT_EQ(combo.list(0), u"a");
}

TEST(SortOrder, TurnsTheRowsRound) {
    Pairs combo{{u"a", u"1"}, {u"b", u"2"}};
    combo.sort_and_search().put_Sorted(true);
    combo.journal().take_all();
    combo.sort_and_search().put_SortOrder(vlDescending);
    EXPECT_EQ(combo.list(0), u"b");
    EXPECT_TRUE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(SortOrder)"});
}

TEST(SortOrder, MarksNothingWhileSortingIsOff) {
    Pairs combo{{u"a", u"1"}};
    combo.state().mbListDirty = true;
    combo.sort_and_search().put_SortOrder(77);
    EXPECT_EQ(combo.sort_and_search().SortOrder(), 77);
    EXPECT_FALSE(combo.state().mbListDirty);
}

TEST(SortColumn, SortsByAnotherColumn) {
    Pairs combo{{u"a", u"2"}, {u"b", u"1"}};
    combo.sort_and_search().put_Sorted(true);
    combo.journal().take_all();
    combo.sort_and_search().put_SortColumn(2);
    EXPECT_EQ(combo.list_view.rows().sort_column(), 1);
    EXPECT_EQ(combo.list(0), u"b");
    EXPECT_TRUE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(SortColumn)"});
}

TEST(SortColumn, OutsideTheColumnsIsRefused) {
    Pairs combo{{u"a", u"2"}};
    for (const std::int16_t column : Integers{0, -1, 3}) {
        EXPECT_EQ(failure_of([&] { combo.sort_and_search().put_SortColumn(column); }),
                  (Failure{380, u"", u""}));
    }
    EXPECT_EQ(combo.sort_and_search().SortColumn(), 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(FindItem, WantsTheVeryText) {
    Pairs combo{{u"ABC", u""}, {u"abc", u""}};
    EXPECT_EQ(combo.find(u"abc"), 1);
    EXPECT_EQ(combo.find(u"ABC"), 0);
    EXPECT_EQ(combo.find(u"Abc"), -1);
}

TEST(FindItem, WantsTheWholeTextUnderBothOptions) {
    Pairs combo{{u"abc", u""}};
    EXPECT_EQ(combo.find(u"ab", 0, 1, vlPartialWord), -1);
    EXPECT_EQ(combo.find(u"abc", 0, 1, vlPartialWord), 0);
}

TEST(FindItem, TakesTheFirstElementOfAnArray) {
    Pairs combo{{u"y", u""}, {u"x", u""}};
    EXPECT_EQ(combo.find(TestVariant::array({u"x", u"y"})), 1);
    EXPECT_EQ(combo.find(TestVariant::array({{5, 6}}, {u"x", u"y"})), 1);
}

TEST(FindItem, StartsAtAPositionAndAnswersAnIndex) {
    Pairs combo{{u"x", u""}, {u"x", u""}, {u"y", u""}};
    EXPECT_EQ(combo.find(u"x", 0, 1), 0);
    EXPECT_EQ(combo.find(u"x", 0, 2), 1);
    EXPECT_EQ(combo.find(u"x", 0, 3), -1);
}

TEST(FindItem, LooksAtTheColumnAskedFor) {
    Pairs combo{{u"x", u"1"}, {u"y", u"x"}};
    EXPECT_EQ(combo.find(u"x", 2), 1);
    EXPECT_EQ(combo.find(u"x", 1), 0);
    combo.selection().put_TextColumn(2);
    EXPECT_EQ(combo.find(u"x", 0), 1);
}

TEST(FindItem, PassesOverOtherColumnsThatMatch) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(TestVariant::array({u"a", u"b", u"x"}));
    combo.add(TestVariant::array({u"a", u"x", u"b"}));
    EXPECT_EQ(combo.sort_and_search().FindItem(TestVariant(u"x"), 2, 1, vlWholeWord), 1);
}

TEST(FindItem, OverAllColumnsTakesTheListsFirstAnswer) {
    Pairs combo{{u"a", u"ABC"}, {u"Abc", u"1"}};
    EXPECT_EQ(combo.find(u"abc", -1), 1);
    EXPECT_EQ(combo.find(u"ab", -1, 1, vlPartialWord), 1);
    EXPECT_EQ(combo.find(u"1", -1), 1);
    EXPECT_EQ(combo.find(u"none", -1), -1);
}

TEST(FindItem, SortsFirstAndKeepsTheMark) {
    Pairs combo{{u"b", u""}};
    combo.sort_and_search().put_Sorted(true);
    combo.add(u"a");
    EXPECT_EQ(combo.find(u"a"), 0);
    EXPECT_TRUE(combo.state().mbListDirty);
}

TEST(FindItem, NamesItselfInErrors) {
    Pairs combo{{u"a", u""}};
    for (const std::int32_t start :
         {0, -1, 2, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(failure_of([&] { combo.find(u"a", 0, start); }),
                  find_item_failure(35600, u"Index out of bounds"))
            << start;
    }
    EXPECT_EQ(failure_of([&] { combo.find(Null{}); }), find_item_failure(94, u"Invalid use of Null"));
    EXPECT_EQ(failure_of([&] { combo.find(TestVariant::array({}, {})); }),
              find_item_failure(9, u"Subscript out of range"));
}

TEST(FindItem, FailsOnACandidateWithoutTheColumn) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(TestVariant::array({u"a", u"x"}));
    EXPECT_EQ(failure_of([&] { combo.sort_and_search().FindItem(TestVariant(u"x"), 3, 1, vlWholeWord); }),
              find_item_failure(35600, u"Index out of bounds"));
}

} // namespace vellora::test
