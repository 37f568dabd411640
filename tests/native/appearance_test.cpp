// How the closed control and its list look.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

TEST(Enabled, AtRunTimeReachesFieldButtonsAndSurface) {
    HeadlessControl combo;
    combo.appearance().put_Enabled(false);
    EXPECT_FALSE(combo.appearance().Enabled());
    EXPECT_FALSE(combo.text_box(0).enabled());
    EXPECT_FALSE(combo.button(0).enabled());
    EXPECT_FALSE(combo.button(1).enabled());
    EXPECT_FALSE(combo.surface.enabled);
    EXPECT_TRUE(combo.text_box(1).enabled());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Enabled)"});
}

TEST(Enabled, InADesignerReachesOnlyTheField) {
    HeadlessControl combo(Mode::design);
    combo.appearance().put_Enabled(false);
    EXPECT_FALSE(combo.text_box(0).enabled());
    EXPECT_TRUE(combo.button(0).enabled());
    EXPECT_TRUE(combo.surface.enabled);
}

TEST(Font, IsTheSameObjectEverywhere) {
    HeadlessControl combo;
    const FontRef font = make_font(300);
    combo.appearance().putref_Font(font);
    EXPECT_EQ(combo.appearance().Font(), font);
    EXPECT_EQ(combo.text_box(0).font(), font);
    EXPECT_EQ(combo.surface.font, font);
    EXPECT_EQ(combo.list_view.font(), font);
    EXPECT_NE(combo.text_box(1).font(), font);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Font)"});
}

TEST(Font, ThatIsChangedItselfIsAChangeOfTheControl) {
    HeadlessControl combo;
    combo.surface.tell_font_changed();
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Font)"});
    combo.state().mbLoadingProperties = true;
    combo.surface.tell_font_changed();
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Colours, GoToTheLiveFieldAndTheSurface) {
    HeadlessControl combo;
    combo.appearance().put_ForeColor(0x000000FF);
    combo.appearance().put_BackColor(0x0000FF00);
    EXPECT_EQ(combo.text_box(0).fore_color(), 0x000000FFU);
    EXPECT_EQ(combo.text_box(0).back_color(), 0x0000FF00U);
    EXPECT_EQ(combo.surface.back_color, 0x0000FF00U);
    EXPECT_EQ(combo.appearance().BackColor(), 0x0000FF00U);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(ForeColor)", "Changed(BackColor)"}));
}

TEST(Colours, AreThoseOfTheFieldThatIsLive) {
    HeadlessControl combo;
    combo.appearance().put_ForeColor(0x000000FF);
    combo.text_properties().put_Alignment(1);
    EXPECT_EQ(combo.appearance().ForeColor(), 0x80000008U);
}

TEST(Colours, ThatAreNoneAreTheFieldsToRefuse) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.appearance().put_ForeColor(0x7FFFFFFF); }).number, 380);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ButtonColours, ReachBothButtonsAndTheFrame) {
    HeadlessControl combo;
    combo.appearance().put_ButtonForeColor(0x00112233);
    combo.appearance().put_ButtonBackColor(0x00445566);
    for (const std::size_t element : {0U, 1U}) {
        EXPECT_EQ(combo.button(element).fore_color(), 0x00112233U);
        EXPECT_EQ(combo.button(element).back_color(), 0x00445566U);
    }
    EXPECT_EQ(combo.frame.back_color(), 0x00445566U);
    EXPECT_EQ(combo.appearance().ButtonForeColor(), 0x00112233U);
    EXPECT_EQ(combo.appearance().ButtonBackColor(), 0x00445566U);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(ButtonForeColor)", "Changed(ButtonBackColor)"}));
}

TEST(ButtonStyle, IsFreeInADesignerAndNotChecked) {
    HeadlessControl combo(Mode::design);
    combo.appearance().put_ButtonStyle(1);
    EXPECT_EQ(combo.appearance().ButtonStyle(), 1);
    combo.appearance().put_ButtonStyle(99);
    EXPECT_EQ(combo.appearance().ButtonStyle(), 99);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(ButtonStyle)", "Changed(ButtonStyle)"}));
}

TEST(Picture, IsTheListsAndUnsettlesTheRows) {
    HeadlessControl combo;
    const PictureRef picture = make_picture();
    combo.appearance().putref_Picture(picture);
    EXPECT_EQ(combo.appearance().Picture(), picture);
    EXPECT_EQ(combo.list_view.picture(), picture);
    EXPECT_TRUE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Picture)"});
    combo.appearance().putref_Picture(nullptr);
    EXPECT_EQ(combo.appearance().Picture(), nullptr);
}

TEST(Picture, IsIgnoredInADesigner) {
    HeadlessControl combo(Mode::design);
    combo.appearance().putref_Picture(make_picture());
    EXPECT_EQ(combo.appearance().Picture(), nullptr);
    EXPECT_FALSE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Picture, LoadedUnsettlesNothing) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.appearance().putref_Picture(make_picture());
    EXPECT_NE(combo.list_view.picture(), nullptr);
    EXPECT_FALSE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(GridLines, GoToTheListAndAreReportedEveryTime) {
    HeadlessControl combo;
    combo.appearance().put_GridLines(true);
    combo.appearance().put_GridLines(true);
    EXPECT_TRUE(combo.appearance().GridLines());
    EXPECT_TRUE(combo.list_view.grid_lines());
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(GridLines)", "Changed(GridLines)"}));
}

TEST(AppearanceSettings, ReportNothingWhileLoading) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.appearance().put_Enabled(false);
    combo.appearance().putref_Font(make_font(100));
    combo.appearance().put_ForeColor(0);
    combo.appearance().put_BackColor(0);
    combo.appearance().put_ButtonForeColor(0);
    combo.appearance().put_ButtonBackColor(0);
    combo.appearance().put_GridLines(true);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

} // namespace vellora::test
