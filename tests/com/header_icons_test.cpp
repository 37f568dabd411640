// Header icons from the host's own image list object, which is reached by name and may do anything.
#include "com/support/open_list_test.h"
#include "support/container/call_by_name.h"
#include "support/container/image_list_object.h"
#include "support/container/text.h"

#include <commctrl.h>

namespace vellora::test {
namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 128, 0);

std::string not_found() {
    return run_time_error(35601, "Element not found");
}
std::string wrong_object() {
    return control_error(
        "Vellora1", 380,
        "HeaderIcons takes an image list: an object with the properties hImageList and ListImages");
}

class HeaderIconsTest : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        fill(5, 3);
    }
    IDispatch* by_name() {
        return dispatch_.Get() ? dispatch_.Get() : (dispatch_ = site().as<IDispatch>()).Get();
    }
    std::string set_list(IDispatch* object) {
        return failure_text([&] { set_property(by_name(), L"HeaderIcons", object); });
    }
    std::string set_icon(long column, const wchar_t* key) {
        return failure_text([&] { put_property(by_name(), L"HeaderIcon", key, {column}); });
    }
    std::wstring icon(long column) { return get_property(by_name(), L"HeaderIcon", {column}).text(); }
    /// The image a header shows, -1 for none.
    int shown(int column) {
        HDITEMW item{};
        item.mask = HDI_FORMAT | HDI_IMAGE;
        SendMessageW(header_of(list()), HDM_GETITEMW, static_cast<WPARAM>(column - 1),
                     reinterpret_cast<LPARAM>(&item));
        return item.fmt & HDF_IMAGE ? item.iImage : -1;
    }
    HIMAGELIST drawn_from() {
        return reinterpret_cast<HIMAGELIST>(
            SendMessageW(header_of(list()), HDM_GETIMAGELIST, HDSIL_NORMAL, 0));
    }
    Lines captions_and_widths() {
        Lines lines;
        for (short column = 1; column <= 3; ++column) {
            Bstr caption;
            c().get_ColumnHeader(column, caption.out());
            const auto pixels = SendMessageW(list(), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column - 1), 0);
            wchar_t shown_text[100] = {};
            HDITEMW item{};
            item.mask = HDI_TEXT;
            item.pszText = shown_text;
            item.cchTextMax = 100;
            SendMessageW(header_of(list()), HDM_GETITEMW, static_cast<WPARAM>(column - 1),
                         reinterpret_cast<LPARAM>(&item));
            lines.push_back(utf8(caption.text()) + "/" + utf8(shown_text) + " " + std::to_string(pixels));
        }
        return lines;
    }
    /// A screen colour of the header of a column, in the rows from top to bottom.
    bool header_has(int column, COLORREF color) {
        UpdateWindow(list());
        const RECT area = header_rect(list(), column - 1);
        HDC screen = GetDC(nullptr);
        bool found = false;
        for (LONG y = area.top; y < area.bottom && !found; ++y)
            for (LONG x = area.left; x < area.right && !found; ++x)
                found = GetPixel(screen, x, y) == color;
        ReleaseDC(nullptr, screen);
        return found;
    }

    ComPtr<IDispatch> dispatch_;
    ImageListObject icons_{16, {L"up", L"down"}, {red, green}};
};

TEST_F(HeaderIconsTest, AreTheObjectItselfInBothWays) {
    ComPtr<IDispatch> found;
    EXPECT_EQ(S_OK, c().get_HeaderIcons(&found));
    EXPECT_EQ(nullptr, found.Get());
    EXPECT_EQ(S_OK, c().putref_HeaderIcons(icons_.object().Get()));
    EXPECT_EQ(S_OK, c().get_HeaderIcons(&found));
    EXPECT_EQ(icons_.object().Get(), found.Get());
    EXPECT_EQ(S_OK, c().putref_HeaderIcons(nullptr));
    EXPECT_EQ(S_OK, c().get_HeaderIcons(&found));
    EXPECT_EQ(nullptr, found.Get());
    EXPECT_EQ("none", set_list(icons_.object().Get()));
    EXPECT_EQ(icons_.object().Get(), get_property(by_name(), L"HeaderIcons").get().pdispVal);
    put_property(by_name(), L"HeaderIcons", static_cast<IDispatch*>(nullptr));
    EXPECT_EQ(nullptr, get_property(by_name(), L"HeaderIcons").get().pdispVal);
}

