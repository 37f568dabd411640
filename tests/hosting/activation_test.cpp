// The in-place life in containers that do things in their own order.
#include "hosting/support/hosting_test.h"

#include <algorithm>

namespace vellora::test {
namespace {

class ActivationTest : public HostingTest {
protected:
    static HWND window() { return fixture().window(); }
    HWND form() { return container_.form().window(); }
    /// Left, top, right, bottom.
    static std::string shown(const RECT& rect) {
        return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) +
               " " + std::to_string(rect.bottom);
    }
    static std::string place_in(HWND parent) {
        RECT rect = {};
        GetWindowRect(window(), &rect);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
        return shown(rect);
    }
    static bool parked() { return !IsWindowVisible(window()) && GetParent(window()) == parking(); }
    static HWND parking() { return fixture().host().parking_window(); }
};

TEST_F(ActivationTest, TheWindowIsThereFromTheBeginning) {
    HWND early = nullptr;
    EXPECT_EQ(S_OK, as<IOleInPlaceObject>()->GetWindow(&early));
    EXPECT_EQ(window(), early);
    EXPECT_TRUE(parked());
    EXPECT_EQ(E_POINTER, as<IOleInPlaceObject>()->GetWindow(nullptr));
}

TEST_F(ActivationTest, StandsWhereTheContainerWantsIt) {
    Site& site = on_form({30, 40, 230, 64});
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_TRUE(IsWindowVisible(window()));
    EXPECT_EQ(form(), GetParent(window()));
    EXPECT_EQ("30 40 230 64", place_in(form()));
    EXPECT_EQ(200, fixture().host().size().cx);
    EXPECT_EQ((Lines{"resized 200 24"}), fixture().take_lines());
}

TEST_F(ActivationTest, GoesBackToItsParkingPlace) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.ui_activate());
    fixture().take_lines();
    ASSERT_EQ(S_OK, site.deactivate());
    EXPECT_TRUE(parked());
    EXPECT_EQ((Lines{"deactivated", "ui inactive"}), fixture().take_lines());
    EXPECT_EQ(S_OK, site.deactivate());
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_TRUE(IsWindowVisible(window()));
}

TEST_F(ActivationTest, ARectangleBeforeActivationIsASize) {
    const RECT early = {7, 9, 157, 30};
    EXPECT_EQ(S_OK, as<IOleInPlaceObject>()->SetObjectRects(&early, nullptr));
    EXPECT_TRUE(parked());
    EXPECT_EQ((Lines{"resized 150 21"}), fixture().take_lines());
    SIZEL extent = {};
    EXPECT_EQ(S_OK, as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent));
    EXPECT_EQ(MulDiv(150, 2540, 96), extent.cx);
}

TEST_F(ActivationTest, AnExtentIsReadBackAsItWasSet) {
    SIZEL extent = {1001, 503}, read = {};
    ASSERT_EQ(S_OK, as<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent));
    EXPECT_EQ(S_OK, as<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &read));
    EXPECT_EQ(1001, read.cx);
    EXPECT_EQ(503, read.cy);
    EXPECT_EQ(DV_E_DVASPECT, as<IOleObject>()->SetExtent(DVASPECT_ICON, &extent));
}

TEST_F(ActivationTest, WithoutAnExtentItHasItsNaturalSize) {
    SIZEL extent = {};
    EXPECT_EQ(S_OK, as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent));
    EXPECT_EQ(MulDiv(121, 2540, 96), extent.cx);
    DVEXTENTINFO info = {sizeof info, DVEXTENT_CONTENT, {}};
    EXPECT_EQ(S_OK,
              as<IViewObjectEx>()->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &info, &extent));
    EXPECT_EQ(MulDiv(21, 2540, 96), extent.cy);
}

TEST_F(ActivationTest, TheContainerGrantsAnotherSizeAtOnce) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.activate());
    fixture().take_lines();
    EXPECT_TRUE(fixture().host().request_size({200, 50}));
    EXPECT_EQ((Lines{"resized 200 50"}), fixture().take_lines());
    EXPECT_EQ("20 20 220 70", place_in(form()));
}

TEST_F(ActivationTest, ARefusedSizeIsLivedWith) {
    Site& site = on_form();
    site.state().grants_sizes = false;
    ASSERT_EQ(S_OK, site.activate());
    fixture().take_lines();
    EXPECT_FALSE(fixture().host().request_size({200, 50}));
    EXPECT_TRUE(fixture().take_lines().empty());
    EXPECT_EQ(24, fixture().host().size().cy);
}

