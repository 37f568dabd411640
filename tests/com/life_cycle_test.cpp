// A control's life in a host: created, given a site, initialised, placed, sized, activated and ended.
#include "com/support/host_test.h"
#include "support/container/atl_host.h"
#include "support/container/library.h"
#include "support/container/text.h"

namespace vellora::test {
namespace {

class LifeCycle : public HostTest {
protected:
    Site& bare(const std::wstring& name = L"Vellora1") {
        Site& site = container_.add_site(name, {20, 20, 220, 44});
        site.take(Library::instance().create(__uuidof(Vellora)));
        return site;
    }
    static std::wstring text_of(IUnknown* control) {
        ComPtr<_Vellora> vellora;
        Bstr text;
        EXPECT_EQ(S_OK, control->QueryInterface(IID_PPV_ARGS(&vellora)));
        EXPECT_EQ(S_OK, vellora->get_Text(text.out()));
        return text.text();
    }
    static ULONG references_left(ComPtr<IUnknown>& control) {
        IUnknown* last = control.Detach();
        return last->Release();
    }
};

TEST_F(LifeCycle, CreatedAndReleasedWithoutAHost) {
    ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    ASSERT_NE(nullptr, control.Get());
    EXPECT_EQ(0U, references_left(control));
}

TEST_F(LifeCycle, NothingOfTheLibraryStaysInUse) {
    {
        Container host(bare_form());
        Site& site = host.add(__uuidof(Vellora));
        site.as<_Vellora>()->ShowList();
        host.pump();
    }
    EXPECT_EQ(S_OK, Library::instance().can_unload());
    ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    EXPECT_EQ(S_FALSE, Library::instance().can_unload());
    control.Reset();
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

TEST_F(LifeCycle, AnOrdinaryHostActivatesItInOrder) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    ASSERT_EQ(S_OK, site.listen());
    site.log().take();
    ASSERT_EQ(S_OK, site.activate());
    Lines steps;
    for (const std::string& line : site.log().take())
        if (line.find("InPlaceActivate") != std::string::npos ||
            line.find("GetWindowContext") != std::string::npos)
            steps.push_back(line);
    EXPECT_TRUE(same_lines({"IOleInPlaceSite::CanInPlaceActivate", "IOleInPlaceSite::OnInPlaceActivate",
                            "IOleInPlaceSite::GetWindowContext"},
                           steps));
    EXPECT_TRUE(IsWindowVisible(window_of(site)));
}

TEST_F(LifeCycle, AHostThatRefusesActivationGetsNoWindow) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    site.log().answer("IOleInPlaceSite::CanInPlaceActivate", S_FALSE);
    EXPECT_TRUE(FAILED(site.activate()));
    EXPECT_FALSE(IsWindowVisible(window_of(site)));
}

TEST_F(LifeCycle, AFailingHostDoesNoHarmAndMayTryAgain) {
    for (const char* call :
         {"IOleInPlaceSite::GetWindow", "IOleInPlaceSite::CanInPlaceActivate",
          "IOleInPlaceSite::OnInPlaceActivate", "IOleInPlaceSite::GetWindowContext",
          "IOleInPlaceFrame::SetActiveObject", "IOleInPlaceSite::OnUIActivate",
          "IOleControlSite::GetExtendedControl", "IOleControlSite::OnFocus", "Ambient",
          "IOleInPlaceSite::OnPosRectChange", "IOleClientSite::GetContainer", "IOleClientSite::ShowObject"}) {
        Site& site = bare();
        site.log().answer(call, E_FAIL);
        ASSERT_EQ(S_OK, site.give_site()) << call;
        ASSERT_EQ(S_OK, site.init_new()) << call;
        site.ui_activate();
        site.log().answer(call, S_OK);
        EXPECT_EQ(S_OK, site.ui_activate()) << call;
        EXPECT_TRUE(IsWindowVisible(window_of(site))) << call;
        site.destroy();
    }
}

TEST_F(LifeCycle, AHostThatWillNotHaveItActiveIsObeyed) {
    for (const char* call : {"IOleInPlaceSite::CanInPlaceActivate", "IOleInPlaceSite::OnInPlaceActivate"}) {
        Site& site = bare();
        ASSERT_EQ(S_OK, site.give_site());
        ASSERT_EQ(S_OK, site.init_new());
        site.log().answer(call, E_FAIL);
        EXPECT_TRUE(FAILED(site.activate())) << call;
        EXPECT_FALSE(IsWindowVisible(window_of(site))) << call;
        site.destroy();
    }
}

TEST_F(LifeCycle, InitialisedBeforeItHasASite) {
    Site& site = bare(L"cboLate");
    ASSERT_EQ(S_OK, site.init_new());
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_TRUE(IsWindowVisible(window_of(site)));
    EXPECT_EQ(L"cboLate", text_of(site.control()));
}

TEST_F(LifeCycle, ActivatedWithoutEverBeingInitialised) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_EQ(L"Vellora1", text_of(site.control()));
    SHORT columns = 0;
    EXPECT_EQ(S_OK, vellora(site)->get_Columns(&columns));
    EXPECT_EQ(1, columns);
}

