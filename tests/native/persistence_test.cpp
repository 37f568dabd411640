// What is saved with a form, and what comes back from it.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/property_bag.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vellora::test {

namespace {

constexpr std::int32_t red = 0x000000FF;
constexpr std::int32_t green = 0x0000FF00;

Lines saved_keys(HeadlessControl& combo) {
    HeadlessPropertyBag bag;
    combo.persistence().WriteProperties(bag);
    return bag.written;
}

/// A control loaded from a bag.
struct Loaded : HeadlessControl {
    explicit Loaded(HeadlessPropertyBag& bag, Mode mode = Mode::run) : HeadlessControl(mode, Stage::created) {
        persistence().ReadProperties(bag);
    }
};

void set_everything(HeadlessControl& combo) {
    combo.columns().put_Columns(2);
    ControlState& state = combo.state();
    state.masColumnHeader[1] = u"Age";
    state.masngColumnWidth[1] = 615;
    state.mabColumnHidden[1] = true;
    state.mabColumnLocked[1] = true;
    state.mlBackColor = static_cast<OleColor>(red);
    state.msngDropDownHeight = 2.5F;
    state.mlListIndex = 3;
    state.mbHideColumnHeaders = true;
    state.mbSorted = true;
    state.mlSortOrder = 1;
    state.miTextColumn = 2;
    state.miSortColumn = 2;
    combo.list_view.set_picture(make_picture());
    state.mbAutoComplete = true;
    state.mbEnabled = false;
    state.mbLocked = true;
    state.mbAutoHeight = false;
    state.moFont = make_font(300);
    combo.text_properties().put_Alignment(2);
    combo.text_box(2).set_back_color(static_cast<OleColor>(green));
    combo.text_box(2).set_fore_color(static_cast<OleColor>(red));
    state.mlDropDownAlignment = 2;
    state.msngDropDownWidthOffset = -15.5F;
    state.mlAutoSize = 2;
    state.mbGridLines = true;
    state.mlButtonStyle = 1;
    state.mlButtonForeColor = static_cast<OleColor>(red);
    state.mlButtonBackColor = static_cast<OleColor>(green);
    state.mbCheckBoxes = true;
    state.mbAllowResize = true;
    state.mbAllowColumnReorder = true;
    state.mbShowItemToolTips = true;
    state.mlMaxLength = 20;
    state.mlLeftMargin = 4;
    state.mlRightMargin = 5;
}

} // namespace

TEST(Saving, ANewControlWritesItsNameAndItsMargin) {
    HeadlessControl combo;
    HeadlessPropertyBag bag;
    combo.persistence().WriteProperties(bag);
    EXPECT_EQ(bag.written, (Lines{"Text", "LeftMargin"}));
    EXPECT_EQ(std::get<std::u16string>(bag.at(u"Text")), u"Vellora1");
    EXPECT_EQ(std::get<std::int32_t>(bag.at(u"LeftMargin")), 65535);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Saving, WritesEverythingInItsOrder) {
    HeadlessControl combo;
    set_everything(combo);
    EXPECT_EQ(saved_keys(combo), (Lines{"Text",
                                        "Columns",
                                        "ColumnHeader2",
                                        "ColumnWidth2",
                                        "ColumnHidden2",
                                        "ColumnLocked2",
                                        "BackColor",
                                        "DropDownHeight",
                                        "ListIndex",
                                        "HideColumnHeaders",
                                        "Sorted",
                                        "SortOrder",
                                        "TextColumn",
                                        "SortColumn",
                                        "Picture",
                                        "AutoComplete",
                                        "Enabled",
                                        "Locked",
                                        "AutoHeight",
                                        "Font",
                                        "DropDownBackColor",
                                        "DropDownForeColor",
                                        "DropDownAlignment",
                                        "DropDownWidthOffset",
                                        "AutoSize",
                                        "GridLines",
                                        "ButtonStyle",
                                        "ButtonForeColor",
                                        "ButtonBackColor",
                                        "CheckBoxes",
                                        "AllowResize",
                                        "AllowColumnReorder",
                                        "ShowItemToolTips",
                                        "ForeColor",
                                        "BackColor",
                                        "Alignment",
                                        "MaxLength",
                                        "LeftMargin",
                                        "RightMargin"}));
}

