// Columns that take the width of what they hold.
#include "com/support/host_test.h"

#include <commctrl.h>

namespace vellora::test {
namespace {

// What others that watch the list see: one line for each request for a width.
Lines* watched_widths = nullptr;

LRESULT CALLBACK watch_widths(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                              DWORD_PTR) noexcept {
    if (message == LVM_SETCOLUMNWIDTH && watched_widths)
        watched_widths->push_back(std::to_string(wparam) + ": " +
                                  std::to_string(static_cast<short>(LOWORD(lparam))));
    return DefSubclassProc(window, message, wparam, lparam);
}

class AutoSize : public MemberTest {
protected:
    void SetUp() override {
        MemberTest::SetUp();
        c().set_columns(3);
        c().add_item(text_array({L"short", L"a far longer text than the others are", L"x"}));
        c().add_item(text_array({L"a", L"b", L"c"}));
        changed();
    }
    Lines widths_asked(long mode) {
        Lines asked;
        HWND list = list_of(c().window());
        watched_widths = &asked;
        SetWindowSubclass(list, watch_widths, 1, 0);
        c().auto_size_now(mode);
        RemoveWindowSubclass(list, watch_widths, 1);
        watched_widths = nullptr;
        return asked;
    }
};
VELLORA_BOTH_WAYS(AutoSize);

TEST_P(AutoSize, AnyModeIsStoredAndAnnounced) {
    EXPECT_EQ(0, c().auto_size());
    for (long mode : {1L, 2L, 5L, -7L, 0L}) {
        c().set_auto_size(mode);
        EXPECT_EQ(mode, c().auto_size());
        EXPECT_TRUE(same_lines({"AutoSize"}, changed()));
    }
}

TEST_P(AutoSize, NowSendsOneRequestPerColumn) {
    EXPECT_TRUE(same_lines({"0: -1", "1: -1", "2: -1"}, widths_asked(1)));
}

TEST_P(AutoSize, WithHeadersTheLastColumnIsAskedTwice) {
    EXPECT_TRUE(same_lines({"0: -2", "1: -2", "2: -2", "2: -2"}, widths_asked(2)));
}

TEST_P(AutoSize, OtherModesSizeNothing) {
    for (long mode : {0L, 3L, 5L, -1L})
        EXPECT_TRUE(same_lines({}, widths_asked(mode))) << mode;
    EXPECT_EQ(0, c().auto_size());
    EXPECT_TRUE(same_lines({}, changed()));
}

TEST_P(AutoSize, ContentsDecideTheWidths) {
    c().auto_size_now(1);
    EXPECT_GT(c().width(2), 3 * c().width(1));
    EXPECT_GT(c().width(1), c().width(3));
    EXPECT_GT(c().width(3), 0.0F);
}

TEST_P(AutoSize, HeadersCountWhenTheyAreIncluded) {
    c().set_header(1, L"a caption that is much longer than its column's texts");
    c().auto_size_now(1);
    const float contents = c().width(1);
    c().auto_size_now(2);
    EXPECT_GT(c().width(1), 3 * contents);
}

TEST_P(AutoSize, NowShowsAHiddenColumnUntilTheListOpensAgain) {
    c().set_hidden(2, true);
    c().set_width(2, 0);
    c().auto_size_now(1);
    EXPECT_GT(c().width(2), 0.0F);
    EXPECT_TRUE(c().hidden(2));
    c().show_list();
    EXPECT_FLOAT_EQ(0, c().width(2));
    c().hide_list();
}

TEST_P(AutoSize, OpeningSizesTheColumnsAndKeepsHiddenOnesAway) {
    c().set_width(1, 100);
    c().set_width(2, 100);
    c().set_hidden(3, true);
    c().set_auto_size(1);
    c().show_list();
    EXPECT_GT(c().width(2), 3 * c().width(1));
    EXPECT_FLOAT_EQ(0, c().width(3));
    c().hide_list();
}

TEST_P(AutoSize, WithoutItOpeningLeavesTheWidths) {
    c().set_width(1, 900);
    c().set_auto_size(5);
    c().show_list();
    EXPECT_FLOAT_EQ(900, c().width(1));
    c().hide_list();
}

} // namespace
} // namespace vellora::test