TEST_F(ActivationTest, ALayoutMayAskForAnotherSizeInsideEachResize) {
    Site& site = on_form();
    fixture().when_resized = [] { fixture().host().request_size({fixture().host().size().cx, 21}); };
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_EQ("20 20 220 41", place_in(form()));
    ASSERT_EQ(S_OK, site.move({10, 10, 110, 90}));
    EXPECT_EQ("10 10 110 31", place_in(form()));
}

TEST_F(ActivationTest, AFailingLayoutDoesNotStopTheContainer) {
    Site& site = on_form();
    fixture().when_resized = [] { throw std::bad_alloc(); };
    EXPECT_EQ(S_OK, site.activate());
    EXPECT_TRUE(IsWindowVisible(window()));
}

TEST_F(ActivationTest, AnInactiveControlTakesTheSizeItAsksFor) {
    Site& site = on_form();
    EXPECT_TRUE(fixture().host().request_size({90, 33}));
    EXPECT_EQ((Lines{"resized 90 33"}), fixture().take_lines());
    EXPECT_TRUE(site.log().contains("IOleClientSite::RequestNewObjectLayout"));
}

TEST_F(ActivationTest, ThePartOutsideTheClipIsCutOff) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.activate());
    const RECT position = {20, 20, 220, 44}, clip = {0, 0, 100, 100};
    ASSERT_EQ(S_OK, as<IOleInPlaceObject>()->SetObjectRects(&position, &clip));
    RECT visible = {};
    GetWindowRgnBox(window(), &visible);
    EXPECT_EQ("0 0 80 24", shown(visible));
    ASSERT_EQ(S_OK, as<IOleInPlaceObject>()->SetObjectRects(&position, &position));
    EXPECT_EQ(ERROR, GetWindowRgnBox(window(), &visible));
}

TEST_F(ActivationTest, OutlivesTheContainersWindow) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.activate());
    container_.destroy_form();
    EXPECT_TRUE(IsWindow(window()));
    EXPECT_TRUE(parked());
    EXPECT_EQ(S_OK, as<IOleInPlaceObject>()->InPlaceDeactivate());
    EXPECT_EQ(S_OK, as<IOleObject>()->SetClientSite(nullptr));
}

TEST_F(ActivationTest, TwoControlsOutliveTheWindowTheyShare) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.activate());
    HWND first = window();
    ComPtr<IUnknown> other = make_fixture();
    Site& second = container_.add_site(L"Fixture2", {20, 60, 220, 84});
    second.take(other);
    ASSERT_EQ(S_OK, second.give_site());
    ASSERT_EQ(S_OK, second.activate());
    container_.destroy_form();
    EXPECT_TRUE(IsWindow(first));
    EXPECT_TRUE(IsWindow(window()));
}

TEST_F(ActivationTest, LosingItsSiteDeactivatesIt) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.ui_activate());
    ASSERT_EQ(S_OK, as<IOleObject>()->SetClientSite(nullptr));
    EXPECT_TRUE(parked());
    EXPECT_EQ(1, std::count(site.log().lines().begin(), site.log().lines().end(),
                            "IOleInPlaceSite::OnInPlaceDeactivate"));
    EXPECT_TRUE(FAILED(as<IOleObject>()->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, form(), nullptr)));
}

TEST_F(ActivationTest, ClosingSavesWhatChangedAndDeactivates) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.activate());
    site.log().take();
    ASSERT_EQ(S_OK, as<IOleObject>()->Close(OLECLOSE_SAVEIFDIRTY));
    EXPECT_FALSE(site.log().contains("IOleClientSite::SaveObject"));
    EXPECT_TRUE(parked());
    fixture().host().property_changed(u"Text");
    ASSERT_EQ(S_OK, as<IOleObject>()->Close(OLECLOSE_SAVEIFDIRTY));
    EXPECT_TRUE(site.log().contains("IOleClientSite::SaveObject"));
}