TEST(Saving, WritesTheKeysOfEachColumnInTurn) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    for (const std::int16_t column : Integers{1, 2, 3}) {
        combo.columns().put_ColumnHeader(column, u"x");
        combo.columns().put_ColumnLocked(column, true);
    }
    combo.columns().put_ColumnLocked(4, true);
    EXPECT_EQ(saved_keys(combo), (Lines{"Text", "Columns", "ColumnHeader1", "ColumnLocked1", "ColumnHeader2",
                                        "ColumnLocked2", "ColumnHeader3", "ColumnLocked3", "LeftMargin"}));
}

TEST(Saving, KeepsTheSecondBackColor) {
    HeadlessControl combo;
    combo.state().mlBackColor = static_cast<OleColor>(red);
    combo.text_box(0).set_back_color(static_cast<OleColor>(green));
    HeadlessPropertyBag bag;
    combo.persistence().WriteProperties(bag);
    EXPECT_EQ(std::get<std::int32_t>(bag.at(u"BackColor")), green);
}

TEST(Saving, TakesTheDropDownsColoursFromTheTextField) {
    HeadlessControl combo;
    combo.placement().put_DropDownBackColor(static_cast<OleColor>(red));
    combo.appearance().put_BackColor(static_cast<OleColor>(green));
    HeadlessPropertyBag bag;
    combo.persistence().WriteProperties(bag);
    EXPECT_EQ(std::get<std::int32_t>(bag.at(u"DropDownBackColor")), green);
    EXPECT_FALSE(bag.has(u"DropDownForeColor"));
}

TEST(Saving, WritesNoColumnsOfAControlThatHasNone) {
    HeadlessControl combo(Mode::design, Stage::created);
    const Lines keys = saved_keys(combo);
    EXPECT_EQ(std::count(keys.begin(), keys.end(), "Columns"), 0);
}

TEST(Saving, AFontThatLooksLikeTheContainersIsNotWritten) {
    HeadlessControl combo;
    combo.site.font = make_font(195);
    EXPECT_EQ(saved_keys(combo), (Lines{"Text", "LeftMargin"}));
    combo.site.font = make_font(210);
    EXPECT_EQ(saved_keys(combo), (Lines{"Text", "Font", "LeftMargin"}));
    combo.site.font = nullptr;
    EXPECT_EQ(saved_keys(combo), (Lines{"Text", "Font", "LeftMargin"}));
}

TEST(Saving, WithTheListOpenOrInsideAnEventWritesTheSame) {
    HeadlessControl combo;
    set_everything(combo);
    combo.add_rows(3);
    const Lines before = saved_keys(combo);
    std::vector<Lines> during;
    combo.events.on_drop_down = [&](DropDownState) { during.push_back(saved_keys(combo)); };
    combo.drop_down().ShowList();
    during.push_back(saved_keys(combo));
    combo.drop_down().HideList();
    EXPECT_EQ(during, (std::vector<Lines>(3, before)));
}

