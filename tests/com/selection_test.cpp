// The selected row and the column whose text it puts into the text field.
#include "com/support/host_test.h"

#include <commctrl.h>

namespace vellora::test {
namespace {

class Selection : public MemberTest {
protected:
    void SetUp() override {
        MemberTest::SetUp();
        c().set_columns(2);
        c().add_item(text_array({L"a", L"one"}));
        c().add_item(text_array({L"b", L"two"}));
        c().add_item(text_array({L"c", L"three"}));
        events();
        changed();
    }
};
VELLORA_BOTH_WAYS(Selection);

TEST_P(Selection, ChoosingARowShowsItsTextAndClicksOnce) {
    c().set_list_index(1);
    EXPECT_EQ(1, c().list_index());
    EXPECT_EQ(L"b", c().text());
    EXPECT_TRUE(same_lines({"Click()"}, events()));
    EXPECT_TRUE(same_lines({"ListIndex", "Text"}, changed()));
}

TEST_P(Selection, TheTextIsInPlaceWhenClickComes) {
    std::wstring seen;
    site().events().on("Click", [&](EventArguments&) { seen = c().text(); });
    c().set_list_index(2);
    EXPECT_EQ(L"c", seen);
}

TEST_P(Selection, ChoosingTheSameRowAgainDoesNothing) {
    c().set_list_index(1);
    c().set_text(L"typed");
    events();
    changed();
    c().set_list_index(1);
    EXPECT_EQ(L"typed", c().text());
    EXPECT_TRUE(same_lines({}, events()));
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(Selection, MinusOneDeselectsWithoutAClick) {
    c().set_list_index(1);
    events();
    changed();
    c().set_list_index(-1);
    EXPECT_EQ(-1, c().list_index());
    EXPECT_EQ(L"", c().text());
    EXPECT_TRUE(same_lines({}, events()));
    EXPECT_TRUE(same_lines({"ListIndex"}, changed()));
}

TEST_P(Selection, RowsOutsideTheListRaise381) {
    for (long row : {-2L, 3L, 2147483647L, -2147483647L - 1})
        EXPECT_EQ(row_missing(), failure_text([&] { c().set_list_index(row); })) << row;
    EXPECT_EQ(-1, c().list_index());
    EXPECT_EQ(L"Vellora1", c().text());
    EXPECT_TRUE(same_lines({}, events()));
}

TEST_P(Selection, TextColumnDecidesWhatIsShownFromTheNextSelectionOn) {
    c().set_list_index(0);
    c().set_text_column(2);
    EXPECT_EQ(2, c().text_column());
    EXPECT_EQ(L"a", c().text());
    c().set_list_index(1);
    EXPECT_EQ(L"two", c().text());
}

TEST_P(Selection, TextColumnOutsideTheColumnsRaises380) {
    for (short column : {short{0}, short{-1}, short{3}, short{32767}})
        EXPECT_EQ(bad_value(), failure_text([&] { c().set_text_column(column); })) << column;
    EXPECT_EQ(1, c().text_column());
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(Selection, TextColumnIsAnnounced) {
    c().set_text_column(2);
    EXPECT_TRUE(same_lines({"TextColumn"}, changed()));
}

TEST_P(Selection, SelectionMadeInTheListIsReadBack) {
    HWND list = list_of(c().window());
    ASSERT_NE(nullptr, list);
    LVITEMW item{};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, 2, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(2, c().list_index());
    EXPECT_EQ(L"Vellora1", c().text());
    EXPECT_TRUE(same_lines({}, events()));
}

TEST_P(Selection, DesignersMayNotSelect) {
    Site& designed = design(L"Designed");
    use(designed);
    add({L"a"});
    EXPECT_EQ(run_time_error(387, "Property Set not permitted"),
              failure_text([&] { c().set_list_index(0); }));
    EXPECT_EQ(run_time_error(387, "Property Set not permitted"),
              failure_text([&] { c().set_list_index(7); }));
    EXPECT_EQ(-1, c().list_index());
}

TEST_P(Selection, SelectingFromInsideClickIsAllowed) {
    bool first = true;
    site().events().on("Click", [&](EventArguments&) {
        if (std::exchange(first, false))
            c().set_list_index(0);
    });
    c().set_list_index(2);
    EXPECT_EQ(0, c().list_index());
    EXPECT_EQ(L"a", c().text());
    EXPECT_TRUE(same_lines({"Click()", "Click()"}, events()));
}

TEST_P(Selection, SelectingARowThatLacksTheTextColumnFailsWithTheListsError) {
    c().add_item(L"short");
    c().set_text_column(2);
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().set_list_index(3); }));
}

TEST_P(Selection, ChangingColumnsDropsRowsAndSelection) {
    c().set_list_index(1);
    c().set_columns(3);
    EXPECT_EQ(0, c().list_count());
    EXPECT_EQ(-1, c().list_index());
    EXPECT_EQ(L"b", c().text());
}

} // namespace
} // namespace vellora::test
