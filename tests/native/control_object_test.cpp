// An instance comes up, gets its defaults, has a text and two windows, and goes.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vellora::test {

TEST(Creation, PreparesButtonsFrameAndGrip) {
    HeadlessControl combo(Mode::run, Stage::parts);
    combo.button(0).set_visible(false);
    combo.frame.set_visible(true);
    combo.create();
    EXPECT_TRUE(combo.button(0).visible());
    EXPECT_FALSE(combo.button(1).visible());
    EXPECT_FALSE(combo.frame.visible());
    EXPECT_EQ(combo.frame.back_color(), 0x8000000FU);
    EXPECT_EQ(combo.frame.bounds().height, 240.0F); // the grip's: 12 points of 20 twips
    for (const HeadlessLabel& half : combo.grip) {
        EXPECT_EQ(half.face, u"Marlett");
        EXPECT_EQ(half.points, 12.0F);
    }
    EXPECT_EQ(combo.grip[0].caption, u"o");
    EXPECT_EQ(combo.grip[0].fore_color, 0x80000014U);
    EXPECT_EQ(combo.grip[1].caption, u"p");
    EXPECT_EQ(combo.grip[1].fore_color, 0x80000010U);
}

TEST(Creation, RoundsTheScreensTwipsToWholeNumbers) {
    World world;
    world.screen.twips_per_pixel_x = 12.5F;
    world.screen.twips_per_pixel_y = 13.5F;
    HeadlessControl combo(world, Mode::run, {}, Stage::created);
    EXPECT_EQ(combo.state().miTwipsPerPixelX, 12);
    EXPECT_EQ(combo.state().miTwipsPerPixelY, 14);
}

TEST(Creation, FailsCleanlyOnAScreenThatDoesNotFit) {
    World world;
    world.screen.twips_per_pixel_x = 40000;
    HeadlessControl combo(world, Mode::run, {}, Stage::parts);
    EXPECT_EQ(failure_of([&] { combo.create(); }), (Failure{6, u"", u""}));
    EXPECT_EQ(combo.text_box(0).listener(), nullptr);
}

TEST(Creation, OfALoadedInstanceStartsFromZeros) {
    HeadlessControl combo(Mode::run, Stage::created);
    EXPECT_EQ(combo.state().miColumns, 0);
    EXPECT_EQ(combo.state().mlListIndex, 0);
    EXPECT_FALSE(combo.state().mbEnabled);
    EXPECT_FALSE(combo.state().mbSizedOnce);
}

TEST(NewInstance, HasTheDefaultsOfAComboBox) {
    HeadlessControl combo(Mode::design, Stage::initialised);
    const ControlState& state = combo.state();
    EXPECT_EQ(state.miTwipsPerPixelX, 15);
    EXPECT_EQ(state.miTwipsPerPixelY, 15);
    EXPECT_FALSE(state.mbIgnoreChange);
    EXPECT_FALSE(state.mbTerminating);
    EXPECT_FALSE(state.mbLoadingProperties);
    EXPECT_FALSE(state.mbListDirty);
    EXPECT_TRUE(state.mbAutoHeight);
    EXPECT_FALSE(state.mbAllowColumnReorder);
    EXPECT_FALSE(state.mbAllowResize);
    EXPECT_FALSE(state.mbCheckBoxes);
    EXPECT_EQ(state.mlButtonForeColor, 0x80000012U);
    EXPECT_EQ(state.mlButtonBackColor, 0x8000000FU);
    EXPECT_EQ(state.mlButtonStyle, 0);
    EXPECT_EQ(state.mlAlignment, 0);
    EXPECT_EQ(state.mlMaxLength, 0);
    EXPECT_EQ(state.mlBackColor, 0x80000005U);
    EXPECT_FALSE(state.mbShowItemToolTips);
    EXPECT_FALSE(state.mbGridLines);
    EXPECT_EQ(state.mlAutoSize, 0);
    EXPECT_EQ(state.mlDropDownAlignment, 0);
    EXPECT_EQ(state.msngDropDownWidthOffset, 0.0F);
    EXPECT_EQ(state.moFont, combo.site.font);
    EXPECT_TRUE(state.mbEnabled);
    EXPECT_FALSE(state.mbLocked);
    EXPECT_FALSE(state.mbAutoComplete);
    EXPECT_EQ(state.miTextColumn, 1);
    EXPECT_EQ(state.miSortColumn, 1);
    EXPECT_EQ(state.mlSortOrder, 0);
    EXPECT_FALSE(state.mbSorted);
    EXPECT_FALSE(state.mbHideColumnHeaders);
    EXPECT_EQ(state.mlListIndex, -1);
    EXPECT_EQ(state.msngDropDownHeight, 8.0F);
    EXPECT_EQ(state.miColumns, 1);
    EXPECT_EQ(state.mlLeftMargin, 65535);
    EXPECT_EQ(state.mlRightMargin, 0);
}