TEST_F(HeaderIconsTest, HoldsTheObjectUntilAnotherOneComes) {
    ComPtr<NamedDispatch> object(new NamedDispatch);
    object->property(L"hImageList", [] { return 0L; });
    object->property(L"ListImages", [] { return Variant(); });
    EXPECT_EQ("none", set_list(object.Get()));
    EXPECT_EQ(2U, object->references());
    EXPECT_EQ("none", set_list(nullptr));
    EXPECT_EQ(1U, object->references());
}

TEST_F(HeaderIconsTest, RefusesObjectsOfAnotherKind) {
    ComPtr<NamedDispatch> other(new NamedDispatch);
    EXPECT_EQ(wrong_object(), set_list(other.Get()));
    other->property(L"hImageList", [] { return 0L; });
    EXPECT_EQ(wrong_object(), set_list(other.Get()));
    EXPECT_EQ(wrong_object(), set_list(by_name()));
    for (const Variant& odd :
         {Variant(L"text"), Variant(12345L), Variant(-1L), Variant(by_name()), Variant::null(),
          Variant(static_cast<long>(reinterpret_cast<LONG_PTR>(&red)))}) {
        icons_.handle = [&] { return odd; };
        EXPECT_EQ(wrong_object(), set_list(icons_.object().Get())) << odd.describe();
    }
}

TEST_F(HeaderIconsTest, AListWithoutImagesYetIsTaken) {
    icons_.handle = []() -> Variant { throw CallFailed({DISP_E_EXCEPTION, L"", L""}); };
    EXPECT_EQ("none", set_list(icons_.object().Get()));
    EXPECT_EQ(not_found(), set_icon(1, L"up"));
    icons_.handle = [] { return Variant(0L); };
    EXPECT_EQ("none", set_list(icons_.object().Get()));
    EXPECT_EQ(not_found(), set_icon(1, L"up"));
    icons_.handle = nullptr;
    EXPECT_EQ("none", set_icon(1, L"up"));
    EXPECT_EQ(0, shown(1));
}

TEST_F(HeaderIconsTest, ShowsImagesByTheirKeys) {
    set_list(icons_.object().Get());
    EXPECT_EQ("none", set_icon(1, L"down"));
    EXPECT_EQ("none", set_icon(3, L"up"));
    EXPECT_EQ(1, shown(1));
    EXPECT_EQ(-1, shown(2));
    EXPECT_EQ(0, shown(3));
    EXPECT_EQ(L"down", icon(1));
    EXPECT_EQ(L"", icon(2));
    EXPECT_EQ("none", set_icon(1, L""));
    EXPECT_EQ(-1, shown(1));
    EXPECT_EQ(L"", icon(1));
}

TEST_F(HeaderIconsTest, ErrorsAreThoseOfTheListView) {
    EXPECT_EQ("none", set_icon(99, L"up")) << "without a list nothing happens";
    set_list(icons_.object().Get());
    EXPECT_EQ(not_found(), set_icon(1, L"nowhere"));
    EXPECT_EQ(not_found(), set_icon(1, L"1"));
    for (const long column : {-1L, 0L, 4L, 51L}) {
        EXPECT_EQ(out_of_bounds(), set_icon(column, L"up"));
        EXPECT_EQ(out_of_bounds(), failure_text([&] { icon(column); }));
    }
}

TEST_F(HeaderIconsTest, LeaveCaptionsAndWidthsToThePixel) {
    c().put_ColumnHeader(2, Bstr(L"Town").get());
    c().put_ColumnWidth(1, 613);
    c().put_ColumnWidth(2, 1007);
    const Lines before = captions_and_widths();
    set_list(icons_.object().Get());
    EXPECT_TRUE(same_lines(before, captions_and_widths()));
    set_icon(2, L"up");
    EXPECT_TRUE(same_lines(before, captions_and_widths()));
    ImageListObject large(32, {L"up"}, {green});
    set_list(large.object().Get());
    EXPECT_TRUE(same_lines(before, captions_and_widths()));
    set_list(nullptr);
    EXPECT_TRUE(same_lines(before, captions_and_widths()));
}