TEST_F(LifeCycle, SurvivesAHostWithoutAnyAmbients) {
    Site& site = bare();
    site.ambients().withhold_all();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    ASSERT_EQ(S_OK, site.activate());
    LONG index = 0;
    EXPECT_EQ(S_OK, vellora(site)->AddItem(Variant(L"a").get(), -1));
    EXPECT_EQ(S_OK, vellora(site)->put_ListIndex(0));
    EXPECT_EQ(S_OK, vellora(site)->get_ListIndex(&index));
    EXPECT_EQ(0, index);
    ComPtr<IFontDisp> font;
    EXPECT_EQ(S_OK, vellora(site)->get_Font(&font));
    EXPECT_NE(nullptr, font.Get());
}

TEST_F(LifeCycle, LoadedBeforeItHasASizeOrAnExtenderItsColumnsAreSeen) {
    Site& site = bare();
    site.state().has_extender = false;
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.load(*ComPtr<PropertyBag>(new PropertyBag).Get()));
    ASSERT_EQ(S_OK, site.set_extent());
    ASSERT_EQ(S_OK, site.activate());
    float width = 0;
    ASSERT_EQ(S_OK, vellora(site)->get_ColumnWidth(1, &width));
    EXPECT_GT(width, 0);
}

TEST_F(LifeCycle, DeactivatedWhileItAsksForItsPlaceItKeepsNothingOfIt) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    site.log().inside("IOleInPlaceSite::GetWindowContext", [&] { site.deactivate(); });
    EXPECT_EQ(S_OK, site.activate());
    EXPECT_FALSE(IsWindowVisible(window_of(site)));
    ASSERT_EQ(S_OK, site.take_site_away());
    EXPECT_EQ(1U, site.references());
}

TEST_F(LifeCycle, FollowsTheRectangleOfItsHost) {
    Site& site = place();
    ASSERT_EQ(S_OK, site.move({50, 60, 350, 84}));
    RECT rect = screen_rect(window_of(site));
    POINT origin{50, 60};
    ClientToScreen(container_.form().window(), &origin);
    EXPECT_EQ(origin.x, rect.left);
    EXPECT_EQ(origin.y, rect.top);
    EXPECT_EQ(300, rect.right - rect.left);
}

TEST_F(LifeCycle, TheExtentIsGivenBack) {
    Site& site = place();
    SIZEL extent{};
    ASSERT_EQ(S_OK, site.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent));
    const int expected = MulDiv(200 * twips_per_pixel().cx, 2540, 1440);
    EXPECT_NEAR(expected, extent.cx, 30);
}

