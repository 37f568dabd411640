// The closed control: text field on the left, drop button on the right, and a height that follows the font.
#include "com/support/host_test.h"
#include "support/container/library.h"

namespace vellora::test {
namespace {

int width_of(const RECT& rect) {
    return rect.right - rect.left;
}
int height_of(const RECT& rect) {
    return rect.bottom - rect.top;
}

class Layout : public HostTest {
protected:
    // Height of a line of text in a font object, in pixels.
    static int line_height(IDispatch* font_object) {
        ComPtr<IFont> font;
        HFONT handle = nullptr;
        font_object->QueryInterface(IID_PPV_ARGS(&font));
        font->get_hFont(&handle);
        HDC screen = GetDC(nullptr);
        HGDIOBJ before = SelectObject(screen, handle);
        SIZE size{};
        GetTextExtentPoint32W(screen, L"yY", 2, &size);
        SelectObject(screen, before);
        ReleaseDC(nullptr, screen);
        return size.cy;
    }
    static int automatic_height(Site& site) {
        ComPtr<IFontDisp> font;
        vellora(site)->get_Font(&font);
        return line_height(font.Get()) + 8;
    }
    static RECT inside(Site& site, HWND child) {
        RECT rect = screen_rect(child);
        MapWindowPoints(nullptr, window_of(site), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    static int inner_width(Site& site) {
        RECT client;
        GetClientRect(window_of(site), &client);
        return client.right;
    }
    static int height(Site& site) { return height_of(screen_rect(window_of(site))); }
};

TEST_F(Layout, TheButtonIsAThumbWideAndTheFieldTakesTheRest) {
    Site& site = place();
    const int thumb = GetSystemMetrics(SM_CXHTHUMB);
    const RECT field = inside(site, text_field(window_of(site)));
    const RECT button = inside(site, drop_button(window_of(site)));
    EXPECT_EQ(1, field.left);
    EXPECT_EQ(1, field.top);
    EXPECT_EQ(inner_width(site) - thumb - 2, width_of(field));
    EXPECT_EQ(inner_width(site) - thumb, button.left);
    EXPECT_EQ(0, button.top);
    EXPECT_EQ(thumb, width_of(button));
    EXPECT_EQ(automatic_height(site) - 4, height_of(button));
}

TEST_F(Layout, HeightFollowsTheFont) {
    Site& site = place();
    EXPECT_EQ(automatic_height(site), height(site));
    EXPECT_EQ(height(site), height_of(site.place()));
    const int small = height(site);
    const ComPtr<IDispatch> large = make_font(L"Tahoma", 20);
    ComPtr<IFontDisp> font;
    ASSERT_EQ(S_OK, large.As(&font));
    ASSERT_EQ(S_OK, vellora(site)->putref_Font(font.Get()));
    site.move({20, 20, 260, 44});
    EXPECT_EQ(automatic_height(site), height(site));
    EXPECT_GT(height(site), small + 5);
}

TEST_F(Layout, AnotherHeightIsTakenBack) {
    Site& site = place();
    site.move({20, 20, 220, 120});
    EXPECT_EQ(automatic_height(site), height(site));
    site.move({20, 20, 220, 25});
    EXPECT_EQ(automatic_height(site), height(site));
}

TEST_F(Layout, WithoutAutoHeightTheUsersHeightStays) {
    Site& site = place();
    ASSERT_EQ(S_OK, vellora(site)->put_AutoHeight(VARIANT_FALSE));
    site.move({20, 20, 220, 80});
    EXPECT_EQ(60, height(site));
    EXPECT_EQ(60 - 4, height_of(inside(site, drop_button(window_of(site)))));
    ASSERT_EQ(S_OK, vellora(site)->put_AutoHeight(VARIANT_TRUE));
    EXPECT_EQ(automatic_height(site), height(site));
}

TEST_F(Layout, SavedWithoutAutoHeightTheFirstSizeIsAutomaticAllTheSame) {
    ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"AutoHeight", false);
    Site& site = container_.load(__uuidof(Vellora), *bag.Get(), L"Vellora1", {20, 20, 220, 80});
    EXPECT_EQ(automatic_height(site), height(site));
    site.move({20, 20, 220, 90});
    EXPECT_EQ(70, height(site));
}

TEST_F(Layout, AutoHeightIsAnnouncedOnlyWhenItChanges) {
    Site& site = place();
    site.state().changed.clear();
    ASSERT_EQ(S_OK, vellora(site)->put_AutoHeight(VARIANT_TRUE));
    EXPECT_TRUE(same_lines({}, site.state().changed));
    ASSERT_EQ(S_OK, vellora(site)->put_AutoHeight(VARIANT_FALSE));
    EXPECT_TRUE(same_lines({"AutoHeight"}, site.state().changed));
}

TEST_F(Layout, AHostThatKeepsItsSizesIsLivedWith) {
    Site& site = container_.add_site(L"Vellora1", {20, 20, 220, 70});
    site.state().grants_sizes = false;
    site.take(Library::instance().create(__uuidof(Vellora)));
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    ASSERT_EQ(S_OK, site.activate());
    site.move({20, 20, 240, 80});
    const RECT button = inside(site, drop_button(window_of(site)));
    EXPECT_EQ(inner_width(site) - GetSystemMetrics(SM_CXHTHUMB), button.left);
    EXPECT_EQ(220, width_of(screen_rect(window_of(site))));
}

TEST_F(Layout, AWindowNarrowerThanItsButtonDoesNoHarm) {
    Site& site = place();
    for (int width : {0, 1, 5, 17})
        EXPECT_TRUE(SUCCEEDED(site.move({20, 20, 20 + width, 44}))) << width;
    site.move({20, 20, 220, 44});
    EXPECT_EQ(inner_width(site) - GetSystemMetrics(SM_CXHTHUMB) - 2,
              width_of(inside(site, text_field(window_of(site)))));
}

} // namespace
} // namespace vellora::test