TEST(Saving, ChangesNothingOfTheControl) {
    HeadlessControl combo;
    combo.add_rows(3);
    combo.list_view.rows().select(1);
    combo.journal().take_all();
    saved_keys(combo);
    EXPECT_EQ(combo.state().mlListIndex, -1);
    EXPECT_EQ(combo.state().masngColumnWidth[0], -1.0F);
    EXPECT_EQ(combo.items().ListCount(), 3);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Loading, AnEmptyBagGivesTheDefaults) {
    HeadlessPropertyBag bag;
    Loaded combo(bag);
    const ControlState& state = combo.state();
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(state.mlLeftMargin, 0);
    EXPECT_EQ(state.miColumns, 1);
    EXPECT_EQ(state.msngDropDownHeight, 8.0F);
    EXPECT_EQ(state.mlListIndex, -1);
    EXPECT_EQ(state.miTextColumn, 1);
    EXPECT_EQ(state.miSortColumn, 1);
    EXPECT_TRUE(state.mbEnabled);
    EXPECT_TRUE(state.mbAutoHeight);
    EXPECT_FALSE(state.mbLoadingProperties);
    EXPECT_FALSE(state.mbIgnoreChange);
    EXPECT_EQ(state.mlBackColor, 0x80000005U);
    EXPECT_EQ(state.mlButtonForeColor, 0x80000012U);
    EXPECT_EQ(state.mlButtonBackColor, 0x8000000FU);
    EXPECT_EQ(state.moFont, combo.site.font);
    EXPECT_EQ(combo.list_view.header_count(), 1);
    EXPECT_EQ(combo.list_view.fore_color(), 0x80000008U);
}