TEST_F(LifeCycle, TakesTheFocusWhenItIsUiActivated) {
    Site& site = place();
    site.log().take();
    ASSERT_EQ(S_OK, site.ui_activate());
    container_.pump();
    EXPECT_EQ(text_field(window_of(site)), GetFocus());
    EXPECT_TRUE(site.log().contains("IOleInPlaceSite::OnUIActivate"));
    EXPECT_TRUE(site.log().contains("IOleInPlaceFrame::SetActiveObject(object)"));
    EXPECT_TRUE(site.log().contains("IOleControlSite::OnFocus(True)"));
}

TEST_F(LifeCycle, GivesTheFocusUpWhenItIsUiDeactivated) {
    Site& site = place();
    ASSERT_EQ(S_OK, site.ui_activate());
    site.log().take();
    ASSERT_EQ(S_OK, site.ui_deactivate());
    EXPECT_TRUE(site.log().contains("IOleInPlaceSite::OnUIDeactivate"));
    EXPECT_TRUE(site.log().contains("IOleInPlaceFrame::SetActiveObject(Nothing)"));
    EXPECT_TRUE(IsWindowVisible(window_of(site)));
}

TEST_F(LifeCycle, TheTextFieldTakingTheFocusActivatesTheControl) {
    Site& site = place();
    site.log().take();
    SetFocus(text_field(window_of(site)));
    container_.pump();
    EXPECT_TRUE(site.log().contains("IOleInPlaceSite::OnUIActivate"));
}

TEST_F(LifeCycle, DeactivatedAndActivatedAgainItKeepsItsRows) {
    Site& site = place();
    ASSERT_EQ(S_OK, vellora(site)->AddItem(Variant(L"kept").get(), -1));
    ASSERT_EQ(S_OK, site.deactivate());
    EXPECT_TRUE(site.log().contains("IOleInPlaceSite::OnInPlaceDeactivate"));
    EXPECT_FALSE(IsWindowVisible(window_of(site)));
    ASSERT_EQ(S_OK, site.activate());
    Variant text;
    ASSERT_EQ(S_OK, vellora(site)->get_List(0, -1, text.out()));
    EXPECT_EQ("\"kept\"", text.describe());
    EXPECT_TRUE(IsWindowVisible(window_of(site)));
}

TEST_F(LifeCycle, HostsSeeItWithoutAWindowOfItsOwnBeingActive) {
    Site& site = bare();
    ASSERT_EQ(S_OK, site.give_site());
    ASSERT_EQ(S_OK, site.init_new());
    EXPECT_EQ(S_OK, vellora(site)->AddItem(Variant(L"early").get(), -1));
    LONG count = 0;
    EXPECT_EQ(S_OK, vellora(site)->get_ListCount(&count));
    EXPECT_EQ(1, count);
}

