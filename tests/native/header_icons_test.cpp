// Icons of the column headers: the host's image list, and the key of each header.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/image_list.h"
#include "support/headless/property_bag.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

const Failure no_such_header{35600, u"", u""};
const Failure no_such_key{35601, u"", u""};

/// Three columns with captions and widths, and an image list that is assigned already.
struct WithIcons : HeadlessControl {
    explicit WithIcons(Mode mode = Mode::run) : HeadlessControl(mode) {
        columns().put_Columns(3);
        for (const std::int16_t column : Integers{1, 2, 3}) {
            columns().put_ColumnHeader(column, u"caption");
            list_view.set_header_width(column, 100.0F * static_cast<float>(column));
        }
        header_icons().putref_Icons(images);
        journal().take_all();
    }
    Failure set(std::int16_t column, std::u16string_view key) {
        return failure_of([&] { header_icons().put_HeaderIcon(column, key); });
    }
    std::shared_ptr<HeadlessImageList> images = make_image_list({u"up", u"down", u"flag"});
};

/// What loading needs: a control that was only created.
struct Loaded : HeadlessControl {
    explicit Loaded(HeadlessPropertyBag& bag, Mode mode = Mode::run) : HeadlessControl(mode, Stage::created) {
        persistence().ReadProperties(bag);
    }
};

} // namespace

TEST(HeaderIcons, AreNothingAtFirst) {
    HeadlessControl combo;
    EXPECT_EQ(combo.header_icons().Icons(), nullptr);
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"");
}

TEST(HeaderIcons, KeepTheObjectItselfAndReportIt) {
    HeadlessControl combo;
    const ImageListRef images = make_image_list({u"up"});
    combo.header_icons().putref_Icons(images);
    EXPECT_EQ(combo.header_icons().Icons(), images);
    EXPECT_EQ(combo.list_view.column_header_icons(), images);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(HeaderIcons)"});
    combo.header_icons().putref_Icons(nullptr);
    EXPECT_EQ(combo.header_icons().Icons(), nullptr);
    EXPECT_EQ(combo.list_view.column_header_icons(), nullptr);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(HeaderIcons)"});
}

TEST(HeaderIcons, RefuseAnObjectThatIsNoImageList) {
    WithIcons combo;
    const auto other = make_image_list({});
    other->right_kind = false;
    EXPECT_EQ(failure_of([&] { combo.header_icons().putref_Icons(other); }),
              (Failure{380, u"Vellora1",
                       u"HeaderIcons takes an image list: an object with the properties hImageList and "
                       u"ListImages"}));
    EXPECT_EQ(combo.header_icons().Icons(), combo.images);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(HeaderIcons, LeaveCaptionsAndWidths) {
    WithIcons combo;
    combo.header_icons().putref_Icons(make_image_list({u"other"}));
    for (const std::int16_t column : Integers{1, 2, 3}) {
        EXPECT_EQ(combo.list_view.header_text(column), u"caption");
        EXPECT_EQ(combo.list_view.header_width(column), 100.0F * static_cast<float>(column));
    }
}

TEST(HeaderIcons, OfAnotherListShowTheSameKeys) {
    WithIcons combo;
    combo.set(1, u"flag");
    combo.set(2, u"up");
    combo.header_icons().putref_Icons(make_image_list({u"x", u"up"}));
    EXPECT_EQ(combo.list_view.shown_icon(1), -1);
    EXPECT_EQ(combo.list_view.shown_icon(2), 1);
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"flag");
    combo.header_icons().putref_Icons(combo.images);
    EXPECT_EQ(combo.list_view.shown_icon(1), 2);
}

TEST(HeaderIcons, AreTakenFromTheListAnewAtEachOpening) {
    WithIcons combo;
    combo.add_rows(2);
    combo.set(1, u"flag");
    combo.images->keys = {u"flag"};
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list_view.shown_icon(1), 0);
    combo.drop_down().HideList();
    combo.images->keys.clear();
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list_view.shown_icon(1), -1);
}

TEST(HeaderIcons, WhoseListClosesTheFormAtAnOpeningDoNoHarm) {
    WithIcons combo;
    combo.add_rows(2);
    combo.set(1, u"flag");
    combo.images->when_asked = [&] { combo.release(); };
    const auto held = combo.hold();
    combo.drop_down().ShowList();
    EXPECT_TRUE(held->state().mlStatic_hWnd != 0);
}

// As when a program opens a second list: the first one closes and nothing opens.
TEST(HeaderIcons, WhoseListOpensAnotherControlsListNeverLetTwoListsStand) {
    World world;
    HeadlessControl first(world, Mode::run, "first ");
    HeadlessControl second(world, Mode::run, "second ");
    const auto images = make_image_list({u"flag"});
    first.header_icons().putref_Icons(images);
    first.header_icons().put_HeaderIcon(1, u"flag");
    images->when_asked = [&] { second.drop_down().ShowList(); };
    first.drop_down().ShowList();
    EXPECT_EQ(first.state().mlStatic_hWnd, 0);
    EXPECT_EQ(second.state().mlStatic_hWnd, 0);
    images->when_asked = nullptr;
    first.drop_down().ShowList();
    EXPECT_NE(first.state().mlStatic_hWnd, 0);
}

