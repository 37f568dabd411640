// The three text boxes behind the text field: which one is live, and the settings they share.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

namespace vellora::test {

TEST(Alignment, ShowsOneTextBoxAndCarriesTheTextOver) {
    HeadlessControl combo;
    combo.object().put_Text(u"abc");
    combo.text_properties().put_Locked(true);
    combo.text_properties().put_SelStart(2);
    combo.journal().take_all();
    combo.text_properties().put_Alignment(1);
    EXPECT_FALSE(combo.text_box(0).visible());
    EXPECT_TRUE(combo.text_box(1).visible());
    EXPECT_FALSE(combo.text_box(2).visible());
    EXPECT_EQ(combo.object().Text(), u"abc");
    EXPECT_TRUE(combo.text_box(1).locked());
    EXPECT_EQ(combo.text_properties().SelStart(), 0);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Alignment)"});
}

TEST(Alignment, CarriesEnabledOver) {
    HeadlessControl combo;
    combo.appearance().put_Enabled(false);
    combo.text_properties().put_Alignment(2);
    EXPECT_FALSE(combo.text_box(2).enabled());
}

TEST(Alignment, SetToItsPresentValueChangesNothingButIsReported) {
    HeadlessControl combo;
    combo.text_properties().put_Alignment(0);
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Alignment)"});
}

TEST(Alignment, NeitherCompletesNorRaisesChange) {
    HeadlessControl combo;
    combo.add(u"abcdef");
    combo.object().put_Text(u"abc");
    combo.text_field().put_AutoComplete(true);
    combo.state().mbKeyTyped = true;
    combo.journal().take_all();
    combo.text_properties().put_Alignment(1);
    EXPECT_EQ(combo.object().Text(), u"abc");
    EXPECT_TRUE(combo.text_field().AutoComplete());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Alignment)"});
}

TEST(Alignment, LeavesFontAndColoursWhereTheyAre) {
    HeadlessControl combo;
    combo.appearance().put_BackColor(0x00FF00);
    combo.text_properties().put_Alignment(1);
    EXPECT_EQ(combo.text_box(1).back_color(), 0x80000005U);
    EXPECT_EQ(combo.text_box(1).font(), nullptr);
}

TEST(Alignment, ThatDoesNotExistHidesAllAndFails) {
    for (const std::int32_t alignment : {3, -1}) {
        HeadlessControl combo;
        EXPECT_EQ(failure_of([&] { combo.text_properties().put_Alignment(alignment); }).number, 340);
        for (const std::size_t element : {0U, 1U, 2U}) {
            EXPECT_FALSE(combo.text_box(element).visible());
        }
        EXPECT_EQ(combo.text_properties().Alignment(), alignment);
        EXPECT_EQ(combo.journal().take_all(), Lines{});
    }
}

TEST(Alignment, TakesTheFocusAlongWithoutAnEvent) {
    HeadlessControl combo;
    combo.object().put_Text(u"abc");
    User(combo).click_text();
    for (const std::int32_t alignment : {1, 2, 0}) {
        combo.journal().take_all();
        combo.text_properties().put_Alignment(alignment);
        EXPECT_EQ(combo.journal().take_all(),
                  (Lines{"focus text " + std::to_string(alignment), "Changed(Alignment)"}));
        EXPECT_EQ(combo.text_properties().SelText(), u"abc");
    }
    User(combo).type(u"d");
    EXPECT_EQ(combo.object().Text(), u"d");
}

TEST(Alignment, LeavesTheFocusInTheOpenList) {
    HeadlessControl combo;
    combo.add(u"row");
    User(combo).click_text();
    combo.drop_down().ShowList();
    combo.journal().take_all();
    combo.text_properties().put_Alignment(1);
    EXPECT_EQ(combo.desktop().focus(), combo.list_view.window());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Alignment)"});
}

TEST(Alignment, ThatDoesNotExistCanBePutRight) {
    HeadlessControl combo;
    User(combo).click_text();
    failure_of([&] { combo.text_properties().put_Alignment(7); });
    EXPECT_EQ(failure_of([&] { combo.object().Text(); }).number, 340);
    EXPECT_EQ(failure_of([&] { combo.text_properties().put_SelStart(0); }).number, 340);
    combo.text_properties().put_Alignment(0);
    EXPECT_TRUE(combo.text_box(0).visible());
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    User(combo).click_text();
    User(combo).type(u"x");
    EXPECT_EQ(combo.object().Text(), u"x");
}

TEST(MaxLength, HoldsForAllThree) {
    HeadlessControl combo;
    combo.text_properties().put_MaxLength(5);
    for (const std::size_t element : {0U, 1U, 2U}) {
        EXPECT_EQ(combo.text_box(element).max_length(), 5);
    }
    combo.object().put_Text(u"1234567");
    EXPECT_EQ(combo.object().Text(), u"12345");
    EXPECT_EQ(combo.text_properties().MaxLength(), 5);
}

