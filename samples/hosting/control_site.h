// The place of one control on the form: what OLE wants from a container, and no more. It gives the control a
// window to live in, a rectangle and the properties of its surroundings.
#pragma once

#include "com_object.h"
#include "form_frame.h"

#include <string>

#include <oaidl.h>
#include <ocidl.h>
#include <oleidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class ControlSite final : public ComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch> {
public:
    /// What every control on a form may ask for.
    struct Surroundings {
        HWND form;
        Microsoft::WRL::ComPtr<FormFrame> frame;
        Microsoft::WRL::ComPtr<IFontDisp> font;
        /// The window around an MDI child; null for every other form.
        HWND mdi_frame = nullptr;
        /// False in a form designer: the control shows what it will look like, and nobody works with it.
        bool running = true;
    };

    ControlSite(const Surroundings& surroundings, std::wstring name);

    /// Takes a new control up and shows it; `saved` are its settings, null for a new one with all defaults.
    /// Throws a Failure when the control refuses.
    void take(IUnknown* control, IPropertyBag* saved);
    /// The steps of take() for hosts that go another way about it: knowing the control, and showing it.
    void adopt(IUnknown* control);
    void show();
    /// The host's own object around the control, by which the control learns its name.
    void extend(IDispatch* extender) { extender_ = extender; }
    /// The control is called something else now.
    void rename(std::wstring name);
    /// Pixels of the form's client area. The control may decide for another height, see place().
    void move(const RECT& place);
    const RECT& place() const noexcept { return place_; }
    /// Lets the control go, which ends it.
    void release();

    // The control's place.
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place,
                                  RECT* clip, OLEINPLACEFRAMEINFO* info) override;
    STDMETHODIMP OnPosRectChange(const RECT* place) override;
    STDMETHODIMP OnUIActivate() override;

    // The properties of its surroundings.
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

    // Notices that the form has nothing to do about.
    STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
    STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
    // The form's own message loop moves the focus on Tab.
    STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }

    // Services that a form need not offer.
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer** container) override;
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
    STDMETHODIMP GetExtendedControl(IDispatch** object) override;
    STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

private:
    static void load(IUnknown* control, IPropertyBag* saved);

    Surroundings surroundings_;
    std::wstring name_;
    RECT place_{0, 0, 100, 20}; // until the form is laid out
    Microsoft::WRL::ComPtr<IOleObject> object_;
    Microsoft::WRL::ComPtr<IOleInPlaceObject> in_place_;
    Microsoft::WRL::ComPtr<IDispatch> extender_;
};

} // namespace vellora::samples
