// The columns: how many, their captions, widths, hidden and locked flags, and the row of headers.
#include "com/support/host_test.h"

#include <commctrl.h>

namespace vellora::test {
namespace {

class ColumnSet : public MemberTest {
protected:
    void SetUp() override {
        MemberTest::SetUp();
        changed();
    }
    std::string bad_count() const {
        return control_error("Vellora1", -2147219983,
                             "Invalid Columns Value. Value must be between 1 and 50");
    }
    std::string bad_width_index() const {
        return control_error("Vellora1", -2147219983,
                             "Invalid Columns Value. Value must be between 1 and 10");
    }
    std::string bad_column() const {
        return control_error("Vellora1", -2147219984, "Invalid Column ColumnIndex");
    }
    float control_width() { return static_cast<float>(200 * twips_per_pixel().cx); }
};
VELLORA_BOTH_WAYS(ColumnSet);

TEST_P(ColumnSet, CountIsOneToFifty) {
    EXPECT_EQ(1, c().columns());
    for (short count : {short{0}, short{-1}, short{51}, short{32767}, short{-32768}})
        EXPECT_EQ(bad_count(), failure_text([&] { c().set_columns(count); })) << count;
    EXPECT_EQ(1, c().columns());
    EXPECT_TRUE(same_lines({}, changed()));
    c().set_columns(50);
    EXPECT_EQ(50, c().columns());
    EXPECT_TRUE(same_lines({"Columns"}, changed()));
}

TEST_P(ColumnSet, TheFirstOneColumnBuildsTheHeaderAndReportsIt) {
    c().set_columns(1);
    EXPECT_TRUE(same_lines({"Columns"}, changed()));
    c().set_columns(1);
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(ColumnSet, TheSameCountKeepsTheRows) {
    c().set_columns(2);
    add({L"a"});
    changed();
    c().set_columns(2);
    EXPECT_EQ(1, c().list_count());
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(ColumnSet, AnotherCountRemovesTheRows) {
    c().set_columns(2);
    add({L"a"});
    c().set_columns(3);
    EXPECT_EQ(0, c().list_count());
    add({L"a"});
    c().set_columns(2);
    EXPECT_EQ(0, c().list_count());
}

TEST_P(ColumnSet, CaptionsBelongToTheColumnsThereAre) {
    c().set_columns(2);
    changed();
    c().set_header(2, L"Town");
    EXPECT_EQ(L"Town", c().header(2));
    EXPECT_EQ(L"", c().header(1));
    EXPECT_TRUE(same_lines({"ColumnHeader"}, changed()));
    for (short column : {short{0}, short{-1}, short{3}, short{51}}) {
        EXPECT_EQ(bad_column(), failure_text([&] { c().header(column); })) << column;
        EXPECT_EQ(bad_column(), failure_text([&] { c().set_header(column, L"x"); })) << column;
    }
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(ColumnSet, CaptionsShowInTheHeader) {
    c().set_columns(2);
    c().set_header(2, L"Town");
    HWND header = header_of(list_of(c().window()));
    ASSERT_NE(nullptr, header);
    wchar_t text[32] = L"";
    HDITEMW item{};
    item.mask = HDI_TEXT;
    item.pszText = text;
    item.cchTextMax = ARRAYSIZE(text);
    ASSERT_TRUE(SendMessageW(header, HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item)));
    EXPECT_STREQ(L"Town", item.pszText);
    EXPECT_EQ(2, SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
}

TEST_P(ColumnSet, RaisingTheCountBlanksEverythingAboveTheOldCount) {
    c().set_columns(5);
    c().set_header(3, L"Three");
    c().set_header(5, L"Five");
    c().set_columns(3);
    c().set_columns(5);
    EXPECT_EQ(L"Three", c().header(3));
    EXPECT_EQ(L"", c().header(5));
}

TEST_P(ColumnSet, RebuiltColumnsShareTheControlsWidth) {
    c().set_columns(4);
    EXPECT_FLOAT_EQ(control_width() / 4, c().width(1));
    EXPECT_FLOAT_EQ(control_width() / 4, c().width(4));
}

TEST_P(ColumnSet, WidthIsKeptInTwips) {
    c().set_columns(2);
    changed();
    c().set_width(2, 1500);
    EXPECT_FLOAT_EQ(1500, c().width(2));
    EXPECT_TRUE(same_lines({"ColumnWidth"}, changed()));
}

TEST_P(ColumnSet, ASetWidthSurvivesARebuild) {
    c().set_columns(2);
    c().set_width(1, 900);
    c().set_columns(3);
    EXPECT_FLOAT_EQ(900, c().width(1));
}

TEST_P(ColumnSet, AutomaticWidthIsTheTextFieldsLessAThumb) {
    c().set_columns(2);
    c().set_width(2, -1);
    RECT field = screen_rect(text_field(c().window()));
    const int factor = twips_per_pixel().cx;
    const float expected =
        static_cast<float>((field.right - field.left - GetSystemMetrics(SM_CXHTHUMB)) * factor) / 2;
    EXPECT_NEAR(expected, c().width(2), static_cast<float>(factor));
}

TEST_P(ColumnSet, ReadingAnAutomaticWidthMakesItTheColumnsOwn) {
    c().set_columns(2);
    const float shown = c().width(1);
    c().set_columns(4);
    EXPECT_FLOAT_EQ(shown, c().width(1));
    EXPECT_FLOAT_EQ(control_width() / 4, c().width(2));
}

TEST_P(ColumnSet, WidthsOutsideFiftyColumns) {
    for (short column : {short{0}, short{-1}, short{51}}) {
        EXPECT_EQ(bad_subscript(), failure_text([&] { c().width(column); })) << column;
        EXPECT_EQ(bad_width_index(), failure_text([&] { c().set_width(column, 100); })) << column;
    }
    c().set_columns(2);
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().width(3); }));
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().set_width(3, 100); }));
}

