// The closed control: where text field and button stand, and how high the control is. A pixel is 15 twips, a
// line 195, a scroll-bar thumb 16 pixels.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

void expect_bounds(const Bounds& actual, float left, float top, float width, float height) {
    EXPECT_EQ(actual.left, left);
    EXPECT_EQ(actual.top, top);
    EXPECT_EQ(actual.width, width);
    EXPECT_EQ(actual.height, height);
}

} // namespace

TEST(Layout, PutsTheTextFieldLeftAndTheButtonRight) {
    HeadlessControl combo;
    for (const std::size_t element : {0U, 1U, 2U}) {
        // 3000 - 240 - 2 * 15
        expect_bounds(combo.text_box(element).bounds(), 15, 15, 2730, 315);
    }
    for (const std::size_t element : {0U, 1U}) {
        // left 2730 + 2 * 15, height 315 - 4 * 15
        expect_bounds(combo.button(element).bounds(), 2760, 0, 240, 255);
    }
}

TEST(Layout, TakesTheWidthInsideTheBorder) {
    HeadlessControl combo;
    combo.surface.border = 60;
    combo.surface.resize(4500, 315);
    EXPECT_EQ(combo.text_box(0).bounds().width, 4500.0F - 60 - 240 - 30);
    EXPECT_EQ(combo.button(0).bounds().left, 4170.0F + 30);
}

TEST(Layout, KeepsTheButtonAsWideAsAThumb) {
    HeadlessControl combo;
    combo.user32.metrics[system_metric::scroll_bar_thumb_width] = 20;
    combo.surface.resize(6000, 315);
    EXPECT_EQ(combo.button(0).bounds().width, 300.0F);
    EXPECT_EQ(combo.text_box(0).bounds().width, 6000.0F - 300 - 30);
}

TEST(Layout, GivesTheControlTheHeightOfItsFont) {
    HeadlessControl combo;
    combo.surface.resize(3000, 1500);
    EXPECT_EQ(combo.surface.height(), 315.0F);
    EXPECT_EQ(combo.surface.measured, u"yY");
    combo.appearance().putref_Font(make_font(300));
    EXPECT_EQ(combo.surface.height(), 315.0F);
    combo.size();
    EXPECT_EQ(combo.surface.height(), 420.0F);
    EXPECT_EQ(combo.text_box(0).bounds().height, 420.0F);
    EXPECT_EQ(combo.button(0).bounds().height, 360.0F);
}

TEST(Layout, TakesVerticalDistancesFromTheHorizontalResolution) {
    World world;
    world.screen.twips_per_pixel_x = 20;
    world.screen.twips_per_pixel_y = 10;
    HeadlessControl combo(world, Mode::run);
    EXPECT_EQ(combo.surface.height(), 195.0F + 160);
    EXPECT_EQ(combo.text_box(0).bounds().top, 20.0F);
    EXPECT_EQ(combo.button(0).bounds().height, 355.0F + 5 - 80); // 27.5 pixels are 28
}

TEST(Layout, GivesEvenAControlWithoutAutoHeightItsFontsHeightFirst) {
    HeadlessControl combo(Mode::run, Stage::initialised);
    combo.state().mbAutoHeight = false;
    combo.surface.resize(3000, 600);
    EXPECT_EQ(combo.surface.height(), 315.0F);
    combo.surface.resize(3000, 600);
    EXPECT_EQ(combo.surface.height(), 600.0F);
    EXPECT_EQ(combo.text_box(0).bounds().height, 600.0F);
    EXPECT_EQ(combo.button(0).bounds().height, 540.0F);
}

TEST(Layout, CopesWithAContainerThatRefusesTheHeight) {
    HeadlessControl combo;
    combo.surface.grants_height = false;
    combo.surface.resize(3000, 600);
    EXPECT_EQ(combo.surface.height(), 600.0F);
    EXPECT_EQ(combo.text_box(0).bounds().height, 315.0F);
    EXPECT_FALSE(combo.state().mbInResize);
}

TEST(Layout, MarksTheFramesWindowOnEveryPassAndKeepsItsOtherStyles) {
    HeadlessControl combo;
    combo.desktop().at(combo.frame.window()).style = 0x50000000;
    combo.surface.resize(3000, 315);
    EXPECT_EQ(combo.journal().take_all(), Lines{"style of frame 0x50000100"});
    combo.surface.resize(3000, 600); // the control's own change of height is a second, nested pass
    EXPECT_EQ(combo.journal().take_all(), (Lines{"style of frame 0x50000100", "style of frame 0x50000100"}));
}

TEST(Layout, PlacesTheButtonBesideTheLiveTextField) {
    HeadlessControl combo;
    combo.text_properties().put_Alignment(2);
    combo.surface.resize(4500, 315);
    EXPECT_EQ(combo.text_box(2).bounds().width, 4230.0F);
    EXPECT_EQ(combo.button(0).bounds().left, 4260.0F);
}

TEST(Layout, OverflowsOnAScreenTooCoarseAndPlacesNothingEverAfter) {
    HeadlessControl combo;
    combo.state().miTwipsPerPixelX = 8192; // 4 of them leave 16 bits
    EXPECT_EQ(failure_of([&] { combo.surface.resize(4500, 315); }), (Failure{6, u"", u""}));
    combo.state().miTwipsPerPixelX = 15;
    combo.journal().take_all();
    combo.surface.resize(6000, 315);
    EXPECT_EQ(combo.text_box(0).bounds().width, 2730.0F);
    EXPECT_EQ(combo.journal().take_all(), Lines{"style of frame 0x0100"});
}

TEST(AutoHeight, LaysTheControlOutAgainWhenItChanges) {
    HeadlessControl combo;
    combo.layout().put_AutoHeight(false);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"style of frame 0x0100", "Changed(AutoHeight)"}));
    combo.surface.resize(3000, 600);
    EXPECT_EQ(combo.surface.height(), 600.0F);
    combo.journal().take_all();
    combo.layout().put_AutoHeight(true);
    EXPECT_EQ(combo.surface.height(), 315.0F);
    EXPECT_TRUE(combo.layout().AutoHeight());
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"style of frame 0x0100", "style of frame 0x0100", "Changed(AutoHeight)"}));
}

TEST(AutoHeight, SetToItsPresentValueDoesNothing) {
    HeadlessControl combo;
    combo.layout().put_AutoHeight(true);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(AutoHeight, IsOnlyStoredWhileLoading) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.layout().put_AutoHeight(false);
    EXPECT_FALSE(combo.layout().AutoHeight());
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

} // namespace vellora::test