TEST_F(ActivationTest, TheFocusMakesItUiActiveOnce) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.activate());
    fixture().take_lines();
    fixture().host().request_ui_activation();
    fixture().host().request_ui_activation();
    EXPECT_EQ((Lines{"ui active"}), fixture().take_lines());
    EXPECT_TRUE(site.log().contains("IOleControlSite::OnFocus(True)"));
    fixture().host().focus_left();
    EXPECT_TRUE(site.log().contains("IOleControlSite::OnFocus(False)"));
}

TEST_F(ActivationTest, ADeadUserInterfaceStaysDead) {
    Site& site = on_form();
    site.ambients().give(DISPID_AMBIENT_UIDEAD, true);
    ASSERT_EQ(S_OK, site.ui_activate());
    fixture().host().request_ui_activation();
    EXPECT_EQ((Lines{"resized 200 24"}), fixture().take_lines());
}

TEST_F(ActivationTest, UnknownVerbs) {
    Site& site = on_form();
    EXPECT_EQ(E_NOTIMPL, site.verb(-77));
    EXPECT_EQ(OLEOBJ_S_INVALIDVERB, site.verb(5));
    EXPECT_TRUE(IsWindowVisible(window()));
    EXPECT_EQ(S_OK, site.verb(OLEIVERB_HIDE));
    EXPECT_FALSE(IsWindowVisible(window()));
    EXPECT_EQ(S_OK, site.verb(OLEIVERB_SHOW));
    EXPECT_TRUE(IsWindowVisible(window()));
}

TEST_F(ActivationTest, KeysGoToTheControlBeforeTheContainer) {
    Site& site = on_form();
    ASSERT_EQ(S_OK, site.ui_activate());
    site.log().take();
    const auto keys = as<IOleInPlaceActiveObject>();
    MSG tab = {window(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    fixture().when_key = [](const MSG&) { return com::KeyRoute::consumed; };
    EXPECT_EQ(S_OK, keys->TranslateAccelerator(&tab));
    EXPECT_TRUE(site.log().take().empty());
    fixture().when_key = [](const MSG&) { return com::KeyRoute::container; };
    site.log().answer("IOleControlSite::TranslateAccelerator", S_FALSE);
    EXPECT_EQ(S_FALSE, keys->TranslateAccelerator(&tab));
    EXPECT_EQ(1U, site.log().take().size());
    MSG character = {window(), WM_CHAR, 'a', 0, 0, {}};
    EXPECT_EQ(S_FALSE, keys->TranslateAccelerator(&character));
    EXPECT_TRUE(site.log().take().empty());
}

TEST_F(ActivationTest, DrawsWhereverItIsAsked) {
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    ReleaseDC(nullptr, screen);
    const RECTL bounds = {10, 20, 110, 44};
    SetViewportOrgEx(dc, 5, 6, nullptr);
    EXPECT_EQ(S_OK, as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds,
                                            nullptr, nullptr, 0));
    POINT origin = {};
    GetViewportOrgEx(dc, &origin);
    EXPECT_EQ(5, origin.x);
    DeleteDC(dc);
    EXPECT_EQ((Lines{"new", "draw 15 26 115 50"}), fixture().take_lines());
    EXPECT_EQ(DV_E_DVASPECT, as<IViewObject>()->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, dc,
                                                     &bounds, nullptr, nullptr, 0));
}

TEST_F(ActivationTest, GivesItsFaceAsMetafiles) {
    FORMATETC format = {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    STGMEDIUM medium = {};
    ASSERT_EQ(S_OK, as<IDataObject>()->GetData(&format, &medium));
    ENHMETAHEADER header = {};
    EXPECT_NE(0U, GetEnhMetaFileHeader(medium.hEnhMetaFile, sizeof header, &header));
    EXPECT_EQ(MulDiv(121, 2540, 96), header.rclFrame.right);
    ReleaseStgMedium(&medium);
    format.cfFormat = CF_METAFILEPICT;
    format.tymed = TYMED_MFPICT;
    ASSERT_EQ(S_OK, as<IDataObject>()->GetData(&format, &medium));
    EXPECT_EQ(DWORD{TYMED_MFPICT}, medium.tymed);
    ReleaseStgMedium(&medium);
    format.cfFormat = CF_TEXT;
    EXPECT_EQ(DV_E_FORMATETC, as<IDataObject>()->GetData(&format, &medium));
    EXPECT_EQ(DV_E_FORMATETC, as<IDataObject>()->QueryGetData(&format));
}

} // namespace
} // namespace vellora::test
