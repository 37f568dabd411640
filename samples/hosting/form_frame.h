// The form as its controls see it: the place where the one control that has the user's attention, the
// UI-active one, reports itself, so that it gets the keys before anybody else.
#pragma once

#include "com_object.h"

#include <oleidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class FormFrame final : public ComObject<IOleInPlaceFrame> {
public:
    explicit FormFrame(HWND form) : form_(form) {}

    /// Whether the UI-active control used up a message of the form's queue.
    bool takes(MSG& message) const;
    /// The user turned to something else.
    void deactivate_current() const;
    void form_activated(bool active) const;

    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) override;

    // Borders, menus and status texts are for documents inside documents. A form has none of them to share.
    STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(const BORDERWIDTHS*) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(const BORDERWIDTHS*) override { return S_OK; }
    STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
    STDMETHODIMP TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

private:
    HWND form_;
    Microsoft::WRL::ComPtr<IOleInPlaceActiveObject> active_;
};

} // namespace vellora::samples
