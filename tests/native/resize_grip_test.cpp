// Pulling the open drop-down to another size by its grip.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

/// An open, resizable drop-down from 100,221 to 299,313; its grip is 16 pixels, the smallest side 49.
struct Resizable : HeadlessControl {
    Resizable() {
        columns().put_ColumnWidth(1, 1500);
        add_rows(3);
        resize_grip().put_AllowResize(true);
        drop_down().ShowList();
        journal().take_all();
    }
    PixelRect popup() { return desktop().screen_rect(state().mlStatic_hWnd); }
    LabelListener& pull() { return *grip[0].listener(); }

    /// The cursor that far inside the right and the bottom edge.
    void hover(std::int32_t dx, std::int32_t dy) {
        desktop().cursor = {299 - dx, 313 - dy};
        pull().label_mouse_moved();
    }
    void drag(std::int32_t dx, std::int32_t dy, std::int32_t by_x, std::int32_t by_y) {
        hover(dx, dy);
        pull().label_pressed(1);
        desktop().cursor.x += by_x;
        desktop().cursor.y += by_y;
        pull().label_mouse_moved();
    }
    void expect_size(std::int32_t width, std::int32_t height) {
        const PixelRect rect = popup();
        EXPECT_EQ(rect.left, 100);
        EXPECT_EQ(rect.top, 221);
        EXPECT_EQ(rect.right - rect.left, width);
        EXPECT_EQ(rect.bottom - rect.top, height);
    }
};

} // namespace

TEST(Grip, ShowsWhichWayAPressWouldPull) {
    struct Case {
        std::int32_t dx, dy, pointer;
    };
    for (const Case& place :
         {Case{11, 11, 8}, Case{0, 0, 8}, Case{12, 11, 7}, Case{23, 11, 7}, Case{24, 11, 0}, Case{11, 12, 9},
          Case{11, 23, 9}, Case{11, 24, 0}, Case{12, 12, 0}, Case{100, 50, 0}}) {
        Resizable combo;
        combo.hover(place.dx, place.dy);
        EXPECT_EQ(combo.grip[0].pointer(), place.pointer) << place.dx << " " << place.dy;
        EXPECT_EQ(combo.grip[1].pointer(), place.pointer) << place.dx << " " << place.dy;
    }
}

TEST(Grip, PullsTheCornerBothWays) {
    Resizable combo;
    combo.drag(5, 5, 40, 30);
    combo.expect_size(239, 122);
    EXPECT_EQ(combo.journal().take_system(), Lines{"move popup 100,221 239x122 repaint"});
}

TEST(Grip, PullsAnEdgeOneWay) {
    Resizable bottom;
    bottom.drag(20, 5, 40, 30);
    bottom.expect_size(199, 122);

    Resizable right;
    right.drag(5, 20, 40, 30);
    right.expect_size(239, 92);
}

TEST(Grip, PullsInsideTheCornersReachButOffItsEdgesBothWays) {
    Resizable combo;
    combo.drag(20, 20, 40, 30); // no pointer to show, yet near enough to pull
    combo.expect_size(239, 122);
}

TEST(Grip, FollowsTheCursorFromWhereItStarted) {
    Resizable combo;
    combo.drag(5, 5, 40, 30);
    combo.desktop().cursor.x -= 60;
    combo.pull().label_mouse_moved();
    combo.expect_size(179, 122);
}

TEST(Grip, FillsTheNewSizeWithListFrameAndLines) {
    Resizable combo;
    combo.drag(5, 5, 40, 30);
    const Bounds list = combo.list_view.bounds();
    EXPECT_EQ(list.width, 239 * 15.0F);
    EXPECT_EQ(list.height, (122 - 16) * 15.0F);
    const Bounds frame = combo.frame.bounds();
    EXPECT_EQ(frame.width, 239 * 15.0F);
    EXPECT_EQ(frame.height, 122 * 15.0F);
    EXPECT_EQ(combo.grip[0].left + combo.grip[0].width(), 239 * 15.0F);
    EXPECT_EQ(combo.grip[0].top + combo.grip[0].height(), 122 * 15.0F);
    EXPECT_EQ(combo.left_line.ends().x1, 0.0F);
    EXPECT_EQ(combo.right_line.ends().x1, 238 * 15.0F);
    EXPECT_EQ(combo.bottom_line.ends().y1, 121 * 15.0F);
}

TEST(Grip, StopsAtThreeGripsRatherThanClamping) {
    Resizable combo;
    combo.drag(5, 5, 0, -43); // height 49 would be more than 48
    combo.expect_size(199, 49);
    combo.desktop().cursor.y -= 1;
    combo.pull().label_mouse_moved();
    combo.expect_size(199, 49);
    combo.desktop().cursor.x -= 151;
    combo.pull().label_mouse_moved();
    combo.expect_size(199, 49);
}

TEST(Grip, PullsOnlyNearTheEdgesAndWithTheLeftButton) {
    Resizable far;
    far.drag(24, 5, 40, 30);
    far.expect_size(199, 92);

    far.drop_down().HideList();
    Resizable right_button;
    right_button.hover(5, 5);
    right_button.pull().label_pressed(2);
    right_button.desktop().cursor.x += 40;
    right_button.pull().label_mouse_moved();
    right_button.expect_size(199, 92);
}

TEST(Grip, LetsGoOnRelease) {
    Resizable combo;
    combo.drag(5, 5, 40, 30);
    combo.pull().label_released();
    combo.desktop().cursor.x += 40;
    combo.pull().label_mouse_moved();
    combo.expect_size(239, 122);
}

TEST(Grip, PulledWhileTheListIsClosedDoesNothing) {
    Resizable combo;
    combo.drag(5, 5, 40, 30);
    combo.drop_down().HideList();
    combo.journal().take_all();
    combo.pull().label_mouse_moved();
    combo.pull().label_pressed(1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(AllowResize, CannotBeSetWhileTheListIsOpen) {
    Resizable combo;
    EXPECT_EQ(failure_of([&] { combo.resize_grip().put_AllowResize(false); }),
              (Failure{380, u"Vellora1",
                       u"Changing AllowResize property not allowed while dropdown window is showing."}));
    EXPECT_TRUE(combo.resize_grip().AllowResize());
    combo.drop_down().HideList();
    combo.journal().take_all();
    combo.resize_grip().put_AllowResize(false);
    EXPECT_FALSE(combo.resize_grip().AllowResize());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(AllowResize)"});
}

} // namespace vellora::test