TEST(Loading, ReportsNothing) {
    HeadlessControl source;
    set_everything(source);
    source.state().mlListIndex = -1;
    HeadlessPropertyBag bag;
    source.persistence().WriteProperties(bag);
    Loaded combo(bag);
    EXPECT_EQ(combo.journal().take_notices(), Lines{});
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(Loading, BringsEverythingBack) {
    for (const Mode mode : {Mode::design, Mode::run}) {
        HeadlessControl source;
        set_everything(source);
        source.state().mlListIndex = -1;
        HeadlessPropertyBag bag;
        source.persistence().WriteProperties(bag);
        Loaded combo(bag, mode);
        HeadlessPropertyBag again;
        combo.persistence().WriteProperties(again);
        Lines expected = bag.written;
        if (mode == Mode::design) {
            std::erase(expected, "Picture"); // a designer shows none
        }
        EXPECT_EQ(again.written, expected);
        for (const char16_t* key :
             {u"Text", u"ColumnHeader2", u"ColumnWidth2", u"ColumnHidden2", u"BackColor", u"DropDownHeight",
              u"Font", u"DropDownWidthOffset", u"RightMargin"}) {
            EXPECT_EQ(again.at(key), bag.at(key)) << readable(key);
        }
    }
}

TEST(Loading, ASecondTimeReplacesEverything) {
    HeadlessControl source;
    set_everything(source);
    source.state().mlListIndex = -1;
    HeadlessPropertyBag full;
    source.persistence().WriteProperties(full);
    HeadlessPropertyBag empty;
    Loaded combo(full);
    combo.persistence().ReadProperties(empty);
    Loaded fresh(empty);
    EXPECT_EQ(saved_keys(combo), saved_keys(fresh));
    combo.persistence().ReadProperties(full);
    EXPECT_EQ(saved_keys(combo), full.written);
}

TEST(Loading, HandsTheSettingsToTheList) {
    HeadlessControl source;
    set_everything(source);
    source.state().mlListIndex = -1;
    HeadlessPropertyBag bag;
    source.persistence().WriteProperties(bag);
    Loaded combo(bag);
    EXPECT_TRUE(combo.list_view.grid_lines());
    EXPECT_TRUE(combo.list_view.check_boxes());
    EXPECT_TRUE(combo.list_view.hide_column_headers());
    EXPECT_EQ(combo.list_view.header_count(), 2);
    EXPECT_EQ(combo.list_view.header_text(2), u"Age");
    EXPECT_EQ(combo.list_view.header_width(2), 615.0F);
    EXPECT_EQ(combo.text_box(2).max_length(), 20);
    EXPECT_EQ(combo.text_box(1).right_margin, 5);
    EXPECT_FALSE(combo.state().mbListDirty);
}

TEST(Loading, PutsTheTextFieldsColoursOnTheDropDown) {
    HeadlessPropertyBag bag;
    bag.put(u"DropDownBackColor", green);
    bag.put(u"DropDownForeColor", red);
    Loaded combo(bag);
    EXPECT_EQ(combo.list_view.back_color(), 0x0000FF00U);
    EXPECT_EQ(combo.list_view.fore_color(), 0x000000FFU);
}

TEST(Loading, PassesOverColumnsThatAreNotThere) {
    HeadlessPropertyBag bag;
    bag.put(u"Columns", std::int16_t{3});
    bag.put(u"ColumnHeader4", std::u16string(u"fourth"));
    bag.put(u"ColumnHeader03", std::u16string(u"padded"));
    Loaded combo(bag);
    EXPECT_EQ(combo.state().masColumnHeader[3], u"");
    EXPECT_EQ(combo.state().masColumnHeader[2], u"");
}

TEST(Loading, KeepsHiddenAndLockedColumnsInADesigner) {
    HeadlessPropertyBag bag;
    bag.put(u"ColumnHidden1", true);
    bag.put(u"ColumnLocked1", true);
    Loaded combo(bag, Mode::design);
    EXPECT_TRUE(combo.columns().ColumnHidden(1));
    EXPECT_TRUE(combo.columns().ColumnLocked(1));
}

TEST(Loading, LeavesButtonAndSurfaceEnabledAsTheControlIs) {
    for (const bool enabled : {true, false}) {
        HeadlessPropertyBag bag;
        bag.put(u"Enabled", enabled);
        Loaded combo(bag);
        EXPECT_EQ(combo.button(0).enabled(), enabled);
        EXPECT_EQ(combo.button(1).enabled(), enabled);
        EXPECT_EQ(combo.surface.enabled, enabled);
        EXPECT_EQ(combo.text_box(0).enabled(), enabled);
    }
}

TEST(Loading, InADesignerLeavesTheButtonEnabled) {
    HeadlessPropertyBag bag;
    bag.put(u"Enabled", false);
    Loaded combo(bag, Mode::design);
    EXPECT_TRUE(combo.button(0).enabled());
    EXPECT_TRUE(combo.surface.enabled);
    EXPECT_FALSE(combo.text_box(0).enabled());
}

TEST(Loading, AllowsAtRunTimeWhatOnlyADesignerMaySet) {
    HeadlessPropertyBag bag;
    bag.put(u"ButtonStyle", std::int32_t{1});
    bag.put(u"CheckBoxes", true);
    Loaded combo(bag);
    EXPECT_EQ(combo.appearance().ButtonStyle(), 1);
    EXPECT_TRUE(combo.check_boxes().ShowsCheckBoxes());
}

TEST(Loading, ConvertsNumbersOfOtherTypes) {
    HeadlessPropertyBag bag;
    bag.put(u"DropDownHeight", std::int16_t{5});
    bag.put(u"SortColumn", std::int32_t{1});
    bag.put(u"GridLines", std::int16_t{-1});
    Loaded combo(bag);
    EXPECT_EQ(combo.placement().DropDownHeight(), 5.0F);
    EXPECT_TRUE(combo.appearance().GridLines());
}

TEST(Loading, GivesTheFirstSizeTheFontsHeightWhateverAutoHeightSays) {
    HeadlessPropertyBag bag;
    bag.put(u"AutoHeight", false);
    Loaded combo(bag);
    combo.surface.resize(3000, 900);
    EXPECT_EQ(combo.surface.height(), 315.0F);
    combo.surface.resize(3000, 900);
    EXPECT_EQ(combo.surface.height(), 900.0F);
}

TEST(Loading, SortsWhatIsAddedLater) {
    HeadlessPropertyBag bag;
    bag.put(u"Sorted", true);
    bag.put(u"SortOrder", std::int32_t{1});
    Loaded combo(bag);
    combo.add(u"a");
    combo.add(u"b");
    combo.size();
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list(0), u"b");
}

} // namespace vellora::test
