// The looks of the control as its host sets them, above all with values that are none.
#include "com/support/host_test.h"
#include "support/container/call_by_name.h"
#include "support/container/pictures.h"

#include <VelloraCTL.h>
#include <functional>
#include <ocidl.h>
#include <olectl.h>

namespace vellora::test {
namespace {

constexpr OLE_COLOR no_colors[] = {0x03000000, 0x7FFFFFFF, 0x800000FF, 0xFFFFFFFF};

template <class Interface>
ComPtr<Interface> to(const ComPtr<IDispatch>& object) {
    ComPtr<Interface> result;
    object.As(&result);
    return result;
}

/// An object that says it is a font and a picture, and has nothing of either.
class HollowObject final : public IFontDisp, public IPictureDisp {
public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IFontDisp)
            *object = static_cast<IFontDisp*>(this);
        else if (id == IID_IPictureDisp)
            *object = static_cast<IPictureDisp*>(this);
        if (*object)
            AddRef();
        return *object ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override { return --references_; }
    ULONG references() const { return references_; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

private:
    ULONG references_ = 1;
};

class AppearanceTest : public HostTest {
protected:
    void SetUp() override {
        site_ = &place();
        control_ = vellora(*site_);
    }
    std::string failure(HRESULT result) const {
        return SUCCEEDED(result) ? "none" : failure_of(control_.Get(), __uuidof(_Vellora), result).describe();
    }
    /// It opens, paints, closes and gives its height.
    void expect_to_work() {
        ASSERT_EQ(S_OK, control_->ShowList());
        ASSERT_NE(nullptr, floating_window());
        RedrawWindow(floating_window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        RedrawWindow(window_of(*site_), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        ASSERT_EQ(S_OK, control_->HideList());
        ASSERT_EQ(nullptr, floating_window());
    }
    int height() const {
        const RECT rect = screen_rect(window_of(*site_));
        return rect.bottom - rect.top;
    }

    Site* site_ = nullptr;
    ComPtr<_Vellora> control_;
};

TEST_F(AppearanceTest, NumbersThatAreNoColoursAreRefused) {
    for (const OLE_COLOR color : no_colors) {
        EXPECT_EQ(bad_value(), failure(control_->put_ForeColor(color))) << color;
        EXPECT_EQ(bad_value(), failure(control_->put_BackColor(color))) << color;
        EXPECT_EQ(bad_value(), failure(control_->put_ButtonForeColor(color))) << color;
        EXPECT_EQ(bad_value(), failure(control_->put_ButtonBackColor(color))) << color;
    }
    OLE_COLOR kept = 0;
    EXPECT_EQ(S_OK, control_->get_ForeColor(&kept));
    EXPECT_EQ(0x80000008U, kept);
    expect_to_work();
}

TEST_F(AppearanceTest, AColourAfterOneThatIsNoneIsTaken) {
    control_->put_BackColor(no_colors[0]);
    EXPECT_EQ(S_OK, control_->put_BackColor(0x00123456));
    OLE_COLOR kept = 0;
    EXPECT_EQ(S_OK, control_->get_BackColor(&kept));
    EXPECT_EQ(0x00123456U, kept);
}

TEST_F(AppearanceTest, WhatOnlyCallsItselfAFontOrAPictureIsRefused) {
    HollowObject hollow;
    EXPECT_EQ(bad_value(), failure(control_->putref_Font(&hollow)));
    EXPECT_EQ(bad_value(), failure(control_->putref_Picture(&hollow)));
    EXPECT_EQ(1U, hollow.references());
    ComPtr<IFontDisp> font;
    EXPECT_EQ(S_OK, control_->get_Font(&font));
    EXPECT_NE(nullptr, font.Get());
    expect_to_work();
}

TEST_F(AppearanceTest, ObjectsOfTheOtherKindDoNotMatch) {
    const ComPtr<IDispatch> control = site_->as<IDispatch>();
    const ComPtr<IDispatch> font = make_font(L"Tahoma", 10);
    const ComPtr<IDispatch> picture = make_picture("bitmap", {4, 4});
    EXPECT_NE("none", failure_text([&] { set_property(control.Get(), L"Picture", font.Get()); }));
    EXPECT_NE("none", failure_text([&] { set_property(control.Get(), L"Font", picture.Get()); }));
    EXPECT_NE("none", failure_text([&] { put_property(control.Get(), L"Font", L"Tahoma"); }));
    ComPtr<IPictureDisp> kept;
    EXPECT_EQ(S_OK, control_->get_Picture(&kept));
    EXPECT_EQ(nullptr, kept.Get());
    expect_to_work();
}

TEST_F(AppearanceTest, NothingIsNoFont) {
    EXPECT_EQ(bad_value(), failure(control_->putref_Font(nullptr)));
    expect_to_work();
}

TEST_F(AppearanceTest, AnEmptyPictureShowsNothing) {
    ComPtr<IPictureDisp> empty;
    ASSERT_EQ(S_OK, OleCreatePictureIndirect(nullptr, IID_IPictureDisp, TRUE,
                                             reinterpret_cast<void**>(empty.GetAddressOf())));
    EXPECT_EQ(S_OK, control_->putref_Picture(empty.Get()));
    ComPtr<IPictureDisp> kept;
    EXPECT_EQ(S_OK, control_->get_Picture(&kept));
    EXPECT_EQ(empty.Get(), kept.Get());
    expect_to_work();
}

TEST_F(AppearanceTest, EveryKindOfPictureIsGivenBackAsItCame) {
    for (const char* kind : {"bitmap", "icon", "metafile"}) {
        const ComPtr<IPictureDisp> picture = to<IPictureDisp>(make_picture(kind, {40, 30}));
        EXPECT_EQ(S_OK, control_->putref_Picture(picture.Get())) << kind;
        ComPtr<IPictureDisp> kept;
        EXPECT_EQ(S_OK, control_->get_Picture(&kept));
        EXPECT_EQ(picture.Get(), kept.Get()) << kind;
        expect_to_work();
    }
    EXPECT_EQ(S_OK, control_->putref_Picture(nullptr));
    expect_to_work();
}

TEST_F(AppearanceTest, TheButtonStyleIsFixedAtRunTime) {
    for (const int style : {0, 1, 7}) {
        EXPECT_EQ(control_error("Vellora1", 382, "Property Set can't be executed at run time"),
                  failure(control_->put_ButtonStyle(static_cast<vlButtonStyles>(style))));
    }
    vlButtonStyles kept = vlToggle;
    EXPECT_EQ(S_OK, control_->get_ButtonStyle(&kept));
    EXPECT_EQ(vlNormal, kept);
    expect_to_work();
}

TEST_F(AppearanceTest, AButtonStyleThatIsNoneActsAsTheOrdinaryOne) {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"ButtonStyle", 7L);
    Site& loaded = container_.load(__uuidof(Vellora), *bag.Get(), L"Vellora2", {20, 80, 220, 104});
    const ComPtr<_Vellora> control = vellora(loaded);
    vlButtonStyles kept = vlNormal;
    EXPECT_EQ(S_OK, control->get_ButtonStyle(&kept));
    EXPECT_EQ(7, static_cast<int>(kept));
    const HWND closed = drop_button(window_of(loaded));
    ASSERT_EQ(S_OK, control->ShowList());
    EXPECT_NE(closed, drop_button(window_of(loaded)))
        << "the ordinary button has a second one for the open list";
    ASSERT_EQ(S_OK, control->HideList());
    EXPECT_EQ(closed, drop_button(window_of(loaded)));
}

TEST_F(AppearanceTest, TheHostsFontObjectStaysInUse) {
    ComPtr<IFontDisp> object;
    ASSERT_EQ(S_OK, control_->putref_Font(to<IFontDisp>(make_font(L"Tahoma", 8)).Get()));
    ASSERT_EQ(S_OK, control_->get_Font(&object));
    const auto handle = [&] { return SendMessageW(text_field(window_of(*site_)), WM_GETFONT, 0, 0); };
    LOGFONTW before{}, after{};
    GetObjectW(reinterpret_cast<HFONT>(handle()), sizeof before, &before);
    put_property(object.Get(), L"Size", 20);
    put_property(object.Get(), L"Italic", true);
    GetObjectW(reinterpret_cast<HFONT>(handle()), sizeof after, &after);
    EXPECT_GT(std::abs(after.lfHeight), std::abs(before.lfHeight));
    EXPECT_NE(0, after.lfItalic);
    const int small = height();
    site_->move({20, 20, 260, 44});
    EXPECT_GT(height(), small);
    expect_to_work();
}

TEST_F(AppearanceTest, AFontObjectWithAnotherLookIsAChangeOfTheControl) {
    const ComPtr<IFontDisp> font = to<IFontDisp>(make_font(L"Tahoma", 8));
    const auto changes_by = [&](double points) {
        EXPECT_EQ(S_OK, site_->save(*ComPtr<PropertyBag>(new PropertyBag).Get()));
        EXPECT_EQ(S_FALSE, site_->as<IPersistStreamInit>()->IsDirty());
        site_->state().changed.clear();
        put_property(font.Get(), L"Size", points);
        EXPECT_EQ(site_->state().changed.empty() ? S_FALSE : S_OK, site_->as<IPersistStreamInit>()->IsDirty());
        return site_->state().changed;
    };
    ASSERT_EQ(S_OK, control_->putref_Font(font.Get()));
    EXPECT_EQ(Lines{"Font"}, changes_by(14));
    EXPECT_EQ(Lines{}, changes_by(14));
    EXPECT_EQ(Lines{"Font"}, changes_by(9));
}

TEST_F(AppearanceTest, WhoHearsOfAChangedFontMayGiveAnotherOrEndTheControl) {
    const ComPtr<IFontDisp> font = to<IFontDisp>(make_font(L"Tahoma", 8));
    const ComPtr<IFontDisp> other = to<IFontDisp>(make_font(L"Tahoma", 10));
    ASSERT_EQ(S_OK, control_->putref_Font(font.Get()));
    site_->log().inside("IPropertyNotifySink::OnChanged", [&] { control_->putref_Font(other.Get()); });
    put_property(font.Get(), L"Size", 14);
    ComPtr<IFontDisp> kept;
    EXPECT_EQ(S_OK, control_->get_Font(&kept));
    EXPECT_EQ(other.Get(), kept.Get());
    control_.Reset();
    site_->log().inside("IPropertyNotifySink::OnChanged", [&] { site_->destroy(); });
    put_property(other.Get(), L"Size", 14);
    EXPECT_EQ(nullptr, site_->control());
    put_property(other.Get(), L"Size", 10);
}

TEST_F(AppearanceTest, OneFontObjectServesTwoControlsAndOutlivesThem) {
    const ComPtr<IFontDisp> font = to<IFontDisp>(make_font(L"Tahoma", 8));
    Site& other = place(L"Vellora2", {20, 80, 220, 104});
    ASSERT_EQ(S_OK, control_->putref_Font(font.Get()));
    ASSERT_EQ(S_OK, vellora(other)->putref_Font(font.Get()));
    put_property(font.Get(), L"Size", 14);
    const auto height_of_font = [](Site& site) {
        LOGFONTW look{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(text_field(window_of(site)), WM_GETFONT, 0, 0)),
                   sizeof look, &look);
        return look.lfHeight;
    };
    EXPECT_EQ(height_of_font(*site_), height_of_font(other));
    control_.Reset();
    site_->destroy();
    put_property(font.Get(), L"Size", 9);
    other.destroy();
    put_property(font.Get(), L"Size", 10);
}

} // namespace
} // namespace vellora::test
