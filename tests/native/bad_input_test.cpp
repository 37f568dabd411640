// Input at and beyond every edge: it ends in an error a caller can read, or does what it says, and the
// control works afterwards.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vellora::test {

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

void expect_usable(HeadlessControl& combo) {
    combo.drop_down().HideList();
    combo.columns().put_Columns(2);
    combo.columns().put_Columns(1);
    combo.columns().put_ColumnWidth(1, 1500);
    combo.add(u"fine");
    combo.journal().take_all();
    combo.drop_down().ShowList();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
    EXPECT_EQ(combo.list(0), u"fine");
}

} // namespace

TEST(BadItems, RaiseTheHostsOwnErrors) {
    HeadlessControl combo;
    const std::vector<std::pair<TestVariant, std::int32_t>> items{
        {Null{}, 94},
        {ErrorValue{}, 13},
        {Object{}, 13},
        {TestVariant::array({Null{}}), 94},
        {TestVariant::array({Object{}}), 13},
        {TestVariant::array({ErrorValue{}}), 13},
        {TestVariant::array({}, {}), 9},
        {TestVariant::array({{1, 3}}, {u"a", u"b", u"c"}), 9},
        {TestVariant::array({{0, 1}, {0, 1}}, {u"a", u"b", u"c", u"d"}), 9},
        {TestVariant::array({{0, 0}, {0, 0}, {0, 0}}, {u"a"}), 9},
    };
    for (const auto& [item, number] : items) {
        EXPECT_EQ(failure_of([&, &variant = item] { combo.add(variant); }).number, number);
    }
    EXPECT_EQ(combo.items().NewIndex(), -1);
    expect_usable(combo);
}

TEST(BadItems, InALaterColumnKeepTheCellsBefore) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    EXPECT_EQ(failure_of([&] { combo.add(TestVariant::array({u"a", u"b", Null{}})); }).number, 94);
    EXPECT_EQ(combo.list(0, 1), u"a");
    EXPECT_EQ(combo.list(0, 2), u"b");
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 1);
}

TEST(BadItems, ElementsBeyondTheColumnsAreNotEvenRead) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.add(TestVariant::array({u"a", Null{}})); }), no_failure);
    EXPECT_EQ(combo.list(0), u"a");
}

TEST(BadItems, MayHoldZeroUnitsAndLoneSurrogates) {
    HeadlessControl combo;
    const std::u16string odd{u'a', 0, u'b', 0xD800};
    combo.add(odd);
    EXPECT_EQ(combo.list(0), odd);
    combo.selection().put_ListIndex(0);
    EXPECT_EQ(combo.object().Text(), u"a"); // a text field ends at the first zero
}

TEST(BadItems, MayBeVeryLong) {
    HeadlessControl combo;
    const std::u16string text(1'000'000, u'x');
    combo.add(text);
    combo.selection().put_ListIndex(0);
    EXPECT_EQ(combo.object().Text().size(), text.size());
}

TEST(BadTables, OfThreeDimensionsAreASubscriptOutOfRange) {
    HeadlessControl combo;
    const TestVariant cube = TestVariant::array({{0, 0}, {0, 0}, {0, 0}}, {u"a"});
    EXPECT_EQ(failure_of([&] { combo.write(0, -3, cube); }).number, 9);
    EXPECT_EQ(failure_of([&] { combo.write(0, -1, cube); }).number, 9);
    expect_usable(combo);
}

TEST(BadTables, WithoutElementsWriteNothing) {
    HeadlessControl combo;
    combo.add(u"a");
    combo.write(0, -3, TestVariant::array({{0, -1}}, {}));
    combo.write(0, -3, TestVariant::array({{0, -1}, {0, 3}}, {}));
    EXPECT_EQ(combo.list(0), u"a");
    EXPECT_EQ(combo.items().ListCount(), 1);
}

TEST(BadTables, AtTheEndOfAllIndexesDoNotRunRoundAgain) {
    HeadlessControl combo;
    combo.write(0, -3, TestVariant::array({{largest, largest}}, {u"x"}));
    EXPECT_EQ(combo.items().ListCount(), 2);
    combo.write(0, -3, TestVariant::array({{0, 0}, {largest - 1, largest}}, {u"p", u"q"}));
    EXPECT_EQ(combo.list_view.rows().text(0, 0), u"p");
    EXPECT_EQ(combo.list_view.rows().text(0, 1), u"q");
    EXPECT_EQ(failure_of([&] {
                  combo.write(0, -3, TestVariant::array({{smallest, smallest}}, {u"x"}));
              }).number,
              35600);
}

TEST(BadRows, EndInAnErrorInEveryMember) {
    HeadlessControl combo;
    combo.add(u"a");
    for (const std::int16_t row : Integers{-32768, -2, -1, 1, 2, 32767}) {
        EXPECT_EQ(failure_of([&] { combo.items().List(row, -1); }).number, 381) << row;
        EXPECT_EQ(failure_of([&] { combo.items().RemoveItem(row); }).number, 381) << row;
        EXPECT_EQ(failure_of([&] { combo.items().ItemData(row); }).number, 381) << row;
        EXPECT_EQ(failure_of([&] { combo.items().put_ItemData(row, 1); }).number, 381) << row;
        EXPECT_EQ(failure_of([&] { combo.check_boxes().Checked(row); }).number, 35600) << row;
        EXPECT_EQ(failure_of([&] { combo.check_boxes().put_Checked(row, true); }).number, 35600) << row;
    }
    EXPECT_EQ(combo.items().ListCount(), 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(BadColumns, EndInAnErrorInEveryMember) {
    HeadlessControl combo;
    combo.columns().put_Columns(50);
    for (const std::int16_t column : Integers{-32768, -1, 0, 51, 32767}) {
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnHeader(column); }).number, -2147219984) << column;
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnWidth(column); }).number, 9) << column;
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(column, 1); }).number, -2147219983)
            << column;
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnHidden(column); }).number, 9) << column;
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnLocked(column); }).number, 9) << column;
        EXPECT_EQ(failure_of([&] { combo.selection().put_TextColumn(column); }).number, 380) << column;
        EXPECT_EQ(failure_of([&] { combo.sort_and_search().put_SortColumn(column); }).number, 380) << column;
    }
    expect_usable(combo);
}