TEST_F(HeaderIconsTest, StayWhenTheCaptionChanges) {
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    c().put_ColumnHeader(2, Bstr(L"other").get());
    EXPECT_EQ(1, shown(2));
    wchar_t text[] = L"by message";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = text;
    SendMessageW(list(), LVM_SETCOLUMNW, 1, reinterpret_cast<LPARAM>(&column));
    EXPECT_EQ(1, shown(2));
}

TEST_F(HeaderIconsTest, AreDrawnInTheHeadersAndNowhereElse) {
    SendMessageW(list(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    const LRESULT boxes = SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_STATE, 0);
    ASSERT_NE(0, boxes);
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    open();
    EXPECT_TRUE(header_has(2, green));
    EXPECT_FALSE(header_has(1, green));
    EXPECT_EQ(0, SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
    EXPECT_EQ(boxes, SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_STATE, 0));
}

TEST_F(HeaderIconsTest, AreGoneWithTheList) {
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    set_list(nullptr);
    EXPECT_EQ(nullptr, drawn_from());
    EXPECT_EQ(-1, shown(2));
    open();
    EXPECT_FALSE(header_has(2, green));
}

TEST_F(HeaderIconsTest, AreLostWhenTheColumnsAreBuiltAnew) {
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    c().put_Columns(2);
    EXPECT_EQ(L"", icon(2));
    EXPECT_EQ(-1, shown(2));
    EXPECT_EQ("none", set_icon(2, L"down"));
    EXPECT_EQ(1, shown(2));
}

TEST_F(HeaderIconsTest, AreReadAnewAtEachOpening) {
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    icons_.replace_images(16, {green, red});
    open();
    EXPECT_TRUE(header_has(2, red));
    c().HideList();
    icons_.keys = {L"down", L"up"};
    open();
    EXPECT_EQ(0, shown(2));
    EXPECT_TRUE(header_has(2, green));
}

TEST_F(HeaderIconsTest, OutliveTheHostsImagesWhileTheyStandOnTheScreen) {
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    open();
    icons_.destroy_images();
    icons_.release();
    RedrawWindow(list(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_TRUE(header_has(2, green));
    c().HideList();
    open();
    EXPECT_FALSE(header_has(2, green));
}

TEST_F(HeaderIconsTest, AnObjectThatAnswersNonsenseShowsNoIcon) {
    set_list(icons_.object().Get());
    const auto broken = [](const Variant& index) {
        ComPtr<NamedDispatch> image(new NamedDispatch);
        image->property(L"Index", [index] { return index; });
        return Variant(static_cast<IDispatch*>(image.Get()));
    };
    for (const Variant& index : {Variant(L"1"), Variant(0L), Variant(-1L), Variant(3L), Variant(2147483647L),
                                 Variant(1e300), Variant::null(), Variant(), Variant(by_name())}) {
        icons_.item = [&](const Variant&) { return broken(index); };
        EXPECT_EQ(not_found(), set_icon(1, L"up")) << index.describe();
    }
    for (const Variant& item : {Variant(5L), Variant(L"up"), Variant(static_cast<IDispatch*>(nullptr))}) {
        icons_.item = [&](const Variant&) { return item; };
        EXPECT_EQ(not_found(), set_icon(1, L"up")) << item.describe();
        icons_.item = nullptr;
        icons_.collection = [&] { return item; };
        EXPECT_EQ(not_found(), set_icon(1, L"up")) << item.describe();
        icons_.collection = nullptr;
    }
    EXPECT_EQ("none", set_icon(1, L"up"));
    icons_.item = [&](const Variant&) -> Variant { throw CallFailed({E_FAIL, L"", L""}); };
    icons_.handle = [] { return Variant(12345L); };
    open();
    EXPECT_EQ(-1, shown(1));
    EXPECT_EQ(L"up", icon(1));
}

TEST_F(HeaderIconsTest, AnObjectMayEndTheControlWhileItIsAsked) {
    set_list(icons_.object().Get());
    set_icon(1, L"up");
    const ComPtr<_Vellora> control = vellora(site());
    icons_.handle = [&] {
        icons_.handle = nullptr;
        site().destroy();
        return Variant(0L);
    };
    control->ShowList();
    EXPECT_FALSE(is_open());
}

TEST_F(HeaderIconsTest, AnObjectMayEndTheFormWhileItIsAsked) {
    set_list(icons_.object().Get());
    set_icon(1, L"up");
    const ComPtr<_Vellora> control = vellora(site());
    icons_.item = [&](const Variant&) {
        icons_.item = nullptr;
        container_.destroy_form();
        return Variant(0L);
    };
    control->ShowList();
    EXPECT_FALSE(is_open());
}

TEST_F(HeaderIconsTest, AnObjectMayAssignAnotherListOrColumnsWhileItIsAsked) {
    ImageListObject other(32, {L"up"}, {green});
    set_list(icons_.object().Get());
    set_icon(3, L"up");
    icons_.handle = [&] {
        icons_.handle = nullptr;
        set_list(other.object().Get());
        return Variant(0L);
    };
    open();
    EXPECT_EQ(0, shown(3));
    EXPECT_TRUE(header_has(3, green));
    c().HideList();
    other.item = [&](const Variant&) {
        other.item = nullptr;
        c().put_Columns(1);
        return Variant(0L);
    };
    open();
    EXPECT_EQ(-1, shown(1));
}

TEST_F(HeaderIconsTest, LargeIconsMakeTheHeaderTaller) {
    ImageListObject large(32, {L"up"}, {green});
    set_list(large.object().Get());
    set_icon(1, L"up");
    open();
    const RECT header = header_rect(list(), 0);
    EXPECT_GE(header.bottom - header.top, 32);
    const RECT row = row_rect(list(), 4);
    EXPECT_FALSE(IsRectEmpty(&row)) << "the list is too low for its rows";
    c().HideList();
    set_list(icons_.object().Get());
    open();
    const RECT low = header_rect(list(), 0);
    EXPECT_LT(low.bottom - low.top, 32);
}

TEST_F(HeaderIconsTest, InADesignerHeaderIconDoesNothing) {
    Site& designed = design(L"Vellora2");
    const auto control = vellora(designed);
    EXPECT_EQ(S_OK, control->putref_HeaderIcons(icons_.object().Get()));
    EXPECT_EQ(S_OK, control->put_HeaderIcon(1, Bstr(L"up").get()));
    Bstr assigned;
    EXPECT_EQ(S_OK, control->get_HeaderIcon(1, assigned.out()));
    EXPECT_EQ(L"", assigned.text());
}

TEST_F(HeaderIconsTest, AreSavedWithTheFormAndLoadedAgain) {
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    const ComPtr<PropertyBag> bag(new PropertyBag);
    ASSERT_EQ(S_OK, site().save(*bag.Get()));
    Site& loaded = container_.load(__uuidof(Vellora), *bag.Get(), L"Vellora2", {20, 60, 220, 84});
    const auto copy = vellora(loaded);
    ComPtr<IDispatch> list;
    Bstr assigned;
    EXPECT_EQ(S_OK, copy->get_HeaderIcons(&list));
    EXPECT_EQ(icons_.object().Get(), list.Get());
    EXPECT_EQ(S_OK, copy->get_HeaderIcon(2, assigned.out()));
    EXPECT_EQ(L"down", assigned.text());
}

TEST_F(HeaderIconsTest, BothAreReported) {
    site().state().changed.clear();
    set_list(icons_.object().Get());
    set_icon(2, L"down");
    EXPECT_TRUE(same_lines({"HeaderIcons", "HeaderIcon"}, site().state().changed));
}

} // namespace
} // namespace vellora::test