TEST_F(LifeCycle, ServesAsThePartOfAnotherObject) {
    class Outer final : public OwnObject<IUnknown> {
    public:
        Outer() : OwnObject({}) {}
        STDMETHODIMP QueryInterface(REFIID id, void** object) override {
            return IsEqualIID(id, IID_IUnknown) || !inner ? OwnObject::QueryInterface(id, object)
                                                          : inner->QueryInterface(id, object);
        }
        ComPtr<IUnknown> inner;
    };
    ComPtr<Outer> outer(new Outer);
    outer->inner = Library::instance().create(__uuidof(Vellora), outer.Get());
    ComPtr<_Vellora> part;
    ASSERT_EQ(S_OK, outer->QueryInterface(IID_PPV_ARGS(&part)));
    ComPtr<IUnknown> identity;
    ASSERT_EQ(S_OK, part.As(&identity));
    EXPECT_EQ(static_cast<IUnknown*>(outer.Get()), identity.Get());
    SHORT columns = 0;
    EXPECT_EQ(S_OK, part->get_Columns(&columns));
    identity.Reset();
    part.Reset();
    EXPECT_EQ(1U, outer->references());
    outer->inner.Reset();
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

TEST_F(LifeCycle, AnotherObjectMayOnlyAskForUnknown) {
    class Outer final : public OwnObject<IUnknown> {
    public:
        Outer() : OwnObject({}) {}
    };
    ComPtr<Outer> outer(new Outer);
    ComPtr<IClassFactory> factory;
    ComPtr<_Vellora> part;
    ASSERT_EQ(S_OK, Library::instance().class_object(__uuidof(Vellora), IID_PPV_ARGS(&factory)));
    EXPECT_TRUE(FAILED(factory->CreateInstance(outer.Get(), IID_PPV_ARGS(&part))));
    EXPECT_EQ(nullptr, part.Get());
}

TEST_F(LifeCycle, EndsInAnyOrder) {
    Site& window_first = bare(L"window first");
    ASSERT_EQ(S_OK, window_first.give_site());
    ASSERT_EQ(S_OK, window_first.init_new());
    ASSERT_EQ(S_OK, window_first.activate());
    Site& site_first = place(L"site first", {20, 60, 220, 84});
    ComPtr<_Vellora> held = vellora(window_first);
    EXPECT_EQ(S_OK, site_first.take_site_away());
    container_.destroy_form();
    LONG count = -1;
    EXPECT_EQ(S_OK, held->get_ListCount(&count));
    EXPECT_EQ(0, count);
    site_first.destroy();
    window_first.destroy();
    EXPECT_EQ(1U, window_first.references());
    EXPECT_EQ(0U, [&] {
        IUnknown* last = held.Detach();
        return last->Release();
    }());
}

TEST_F(LifeCycle, ADestroyedControlLetsGoOfItsHost) {
    Site& site = place();
    ASSERT_EQ(S_OK, site.ui_activate());
    ASSERT_EQ(S_OK, vellora(site)->ShowList());
    container_.pump();
    site.destroy();
    EXPECT_EQ(1U, site.references());
    EXPECT_EQ(1U, site.events().references());
    EXPECT_EQ(nullptr, container_.form().active_object());
    EXPECT_TRUE(floating_windows().empty());
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

TEST_F(LifeCycle, LivesInTheAtlContainer) {
    ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    ComPtr<_Vellora> vellora;
    ASSERT_EQ(S_OK, control.As(&vellora));
    {
        AtlHost host(container_.form().window(), {20, 20, 220, 44}, control.Get());
        LONG handle = 0;
        ASSERT_EQ(S_OK, vellora->get_hWnd(&handle));
        HWND window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
        EXPECT_TRUE(IsChild(host.window(), window));
        EXPECT_TRUE(IsWindowVisible(window));
        host.move({10, 10, 310, 34});
        EXPECT_EQ(300, screen_rect(window).right - screen_rect(window).left);
        SetFocus(text_field(window));
        EXPECT_EQ(S_OK, vellora->AddItem(Variant(L"a").get(), -1));
        EXPECT_EQ(S_OK, vellora->ShowList());
        container_.pump();
        EXPECT_EQ(1U, floating_windows().size());
        EXPECT_EQ(S_OK, vellora->HideList());
        EXPECT_TRUE(floating_windows().empty());
    }
    vellora.Reset();
    EXPECT_EQ(0U, references_left(control));
}

TEST_F(LifeCycle, EndsWithTheAtlContainerWhileItsListIsOpen) {
    ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    ComPtr<_Vellora> vellora;
    ASSERT_EQ(S_OK, control.As(&vellora));
    {
        AtlHost host(container_.form().window(), {20, 20, 220, 44}, control.Get());
        EXPECT_EQ(S_OK, vellora->ShowList());
        container_.pump();
    }
    EXPECT_TRUE(floating_windows().empty());
    vellora.Reset();
    EXPECT_EQ(0U, references_left(control));
}

} // namespace
} // namespace vellora::test