TEST(NewInstance, HasFiftyUntouchedColumnSlots) {
    HeadlessControl combo;
    const ControlState& state = combo.state();
    EXPECT_TRUE(std::ranges::all_of(state.masngColumnWidth, [](float width) { return width == -1; }));
    EXPECT_TRUE(std::ranges::all_of(state.masColumnHeader, [](const auto& text) { return text.empty(); }));
    EXPECT_TRUE(std::ranges::none_of(state.mabColumnHidden, [](bool hidden) { return hidden; }));
    EXPECT_TRUE(std::ranges::none_of(state.mabColumnLocked, [](bool locked) { return locked; }));
}

TEST(NewInstance, ShowsItsOwnNameAndReportsNothing) {
    HeadlessControl combo(Mode::design, Stage::created);
    combo.site.name = u"cboTown";
    combo.object().InitProperties();
    EXPECT_EQ(combo.object().Text(), u"cboTown");
    EXPECT_EQ(combo.journal().take_notices(), Lines{});
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(NewInstance, PreparesTextFieldAndButtons) {
    HeadlessControl combo(Mode::run, Stage::created);
    const int refreshed = combo.surface.refresh_count;
    combo.object().InitProperties();
    EXPECT_EQ(combo.button(0).value(), 0);
    EXPECT_EQ(combo.button(1).value(), 1);
    EXPECT_TRUE(combo.button(0).visible());
    EXPECT_FALSE(combo.button(1).visible());
    EXPECT_EQ(combo.surface.refresh_count, refreshed + 1);
    EXPECT_EQ(combo.surface.font, combo.site.font);
    EXPECT_EQ(combo.list_view.font(), combo.site.font);
    EXPECT_EQ(combo.text_box(0).font(), combo.site.font);
    EXPECT_TRUE(combo.text_box(0).visible());
    EXPECT_FALSE(combo.text_box(1).visible());
    EXPECT_FALSE(combo.text_box(2).visible());
    for (const std::size_t element : {0U, 1U, 2U}) {
        EXPECT_EQ(combo.text_box(element).left_margin, 65535);
        EXPECT_EQ(combo.text_box(element).max_length(), 0);
    }
}

TEST(NewInstance, LeavesTheColoursOfItsPartsAlone) {
    HeadlessControl combo(Mode::run, Stage::created);
    combo.button(0).set_back_color(0x00112233);
    combo.text_box(0).set_back_color(0x00445566);
    combo.list_view.set_grid_lines(true);
    combo.object().InitProperties();
    EXPECT_EQ(combo.button(0).back_color(), 0x00112233U);
    EXPECT_EQ(combo.text_box(0).back_color(), 0x00445566U);
    EXPECT_TRUE(combo.list_view.grid_lines());
}

TEST(NewInstance, ComesUpEvenWhereTheHostHasNoFont) {
    HeadlessControl combo(Mode::run, Stage::created);
    combo.site.font = nullptr;
    EXPECT_EQ(failure_of([&] { combo.object().InitProperties(); }), no_failure);
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.button(1).value(), 1);
    EXPECT_FALSE(combo.state().mbLoadingProperties);
    EXPECT_EQ(combo.state().mlBackColor, 0x80000005U);
}

TEST(ResettingColumns, FromBelowOneResetsAllAndHandsBackOne) {
    for (const std::int16_t below : Integers{0, -5, -32768}) {
        ControlState state;
        state.masColumnHeader.front() = u"first";
        state.masngColumnWidth.back() = 500;
        std::int16_t from = below;
        subResetColumns(state, from);
        EXPECT_EQ(from, 1);
        EXPECT_EQ(state.masColumnHeader.front(), u"");
        EXPECT_EQ(state.masngColumnWidth.back(), -1.0F);
    }
}

TEST(ResettingColumns, FromAboveFiftyResetsNone) {
    ControlState state;
    state.masColumnHeader.back() = u"last";
    std::int16_t from = 51;
    subResetColumns(state, from);
    EXPECT_EQ(from, 51);
    EXPECT_EQ(state.masColumnHeader.back(), u"last");
    EXPECT_EQ(state.masngColumnWidth.back(), 0.0F);
}

TEST(ResettingColumns, LeavesTheOnesBeforeAndAllFlagsAlone) {
    ControlState state;
    state.masColumnHeader.fill(u"x");
    state.mabColumnHidden.fill(true);
    state.mabColumnLocked.fill(true);
    std::int16_t from = 50;
    subResetColumns(state, from);
    EXPECT_EQ(state.masColumnHeader[48], u"x");
    EXPECT_EQ(state.masColumnHeader[49], u"");
    EXPECT_TRUE(state.mabColumnHidden[49]);
    EXPECT_TRUE(state.mabColumnLocked[49]);
}

