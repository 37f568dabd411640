// Rows: adding, counting, removing, clearing, and the number each row carries.
#include "com/support/host_test.h"

namespace vellora::test {
namespace {

using ItemStore = MemberTest;
VELLORA_BOTH_WAYS(ItemStore);

TEST_P(ItemStore, NewControlHasNoRows) {
    EXPECT_EQ(0, c().list_count());
    EXPECT_EQ(-1, c().new_index());
    EXPECT_EQ(-1, c().list_index());
}

TEST_P(ItemStore, AddItemAppendsAndInserts) {
    c().add_item(L"a");
    EXPECT_EQ(1, c().list_count());
    EXPECT_EQ(0, c().new_index());
    c().add_item(L"b", short{0});
    EXPECT_EQ(0, c().new_index());
    EXPECT_EQ("\"b\"", c().list(0).describe());
    EXPECT_EQ("\"a\"", c().list(1).describe());
    c().add_item(L"c", short{2});
    EXPECT_EQ(2, c().new_index());
    c().add_item(L"d", short{-1});
    EXPECT_EQ("\"d\"", c().list(3).describe());
}

TEST_P(ItemStore, AddItemRefusesPositionsTheListDoesNotHave) {
    add({L"a"});
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().add_item(L"x", short{2}); }));
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().add_item(L"x", short{-2}); }));
    EXPECT_EQ(overflow(), failure_text([&] { c().add_item(L"x", short{32767}); }));
    EXPECT_EQ(1, c().list_count());
    EXPECT_EQ(0, c().new_index());
}

TEST_P(ItemStore, AddItemConvertsScalarsToText) {
    c().add_item(5);
    c().add_item(short{-7});
    c().add_item(2.5);
    c().add_item(true);
    c().add_item(Variant());
    c().add_item(L"");
    EXPECT_EQ("\"5\"", c().list(0).describe());
    EXPECT_EQ("\"-7\"", c().list(1).describe());
    EXPECT_EQ("\"2.5\"", c().list(2).describe());
    EXPECT_EQ("\"True\"", c().list(3).describe());
    EXPECT_EQ("\"\"", c().list(4).describe());
    EXPECT_EQ("\"\"", c().list(5).describe());
}

TEST_P(ItemStore, AddItemWithNullRaisesAndLeavesAnEmptyRow) {
    EXPECT_EQ(run_time_error(94, "Invalid use of Null"),
              failure_text([&] { c().add_item(Variant::null()); }));
    EXPECT_EQ(1, c().list_count());
    EXPECT_EQ("\"\"", c().list(0).describe());
    EXPECT_EQ(-1, c().new_index());
}

TEST_P(ItemStore, AddItemTakesAnArrayAsOneRow) {
    c().set_columns(2);
    c().add_item(text_array({L"a", L"b", L"c", L"d"}));
    EXPECT_EQ("String(0 To 1) {\"a\", \"b\"}", c().list(0, short{-2}).describe());
    c().add_item(variant_array({7, L"seven"}));
    EXPECT_EQ("String(0 To 1) {\"7\", \"seven\"}", c().list(1, short{-2}).describe());
    c().add_item(long_array({3, 4}));
    EXPECT_EQ("String(0 To 1) {\"3\", \"4\"}", c().list(2, short{-2}).describe());
}

TEST_P(ItemStore, ShortArrayLeavesTheRowWithFewerColumns) {
    c().set_columns(5);
    c().add_item(text_array({L"a", L"b", L"c", L"d"}));
    EXPECT_EQ("\"d\"", c().list(0, short{4}).describe());
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(0, short{5}); }));
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(0, short{-2}); }));
}

TEST_P(ItemStore, AddItemReadsElementZeroWhateverTheLowerBound) {
    c().set_columns(3);
    c().add_item(text_array({L"minus one", L"zero", L"one"}, -1));
    EXPECT_EQ("\"zero\"", c().list(0, short{1}).describe());
    EXPECT_EQ("\"one\"", c().list(0, short{2}).describe());
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(0, short{3}); }));
}

TEST_P(ItemStore, AddItemWithoutElementZeroRaisesNineAndKeepsTheRowItMade) {
    EXPECT_EQ(bad_subscript(), failure_text([&] { c().add_item(text_array({L"a", L"b"}, 1)); }));
    EXPECT_EQ(1, c().list_count());
    EXPECT_EQ(-1, c().new_index());
    EXPECT_EQ(bad_subscript(), failure_text([&] { c().add_item(text_array({})); }));
    EXPECT_EQ(bad_subscript(), failure_text([&] { c().add_item(text_table({{L"a", L"b"}})); }));
}

TEST_P(ItemStore, ScalarRowHasNoFurtherColumns) {
    c().set_columns(2);
    c().add_item(L"a");
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(0, short{2}); }));
}

