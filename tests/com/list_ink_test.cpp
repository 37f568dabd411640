// Letters of captions and cells as they stand on the screen: none loses its edge, however a platform measures fonts.
#include "com/support/list_window_test.h"

#include "widgets/win32/ole_font.h"
#include "widgets/win32/screen_metrics.h"

#include <algorithm>
#include <climits>
#include <set>
#include <utility>

namespace vellora::test {
namespace {

/// Where dark pixels are, relative to the leftmost and the topmost of them.
using Ink = std::set<std::pair<LONG, LONG>>;

bool is_dark(COLORREF color) {
    constexpr int half = 128;
    return GetRValue(color) < half && GetGValue(color) < half && GetBValue(color) < half;
}

Ink ink_in(HWND window, const RECT& part) {
    constexpr DWORD all = RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN;
    RedrawWindow(window, nullptr, nullptr, all);
    const win32::WindowDc dc(window);
    Ink ink;
    for (LONG y = part.top; y < part.bottom; ++y) {
        for (LONG x = part.left; x < part.right; ++x) {
            if (is_dark(GetPixel(dc.get(), x, y)))
                ink.insert({x, y});
        }
    }
    return ink;
}

/// Without the place where it stands, so that a caption can be compared with a cell.
Ink shape_of(const Ink& ink) {
    LONG left = LONG_MAX;
    LONG top = LONG_MAX;
    for (const auto& [x, y] : ink) {
        left = std::min(left, x);
        top = std::min(top, y);
    }
    Ink shape;
    for (const auto& [x, y] : ink)
        shape.insert({x - left, y - top});
    return shape;
}

// Sizes in pixels of a font that some platforms draw wider than they measure it, and the size hosts begin with.
class ListInk : public ListWindowTest, public testing::WithParamInterface<float> {
protected:
    void SetUp() override {
        constexpr float points_per_inch = 72;
        constexpr float pixels_per_inch = 1440;
        const float pixel = points_per_inch * static_cast<float>(win32::twips_per_pixel_y()) / pixels_per_inch;
        list->set_font(win32::OleFont::create(u"Tahoma", GetParam() * pixel));
    }
    void show_columns(const std::vector<std::u16string>& texts) {
        add_columns(texts);
        add_row(texts);
        show(580, 200);
    }
    void set_width(int column, int width) {
        send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(width, 0));
    }
    RECT caption_rect(int column) const {
        RECT rect{};
        SendMessageW(header(), HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    RECT cell_rect(int column) const {
        RECT rect{LVIR_LABEL, column, 0, 0};
        send(LVM_GETSUBITEMRECT, 0, &rect);
        return rect;
    }
    Ink caption_shape(int column) const { return shape_of(ink_in(header(), caption_rect(column))); }
    Ink cell_shape(int column) const { return shape_of(ink_in(window(), cell_rect(column))); }
};
INSTANTIATE_TEST_SUITE_P(Tahoma, ListInk, testing::Values(8.0F, 11.0F, 13.0F, 14.0F, 16.0F, 24.0F));

TEST_P(ListInk, OfACellIsWholeInAColumnOfAutomaticWidth) {
    for (const std::u16string text : {u"mmmmmmmmmmmm", u"Name", u"0148 0279", u"a text of several words"}) {
        renew_list();
        SetUp();
        show_columns({u"c", text});
        set_width(1, LVSCW_AUTOSIZE);
        const Ink narrow = ink_in(window(), cell_rect(1));
        set_width(1, 500);
        EXPECT_EQ(ink_in(window(), cell_rect(1)), narrow);
        EXPECT_FALSE(narrow.empty());
    }
}

TEST_P(ListInk, OfACaptionIsTheInkOfItsText) {
    show_columns({u"Name", u"mm", u"People", u"148"});
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(caption_shape(column), cell_shape(column)) << column;
}

TEST_P(ListInk, OfACaptionIsWholeInAColumnOfAutomaticWidth) {
    show_columns({u"mmmmmmmm", u"Name", u"z"});
    for (int column = 0; column < 2; ++column) {
        set_width(column, 250);
        const Ink text = cell_shape(column);
        rows().set_text(0, column, u"x");
        set_width(column, LVSCW_AUTOSIZE_USEHEADER);
        EXPECT_EQ(caption_shape(column), text) << column;
    }
}

TEST_P(ListInk, OfACaptionHeldDownIsAsWhole) {
    show_columns({u"mm", u"Name"});
    const LPARAM middle = MAKELPARAM(caption_rect(0).right / 2, 5);
    SendMessageW(header(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
    EXPECT_EQ(caption_shape(0), cell_shape(0));
    SendMessageW(header(), WM_LBUTTONUP, 0, middle);
}

} // namespace
} // namespace vellora::test