TEST_P(ColumnSet, HidingAColumnKeepsItsWidthForLater) {
    c().set_columns(2);
    c().set_width(2, 1500);
    changed();
    c().set_hidden(2, true);
    EXPECT_TRUE(c().hidden(2));
    EXPECT_FALSE(c().hidden(1));
    EXPECT_TRUE(same_lines({"ColumnHidden"}, changed()));
    c().set_hidden(2, false);
    EXPECT_FLOAT_EQ(1500, c().width(2));
}

TEST_P(ColumnSet, ShowingAColumnWithoutWidthGivesItAThousandTwips) {
    c().set_columns(2);
    c().set_width(2, 0);
    c().set_hidden(2, true);
    c().set_hidden(2, false);
    EXPECT_NEAR(1000, c().width(2), static_cast<float>(twips_per_pixel().cx));
}

TEST_P(ColumnSet, FlagsOutsideFiftyColumns) {
    for (short column : {short{0}, short{-3}, short{51}}) {
        EXPECT_EQ(bad_subscript(), failure_text([&] { c().hidden(column); })) << column;
        EXPECT_EQ(bad_subscript(), failure_text([&] { c().locked(column); })) << column;
        EXPECT_EQ(bad_count(), failure_text([&] { c().set_hidden(column, true); })) << column;
        EXPECT_EQ(bad_count(), failure_text([&] { c().set_locked(column, true); })) << column;
    }
    EXPECT_FALSE(c().hidden(50));
    EXPECT_FALSE(c().locked(50));
}

TEST_P(ColumnSet, LockingAColumnIsAnnouncedAndLeavesTheProgramFree) {
    c().set_columns(2);
    changed();
    c().set_locked(2, true);
    EXPECT_TRUE(c().locked(2));
    EXPECT_TRUE(same_lines({"ColumnLocked"}, changed()));
    c().set_width(2, 600);
    EXPECT_FLOAT_EQ(600, c().width(2));
    c().set_locked(50, true);
    EXPECT_TRUE(c().locked(50));
}

TEST_P(ColumnSet, DesignersCannotSetWidthsAndFlags) {
    use(design(L"Designed"));
    c().set_columns(2);
    changed();
    const float before = c().width(2);
    EXPECT_EQ("none", failure_text([&] { c().set_width(0, 100); }));
    EXPECT_EQ("none", failure_text([&] { c().set_width(2, 100); }));
    EXPECT_EQ("none", failure_text([&] { c().set_hidden(0, true); }));
    EXPECT_EQ("none", failure_text([&] { c().set_hidden(2, true); }));
    EXPECT_EQ("none", failure_text([&] { c().set_locked(99, true); }));
    EXPECT_EQ("none", failure_text([&] { c().set_locked(2, true); }));
    EXPECT_FLOAT_EQ(before, c().width(2));
    EXPECT_FALSE(c().hidden(2));
    EXPECT_FALSE(c().locked(2));
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(ColumnSet, DesignersMaySetCaptions) {
    use(design(L"Designed"));
    c().set_columns(2);
    c().set_header(1, L"One");
    EXPECT_EQ(L"One", c().header(1));
}

TEST_P(ColumnSet, HideColumnHeaders) {
    EXPECT_FALSE(c().hide_headers());
    c().set_hide_headers(true);
    EXPECT_TRUE(c().hide_headers());
    EXPECT_TRUE(same_lines({"HideColumnHeaders"}, changed()));
    HWND list = list_of(c().window());
    EXPECT_NE(0, GetWindowLongW(list, GWL_STYLE) & LVS_NOCOLUMNHEADER);
}

} // namespace
} // namespace vellora::test