TEST(BadWidths, OfColumnsAreRefused) {
    HeadlessControl combo;
    combo.columns().put_Columns(1);
    for (const float width : {-2.0F, -0.5F, -infinity, not_a_number}) {
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(1, width); }).number, 380) << width;
    }
    for (const float width : {0.0F, 1e30F, infinity}) {
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(1, width); }), no_failure) << width;
        combo.drop_down().ShowList();
        combo.drop_down().HideList();
    }
    expect_usable(combo);
}

TEST(BadSizes, OfTheDropDownNeverLeaveItStuck) {
    for (const float offset : {1e9F, -1e9F, 1e30F, -1e30F, infinity, -infinity, not_a_number}) {
        HeadlessControl combo;
        for (const std::int32_t alignment : {0, 1, 2, largest, smallest}) {
            combo.placement().put_DropDownWidthOffset(offset);
            combo.placement().put_DropDownAlignment(alignment);
            failure_of([&] { combo.drop_down().ShowList(); });
            failure_of([&] { combo.drop_down().HideList(); });
        }
        combo.placement().put_DropDownWidthOffset(0);
        expect_usable(combo);
    }
}

TEST(BadSizes, OfTheDropDownsHeightCountForNothingInAShortList) {
    HeadlessControl combo;
    combo.add_rows(3);
    for (const float rows : {1e9F, 1e30F, infinity}) {
        combo.placement().put_DropDownHeight(rows);
        EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }), no_failure) << rows;
        combo.drop_down().HideList();
    }
    expect_usable(combo);
}

TEST(BadSizes, OfTheDropDownsHeightOverflowTheScrollTarget) {
    HeadlessControl combo;
    combo.add_rows(3);
    combo.placement().put_DropDownHeight(1e10F);
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(1); }).number, 6);
    EXPECT_FALSE(combo.state().mbIgnoreChange);
    combo.placement().put_DropDownHeight(8);
    combo.selection().put_ListIndex(2);
    EXPECT_EQ(combo.object().Text(), u"row 2");
}

TEST(BadSizes, OfTheControlAreLaidOutAllTheSame) {
    HeadlessControl combo;
    for (const float width : {0.0F, 1.0F, 100.0F, 1e7F}) {
        EXPECT_EQ(failure_of([&] { combo.surface.resize(width, 0); }), no_failure) << width;
        EXPECT_FALSE(combo.state().mbInResize);
        EXPECT_EQ(combo.surface.height(), 315.0F);
    }
}

TEST(BadEnumerations, AreKeptAndActAsTheirDefaults) {
    HeadlessControl combo;
    combo.add_rows(2);
    for (const std::int32_t value : {2, 99, -1, largest, smallest}) {
        combo.auto_size().put_AutoSize(value == 2 ? 3 : value);
        combo.sort_and_search().put_SortOrder(value);
        EXPECT_EQ(combo.sort_and_search().SortOrder(), value);
        combo.state().mlButtonStyle = value;
        combo.user32.hit_item = -1;
        combo.journal().take_all();
        combo.drop_down().ShowList();
        combo.drop_down().HideList();
        EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"})) << value;
    }
}

TEST(BadTexts, EndAtTheFirstZeroOfATextField) {
    HeadlessControl combo;
    combo.object().put_Text(std::u16string_view(u"ab\0cd", 5));
    EXPECT_EQ(combo.object().Text(), u"ab");
}

TEST(BadTexts, AsCaptionsStayWhole) {
    HeadlessControl combo;
    const std::u16string caption{u'a', 0, 0xDC00};
    combo.columns().put_ColumnHeader(1, caption);
    EXPECT_EQ(combo.columns().ColumnHeader(1), caption);
}

TEST(BadNames, OfTheHostAreNoTrouble) {
    HeadlessControl combo;
    combo.site.name = u"";
    EXPECT_EQ(failure_of([&] { combo.columns().put_Columns(0); }).source, u"");
    combo.site.name = std::u16string(10'000, u'n');
    EXPECT_EQ(failure_of([&] { combo.columns().put_Columns(0); }).source.size(), 10'000U);
}

TEST(ManyRows, BeyondAnIntegersReachAreCountedAndFoundByPosition) {
    HeadlessControl combo;
    combo.write(32767, -1, u"last");
    EXPECT_EQ(combo.items().ListCount(), 32768);
    combo.add(u"beyond");
    EXPECT_EQ(combo.items().ListCount(), 32769);
    EXPECT_EQ(combo.items().NewIndex(), 32768);
    EXPECT_EQ(combo.list(32767), u"last");
    combo.selection().put_ListIndex(32768);
    EXPECT_EQ(combo.selection().ListIndex(), 32768);
    EXPECT_EQ(combo.object().Text(), u"beyond");
}

} // namespace vellora::test