TEST_P(ItemStore, RemoveItemMovesLaterRowsUp) {
    add({L"a", L"b", L"c"});
    c().remove_item(1);
    EXPECT_EQ(2, c().list_count());
    EXPECT_EQ("\"c\"", c().list(1).describe());
    EXPECT_EQ(-1, c().new_index());
}

TEST_P(ItemStore, RemoveItemOutsideTheListRaises381) {
    EXPECT_EQ(row_missing(), failure_text([&] { c().remove_item(0); }));
    add({L"a"});
    EXPECT_EQ(row_missing(), failure_text([&] { c().remove_item(1); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().remove_item(-1); }));
    EXPECT_EQ(1, c().list_count());
    EXPECT_EQ(0, c().new_index());
}

TEST_P(ItemStore, RemovingTheSelectedRowEmptiesTheTextAndSaysSo) {
    add({L"a", L"b"});
    c().set_list_index(1);
    events();
    c().remove_item(1);
    EXPECT_EQ(L"", c().text());
    EXPECT_TRUE(same_lines({"Change()"}, events()));
    EXPECT_EQ(-1, c().list_index());
}

TEST_P(ItemStore, RemovingAnotherRowKeepsTheText) {
    add({L"a", L"b"});
    c().set_list_index(1);
    events();
    c().remove_item(0);
    EXPECT_EQ(L"b", c().text());
    EXPECT_TRUE(same_lines({}, events()));
    EXPECT_EQ(0, c().list_index());
}

TEST_P(ItemStore, ClearKeepsColumnsAndEmptiesTheTextSilently) {
    c().set_columns(2);
    c().set_header(2, L"Second");
    add({L"a", L"b"});
    c().set_text(L"typed");
    events();
    c().clear();
    EXPECT_EQ(0, c().list_count());
    EXPECT_EQ(L"", c().text());
    EXPECT_EQ(2, c().columns());
    EXPECT_EQ(L"Second", c().header(2));
    EXPECT_TRUE(same_lines({}, events()));
    c().clear();
    EXPECT_EQ(0, c().list_count());
}

TEST_P(ItemStore, ClearAllLeavesOneBlankColumn) {
    c().set_columns(3);
    c().set_header(1, L"First");
    add({L"a"});
    c().set_text(L"typed");
    events();
    changed();
    c().clear_all();
    EXPECT_EQ(0, c().list_count());
    EXPECT_EQ(1, c().columns());
    EXPECT_EQ(L"", c().header(1));
    EXPECT_EQ(L"", c().text());
    EXPECT_TRUE(same_lines({}, events()));
    EXPECT_TRUE(same_lines({"Columns", "Text"}, changed()));
}

TEST_P(ItemStore, ItemDataIsANumberPerRow) {
    add({L"a", L"b"});
    EXPECT_EQ(0, c().item_data(0));
    c().set_item_data(0, 7);
    c().set_item_data(1, -2147483647L - 1);
    EXPECT_EQ(7, c().item_data(0));
    EXPECT_EQ(-2147483647L - 1, c().item_data(1));
    c().add_item(L"new", short{0});
    EXPECT_EQ(0, c().item_data(0));
    EXPECT_EQ(7, c().item_data(1));
}

TEST_P(ItemStore, ItemDataOutsideTheListRaises381) {
    add({L"a"});
    EXPECT_EQ(row_missing(), failure_text([&] { c().item_data(1); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().item_data(-1); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().set_item_data(1, 5); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().set_item_data(-1, 5); }));
}

TEST_P(ItemStore, SettingItemDataAndToolTipsIsAnnounced) {
    add({L"a"});
    changed();
    c().set_item_data(0, 1);
    c().set_show_item_tool_tips(true);
    EXPECT_TRUE(c().show_item_tool_tips());
    EXPECT_TRUE(same_lines({"ItemData", "ShowItemToolTips"}, changed()));
}

TEST_P(ItemStore, ReadingItemDataSettlesTheOrderOfASortedList) {
    c().set_sorted(true);
    add({L"b", L"a"});
    EXPECT_EQ("\"b\"", c().list(0).describe());
    EXPECT_EQ(1, c().new_index());
    c().set_item_data(1, 42);
    EXPECT_EQ(42, c().item_data(0));
    EXPECT_EQ("\"a\"", c().list(0).describe());
    EXPECT_EQ(0, c().new_index());
}

TEST_P(ItemStore, NewIndexFollowsItsRow) {
    add({L"a"});
    c().add_item(L"kept", short{0});
    EXPECT_EQ(0, c().new_index());
    c().remove_item(1);
    EXPECT_EQ(-1, c().new_index());
}

} // namespace
} // namespace vellora::test
