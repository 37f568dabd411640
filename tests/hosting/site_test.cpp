// What a container tells of itself, and what stands in for what it does not tell.
#include "com/bstr.h"
#include "com/control_size.h"
#include "hosting/support/hosting_test.h"
#include "support/container/named_dispatch.h"
#include "support/container/own_object.h"

namespace vellora::test {
namespace {

using SiteTest = HostingTest;

/// A container that counts in a unit of its own and may know how many of them make a hundredth of a
/// millimetre.
class CountingSite final : public IOleClientSite, public IOleControlSite {
public:
    STDMETHODIMP QueryInterface(REFIID id, void** out) override {
        if (id == IID_IOleControlSite)
            *out = static_cast<IOleControlSite*>(this);
        else if (id == IID_IOleClientSite || id == IID_IUnknown)
            *out = static_cast<IOleClientSite*>(this);
        else
            return E_NOINTERFACE;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP GetExtendedControl(IDispatch** out) override { return extender.CopyTo(IID_PPV_ARGS(out)); }
    STDMETHODIMP TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) override {
        if (himetric_per_unit == 0 || flags != (XFORMCOORDS_SIZE | XFORMCOORDS_CONTAINERTOHIMETRIC))
            return E_NOTIMPL;
        himetric->x = static_cast<LONG>(container->x * himetric_per_unit);
        return S_OK;
    }
    STDMETHODIMP OnControlInfoChanged() override { return E_NOTIMPL; }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP OnFocus(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }
    STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOTIMPL; }
    STDMETHODIMP ShowObject() override { return E_NOTIMPL; }
    STDMETHODIMP OnShowWindow(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

    ComPtr<NamedDispatch> extender{new NamedDispatch};
    float himetric_per_unit = 0;
};

class ExtenderWidth : public testing::Test {
protected:
    ExtenderWidth() { site_.set(&container_); }
    float width(Variant reported, float himetric_per_unit, LONG pixels) {
        container_.extender->property(L"Width", [reported] { return reported; });
        container_.himetric_per_unit = himetric_per_unit;
        return com::Extender(site_).width(pixels);
    }

    CountingSite container_;
    com::ClientSite site_;
};

TEST_F(ExtenderWidth, IsConvertedFromTheContainersUnit) {
    constexpr float himetric_per_pixel = 2540.0F / 96;
    EXPECT_NEAR(1500, width(100, himetric_per_pixel, 100), 1);
    EXPECT_NEAR(2835, width(5, 1000, 100), 1);
}

TEST_F(ExtenderWidth, InTwipsStaysExactlyWhatItIs) {
    EXPECT_EQ(1337.0F, width(1337.0F, 2540.0F / 1440, 89));
    EXPECT_EQ(1337.0F, width(1337.0F, 0, 89));
}

TEST_F(ExtenderWidth, WithoutAKnownUnitIsTheControlsOwn) {
    EXPECT_EQ(com::width_in_twips(100), width(100, 0, 100));
    EXPECT_EQ(com::width_in_twips(100), width(L"wide", 0, 100));
    EXPECT_EQ(com::width_in_twips(100), width(Variant(), 0, 100));
}

TEST_F(SiteTest, WithoutAContainerAProgramIsRunning) {
    com::ControlHost& host = fixture().host();
    EXPECT_TRUE(host.ambients().user_mode());
    EXPECT_FALSE(host.ambients().ui_dead());
    EXPECT_EQ(u"", host.display_name());
    EXPECT_EQ(nullptr, host.container_window());
    EXPECT_EQ(nullptr, host.extender().form_window());
    EXPECT_FALSE(host.extender().form_is_mdi_child());
    EXPECT_NE(nullptr, host.ambients().font().Get());
}

TEST_F(SiteTest, TheContainersWordCounts) {
    Site& site = on_form();
    com::ControlHost& host = fixture().host();
    site.ambients().give(DISPID_AMBIENT_USERMODE, false);
    site.ambients().give(DISPID_AMBIENT_UIDEAD, std::int16_t{1});
    site.ambients().give(DISPID_AMBIENT_LOCALEID, 1031);
    EXPECT_FALSE(host.ambients().user_mode());
    EXPECT_TRUE(host.ambients().ui_dead());
    EXPECT_EQ(1031U, host.ambients().locale());
    site.ambients().give(DISPID_AMBIENT_LOCALEID, 0);
    EXPECT_EQ(DWORD{LOCALE_USER_DEFAULT}, host.ambients().locale());
    site.ambients().give(DISPID_AMBIENT_USERMODE, L"perhaps");
    EXPECT_TRUE(host.ambients().user_mode());
}

TEST_F(SiteTest, TheNameIsTheContainersOrTheExtenders) {
    Site& site = on_form();
    com::ControlHost& host = fixture().host();
    site.ambients().give(DISPID_AMBIENT_DISPLAYNAME, L"Shown");
    EXPECT_EQ(u"Shown", host.display_name());
    site.ambients().withhold(DISPID_AMBIENT_DISPLAYNAME);
    EXPECT_EQ(u"Fixture1", host.display_name());
    site.state().has_extender = false;
    EXPECT_EQ(u"", host.display_name());
}

TEST_F(SiteTest, TheContainersFontIsCopied) {
    Site& site = on_form();
    const ComPtr<IDispatch> theirs = make_font(L"Arial", 20);
    ComPtr<IFont> original, copy;
    ASSERT_EQ(S_OK, theirs.As(&original));
    ASSERT_EQ(S_OK, original->put_Italic(TRUE));
    site.ambients().give(DISPID_AMBIENT_FONT, theirs.Get());
    ASSERT_EQ(S_OK, fixture().host().ambients().font().As(&copy));
    BOOL italic = FALSE, bold = TRUE;
    EXPECT_EQ(S_OK, copy->get_Italic(&italic));
    EXPECT_TRUE(italic);
    ASSERT_EQ(S_OK, copy->put_Bold(TRUE));
    EXPECT_EQ(S_OK, original->get_Bold(&bold));
    EXPECT_FALSE(bold);
}

TEST_F(SiteTest, TheFormIsFoundThroughItsWindows) {
    Site& site = on_form();
    com::ControlHost& host = fixture().host();
    const HWND form = container_.form().window();
    EXPECT_EQ(form, host.container_window());
    EXPECT_EQ(form, host.extender().form_window());
    site.state().has_extender = false;
    EXPECT_EQ(form, host.extender().form_window());
    EXPECT_FALSE(host.extender().form_is_mdi_child());
}

TEST_F(SiteTest, AnMdiChildIsAForm) {
    Container frame({Form::Kind::mdi_child});
    Site& site = frame.add_site(L"Fixture1", {0, 0, 100, 20});
    site.take(control());
    ASSERT_EQ(S_OK, site.give_site());
    com::ControlHost& host = fixture().host();
    EXPECT_EQ(frame.form().window(), host.extender().form_window());
    EXPECT_TRUE(host.extender().form_is_mdi_child());
    ASSERT_EQ(S_OK, site.take_site_away());
}

TEST(ControlSize, UnitsGoBackAndForth) {
    for (const LONG length : {0L, 1L, 96L, 1000L}) {
        const SIZE back = com::to_pixels(com::to_himetric({length, length}));
        EXPECT_EQ(length, back.cx);
        EXPECT_EQ(length, back.cy);
    }
    com::ControlSize size;
    size.set_pixels({-5, 10});
    EXPECT_EQ(0, size.pixels().cx);
}

} // namespace
} // namespace vellora::test