TEST(Text, GoesToTheTextFieldAndIsReportedAfterItsChange) {
    HeadlessControl combo;
    combo.object().put_Text(u"abc");
    EXPECT_EQ(combo.text_box(0).text(), u"abc");
    EXPECT_EQ(combo.object().Text(), u"abc");
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Change", "Changed(Text)"}));
}

TEST(Text, ThatIsThereAlreadyRaisesNoChange) {
    HeadlessControl combo;
    combo.object().put_Text(u"Vellora1");
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Text)"});
}

TEST(Text, AssignedAgainFromItsOwnChangeIsSwallowed) {
    HeadlessControl combo;
    combo.events.on_change = [&] { combo.object().put_Text(u"nested"); };
    combo.object().put_Text(u"outer");
    EXPECT_EQ(combo.object().Text(), u"outer");
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Change", "Changed(Text)"}));
    combo.events.on_change = nullptr;
    combo.object().put_Text(u"afterwards");
    EXPECT_EQ(combo.object().Text(), u"afterwards");
}

TEST(Text, DoesNotLookForItsRow) {
    HeadlessControl combo;
    combo.add_rows(3);
    combo.selection().put_ListIndex(0);
    combo.object().put_Text(u"row 2");
    EXPECT_EQ(combo.selection().ListIndex(), 0);
}

TEST(Text, ComesFromTheTextFieldThatIsLive) {
    HeadlessControl combo;
    combo.object().put_Text(u"abc");
    combo.text_properties().put_Alignment(1);
    EXPECT_EQ(combo.object().Text(), u"abc");
    combo.object().put_Text(u"right");
    EXPECT_EQ(combo.text_box(1).text(), u"right");
    EXPECT_EQ(combo.text_box(0).text(), u"abc");
}

TEST(Text, IsNotReportedWhileLoading) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.object().put_Text(u"abc");
    EXPECT_EQ(combo.journal().take_notices(), Lines{});
}

TEST(Text, OfAnAlignmentThatDoesNotExistFails) {
    HeadlessControl combo;
    combo.state().mlAlignment = 3;
    EXPECT_EQ(failure_of([&] { combo.object().Text(); }).number, 340);
    EXPECT_EQ(failure_of([&] { combo.object().put_Text(u"x"); }).number, 340);
    combo.state().mlAlignment = 0;
    combo.object().put_Text(u"x");
    EXPECT_EQ(combo.object().Text(), u"x");
}

TEST(Windows, AreTheSurfaceAndItsContainer) {
    HeadlessControl combo;
    EXPECT_EQ(combo.object().hWnd(), combo.surface.window());
    EXPECT_EQ(combo.object().ContainerHwnd(), combo.world().form);
}

TEST(Refresh, RepaintsAndTakesTheRowsAsSettled) {
    HeadlessControl combo;
    combo.state().mbListDirty = true;
    const int refreshed = combo.surface.refresh_count;
    const int list_refreshed = combo.list_view.refresh_count;
    combo.object().Refresh();
    EXPECT_EQ(combo.surface.refresh_count, refreshed + 1);
    EXPECT_EQ(combo.list_view.refresh_count, list_refreshed);
    EXPECT_FALSE(combo.state().mbListDirty);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Ending, EmptiesTheRowsAndReportsNothing) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add_rows(3);
    combo.selection().put_ListIndex(1);
    combo.journal().take_all();
    combo.release();
    EXPECT_EQ(combo.list_view.rows().count(), 0);
    EXPECT_EQ(combo.list_view.header_count(), 3);
    EXPECT_EQ(combo.text_box(0).text(), u"row 1");
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Ending, LetsGoOfItsParts) {
    HeadlessControl combo;
    combo.release();
    EXPECT_EQ(combo.text_box(0).listener(), nullptr);
    EXPECT_EQ(combo.list_view.listener(), nullptr);
    combo.button(0).set_value(1);
    combo.surface.resize(100, 100);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(ButtonStyle, CannotBeSetAtRunTimeUnlessLoading) {
    HeadlessControl combo;
    combo.site.name = u"cboTown";
    EXPECT_EQ(failure_of([&] { combo.appearance().put_ButtonStyle(1); }), (Failure{382, u"cboTown", u""}));
    EXPECT_EQ(combo.state().mlButtonStyle, 0);
    combo.state().mbLoadingProperties = true;
    combo.appearance().put_ButtonStyle(1);
    EXPECT_EQ(combo.state().mlButtonStyle, 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

} // namespace vellora::test