TEST(HeaderIcon, ShowsTheImageOfItsKeyAndReportsIt) {
    WithIcons combo;
    EXPECT_EQ(combo.set(2, u"down"), no_failure);
    EXPECT_EQ(combo.header_icons().HeaderIcon(2), u"down");
    EXPECT_EQ(combo.list_view.shown_icon(2), 1);
    EXPECT_EQ(combo.list_view.shown_icon(1), -1);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(HeaderIcon)"});
}

TEST(HeaderIcon, OfAnEmptyKeyIsTakenAway) {
    WithIcons combo;
    combo.set(2, u"down");
    EXPECT_EQ(combo.set(2, u""), no_failure);
    EXPECT_EQ(combo.header_icons().HeaderIcon(2), u"");
    EXPECT_EQ(combo.list_view.shown_icon(2), -1);
}

TEST(HeaderIcon, OfAnUnknownKeyIsAnErrorThatChangesNothing) {
    WithIcons combo;
    combo.set(2, u"down");
    combo.journal().take_all();
    EXPECT_EQ(combo.set(2, u"nowhere"), no_such_key);
    EXPECT_EQ(combo.header_icons().HeaderIcon(2), u"down");
    EXPECT_EQ(combo.list_view.shown_icon(2), 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(HeaderIcon, OfAColumnThatIsNotThereIsTheListsError) {
    WithIcons combo;
    for (const std::int16_t column : Integers{-1, 0, 4, 50, 51}) {
        EXPECT_EQ(combo.set(column, u"down"), no_such_header) << column;
        EXPECT_EQ(failure_of([&] { combo.header_icons().HeaderIcon(column); }), no_such_header) << column;
    }
}

TEST(HeaderIcon, WithoutAnImageListDoesNothing) {
    HeadlessControl combo;
    combo.header_icons().put_HeaderIcon(1, u"down");
    combo.header_icons().put_HeaderIcon(99, u"down");
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"");
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(HeaderIcon, InADesignerDoesNothing) {
    WithIcons combo(Mode::design);
    EXPECT_EQ(combo.set(1, u"down"), no_failure);
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"");
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(HeaderIcon, IsReadBeforeAnyHeaderWasBuilt) {
    HeadlessControl combo(Mode::design, Stage::initialised);
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"");
    EXPECT_EQ(combo.list_view.header_count(), 1);
}

TEST(HeaderIcon, GoesWithTheHeadersThatAreBuiltAnew) {
    WithIcons combo;
    combo.set(1, u"down");
    combo.columns().put_Columns(2);
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"");
    EXPECT_EQ(combo.list_view.shown_icon(1), -1);
    EXPECT_EQ(combo.header_icons().Icons(), combo.images);
}

TEST(HeaderIcon, StaysWhenTheCaptionChanges) {
    WithIcons combo;
    combo.set(1, u"down");
    combo.columns().put_ColumnHeader(1, u"other");
    EXPECT_EQ(combo.list_view.shown_icon(1), 1);
}

TEST(HeaderIcon, IsSavedWithItsListAndComesBack) {
    for (const Mode mode : {Mode::run, Mode::design}) {
        WithIcons source;
        source.set(2, u"flag");
        HeadlessPropertyBag bag;
        source.persistence().WriteProperties(bag);
        EXPECT_EQ(std::get<std::u16string>(bag.at(u"HeaderIcon2")), u"flag");
        EXPECT_FALSE(bag.has(u"HeaderIcon1"));
        EXPECT_EQ(std::get<ImageListRef>(bag.at(u"HeaderIcons")), source.images);
        EXPECT_EQ(bag.written.back(), "HeaderIcons");
        Loaded combo(bag, mode);
        EXPECT_EQ(combo.header_icons().Icons(), source.images);
        EXPECT_EQ(combo.header_icons().HeaderIcon(2), u"flag");
        EXPECT_EQ(combo.list_view.shown_icon(2), 2);
        EXPECT_EQ(combo.journal().take_notices(), Lines{});
    }
}

TEST(HeaderIcon, IsSavedBetweenWidthAndHiding) {
    WithIcons combo;
    combo.columns().put_Columns(1);
    combo.columns().put_ColumnWidth(1, 600);
    combo.columns().put_ColumnHidden(1, true);
    combo.set(1, u"flag");
    HeadlessPropertyBag bag;
    combo.persistence().WriteProperties(bag);
    EXPECT_EQ(bag.written, (Lines{"Text", "ColumnHeader1", "ColumnWidth1", "HeaderIcon1", "ColumnHidden1",
                                  "LeftMargin", "HeaderIcons"}));
}

TEST(HeaderIcon, SavedWithoutAListIsPassedOver) {
    HeadlessPropertyBag bag;
    bag.put(u"HeaderIcon1", std::u16string(u"flag"));
    Loaded combo(bag);
    EXPECT_EQ(combo.header_icons().HeaderIcon(1), u"");
}

TEST(HeaderIcon, SavedForAListThatLacksItEndsTheLoading) {
    HeadlessPropertyBag bag;
    bag.put(u"HeaderIcon1", std::u16string(u"flag"));
    bag.put(u"HeaderIcons", ImageListRef(make_image_list({})));
    HeadlessControl combo(Mode::run, Stage::created);
    EXPECT_EQ(failure_of([&] { combo.persistence().ReadProperties(bag); }), no_such_key);
}

} // namespace vellora::test