TEST(MaxLength, OfZeroIsNoLimit) {
    HeadlessControl combo;
    combo.text_properties().put_MaxLength(2);
    combo.text_properties().put_MaxLength(0);
    combo.object().put_Text(std::u16string(100'000, u'x'));
    EXPECT_EQ(combo.object().Text().size(), 100'000U);
}

TEST(MaxLength, BelowZeroIsKeptAndRefusedByTheTextBoxes) {
    HeadlessControl combo;
    combo.text_properties().put_MaxLength(3);
    EXPECT_EQ(failure_of([&] { combo.text_properties().put_MaxLength(-5); }).number, 380);
    EXPECT_EQ(combo.text_properties().MaxLength(), -5);
    combo.object().put_Text(u"abcdef");
    EXPECT_EQ(combo.object().Text(), u"abc");
}

TEST(MaxLength, CutsNoCharacterInTwo) {
    HeadlessControl combo;
    combo.text_properties().put_MaxLength(2);
    combo.object().put_Text(u"a\U0001F600");
    EXPECT_EQ(combo.object().Text(), u"a");
    combo.text_properties().put_SelText(u"\U0001F600");
    EXPECT_EQ(combo.object().Text(), u"a");
}

TEST(Margins, GoToAllThreeTextBoxes) {
    HeadlessControl combo;
    combo.text_properties().put_LeftMargin(7);
    combo.text_properties().put_RightMargin(9);
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"send text 0 0x00D3 1 7", "send text 1 0x00D3 1 7", "send text 2 0x00D3 1 7",
                     "Changed(LeftMargin)", "send text 0 0x00D3 2 589824", "send text 1 0x00D3 2 589824",
                     "send text 2 0x00D3 2 589824", "Changed(RightMargin)"}));
    EXPECT_EQ(combo.text_box(2).left_margin, 7);
    EXPECT_EQ(combo.text_box(2).right_margin, 9);
    EXPECT_EQ(combo.text_properties().LeftMargin(), 7);
    EXPECT_EQ(combo.text_properties().RightMargin(), 9);
}

TEST(Margins, LeftMayBeTheFontsOwn) {
    HeadlessControl combo;
    combo.text_properties().put_LeftMargin(65535);
    EXPECT_EQ(combo.text_box(0).left_margin, 65535);
}

TEST(Margins, RightOverflowsFrom32768OnAfterItIsStored) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.text_properties().put_RightMargin(32767); }), no_failure);
    combo.journal().take_all();
    for (const std::int32_t pixels : {32768, 40000}) {
        EXPECT_EQ(failure_of([&] { combo.text_properties().put_RightMargin(pixels); }),
                  (Failure{6, u"", u""}));
        EXPECT_EQ(combo.text_properties().RightMargin(), pixels);
    }
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Locked, GoesToTheLiveTextBox) {
    HeadlessControl combo;
    combo.text_properties().put_Locked(true);
    EXPECT_TRUE(combo.text_properties().Locked());
    EXPECT_TRUE(combo.text_box(0).locked());
    EXPECT_FALSE(combo.text_box(1).locked());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Locked)"});
}

TEST(TextSelection, IsTheLiveTextBoxes) {
    HeadlessControl combo;
    combo.object().put_Text(u"abcdef");
    combo.journal().take_all();
    combo.text_properties().put_SelStart(2);
    combo.text_properties().put_SelLength(3);
    EXPECT_EQ(combo.text_properties().SelText(), u"cde");
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(SelStart)", "Changed(SelLength)"}));
    combo.text_properties().put_SelText(u"X");
    EXPECT_EQ(combo.object().Text(), u"abXf");
    EXPECT_EQ(combo.text_properties().SelStart(), 3);
    EXPECT_EQ(combo.text_properties().SelLength(), 0);
    // The change of the text is reported on its way, the property itself at the end.
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(Text)", "Change", "Changed(SelText)"}));
}

TEST(TextSelection, BelowZeroIsTheTextBoxesToRefuse) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.text_properties().put_SelStart(-1); }).number, 380);
    EXPECT_EQ(failure_of([&] { combo.text_properties().put_SelLength(-1); }).number, 380);
    EXPECT_EQ(failure_of([&] { combo.text_properties().put_MaxLength(-1); }).number, 380);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(TextSettings, ReportNothingWhileLoading) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.text_properties().put_Alignment(1);
    combo.text_properties().put_MaxLength(5);
    combo.text_properties().put_Locked(true);
    combo.text_properties().put_LeftMargin(1);
    combo.text_properties().put_RightMargin(1);
    combo.text_properties().put_SelStart(1);
    combo.text_properties().put_SelLength(1);
    EXPECT_EQ(combo.journal().take_notices(), Lines{});
}

} // namespace vellora::test
