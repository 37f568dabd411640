// Columns as wide as their contents, at each opening or once. A character is 6 pixels, a cell 12 more, a
// pixel 15 twips.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

/// Three columns of 1, 4 and 2 characters under captions of 6, 1 and 3.
struct ThreeColumns : HeadlessControl {
    ThreeColumns() {
        columns().put_Columns(3);
        columns().put_ColumnHeader(1, u"Number");
        columns().put_ColumnHeader(2, u"N");
        columns().put_ColumnHeader(3, u"Age");
        add(TestVariant::array({u"1", u"Anna", u"30"}));
        add(TestVariant::array({u"2", u"Bo", u"7"}));
        journal().take_all();
    }
    float width(std::int32_t column) { return list_view.header_width(column); }
};

} // namespace

TEST(AutoSize, IsStoredAsGivenAndReported) {
    HeadlessControl combo;
    for (const std::int32_t setting : {0, 1, 2, 5, -1, 2147483647}) {
        combo.auto_size().put_AutoSize(setting);
        EXPECT_EQ(combo.auto_size().AutoSize(), setting);
        EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(AutoSize)"});
    }
    combo.state().mbLoadingProperties = true;
    combo.auto_size().put_AutoSize(1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(AutoSizeNow, ByContentsSendsOneMessagePerColumn) {
    ThreeColumns combo;
    combo.auto_size().AutoSizeNow(1);
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"send list 0x101E 0 -1", "send list 0x101E 1 -1", "send list 0x101E 2 -1"}));
    EXPECT_EQ(combo.width(1), 18 * 15.0F);
    EXPECT_EQ(combo.width(2), 36 * 15.0F);
    EXPECT_EQ(combo.width(3), 24 * 15.0F);
}

TEST(AutoSizeNow, IncludingHeadersSizesTheLastColumnTwice) {
    ThreeColumns combo;
    combo.list_view.move({0, 0, 204 * 15.0F, 3000}); // 200 pixels between the borders
    combo.auto_size().AutoSizeNow(2);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"send list 0x101E 0 -2", "send list 0x101E 1 -2",
                                                 "send list 0x101E 2 -2", "send list 0x101E 2 -2"}));
    EXPECT_EQ(combo.width(1), 48 * 15.0F);
    EXPECT_EQ(combo.width(2), 36 * 15.0F);
    EXPECT_EQ(combo.width(3), (200 - 48 - 36) * 15.0F);
}

TEST(AutoSizeNow, DoesNotChangeAutoSize) {
    ThreeColumns combo;
    combo.auto_size().AutoSizeNow(2);
    EXPECT_EQ(combo.auto_size().AutoSize(), 0);
}

TEST(AutoSizeNow, WithAnotherSettingSizesNothing) {
    ThreeColumns combo;
    for (const std::int32_t setting : {0, 3, 5, -1}) {
        combo.auto_size().AutoSizeNow(setting);
    }
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(AutoSizeNow, SizesNothingWithoutAWindow) {
    ThreeColumns combo;
    combo.user32.without_rect = combo.surface.window();
    combo.auto_size().AutoSizeNow(1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(AutoSizeNow, ShowsAHiddenColumnUntilTheNextOpening) {
    ThreeColumns combo;
    combo.columns().put_ColumnHidden(2, true);
    combo.auto_size().AutoSizeNow(1);
    EXPECT_EQ(combo.width(2), 36 * 15.0F);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.width(2), 0.0F);
}

TEST(AutoSizeNow, SizesLockedColumnsToo) {
    ThreeColumns combo;
    combo.columns().put_ColumnLocked(1, true);
    combo.auto_size().AutoSizeNow(1);
    EXPECT_EQ(combo.width(1), 18 * 15.0F);
}

TEST(AutoSize, ByContentsAtAnOpeningKeepsHiddenColumnsHidden) {
    ThreeColumns combo;
    combo.columns().put_ColumnHidden(2, true);
    combo.auto_size().put_AutoSize(1);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.width(1), 18 * 15.0F);
    EXPECT_EQ(combo.width(2), 0.0F);
    EXPECT_EQ(combo.width(3), 24 * 15.0F);
}

TEST(AutoSize, IncludingHeadersAtAnOpeningFillsTheList) {
    ThreeColumns combo;
    combo.surface.resize(3015, 315); // the drop-down is a pixel narrower: 200 pixels, 196 between the borders
    combo.auto_size().put_AutoSize(2);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.width(1), 48 * 15.0F);
    EXPECT_EQ(combo.width(2), 36 * 15.0F);
    EXPECT_EQ(combo.width(3), (196 - 48 - 36) * 15.0F);
}

TEST(AutoSize, OfNoneOrAnythingElseLeavesTheWidthsAtAnOpening) {
    for (const std::int32_t setting : {0, 5}) {
        ThreeColumns combo;
        combo.columns().put_ColumnWidth(2, 615);
        combo.auto_size().put_AutoSize(setting);
        combo.drop_down().ShowList();
        EXPECT_EQ(combo.width(2), 615.0F) << setting;
    }
}

} // namespace vellora::test
