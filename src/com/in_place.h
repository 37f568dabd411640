// IOleInPlaceObject and IOleInPlaceActiveObject: the container's side of the in-place life, and the keys of
// the control the user works with.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class InPlaceObject final : public Delegating<IOleInPlaceObject> {
public:
    explicit InPlaceObject(ControlHost& host);

    /// The window exists before activation too, and some containers ask early.
    STDMETHODIMP GetWindow(HWND* window) noexcept override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) noexcept override;
    STDMETHODIMP InPlaceDeactivate() noexcept override;
    STDMETHODIMP UIDeactivate() noexcept override;
    STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) noexcept override;
    STDMETHODIMP ReactivateAndUndo() noexcept override;

private:
    ControlHost& host_;
};

class InPlaceActiveObject final : public Delegating<IOleInPlaceActiveObject> {
public:
    explicit InPlaceActiveObject(ControlHost& host);

    STDMETHODIMP GetWindow(HWND* window) noexcept override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) noexcept override;
    STDMETHODIMP TranslateAccelerator(LPMSG message) noexcept override;
    STDMETHODIMP OnFrameWindowActivate(BOOL activate) noexcept override;
    STDMETHODIMP OnDocWindowActivate(BOOL activate) noexcept override;
    STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) noexcept override;
    STDMETHODIMP EnableModeless(BOOL enable) noexcept override;

private:
    HRESULT offer_to_container(MSG& message);

    ControlHost& host_;
};

} // namespace vellora::com
