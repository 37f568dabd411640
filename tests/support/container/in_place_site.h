// IOleInPlaceSiteEx: activation, the place of the control, and its wish for another one.
#pragma once

#include "support/container/site_part.h"

#include <ocidl.h>
#include <oleidl.h>

namespace vellora::test {

class InPlaceSite final : public SitePart<IOleInPlaceSiteEx> {
public:
    using SitePart::SitePart;
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter_mode) override;
    STDMETHODIMP CanInPlaceActivate() override;
    STDMETHODIMP OnInPlaceActivate() override;
    STDMETHODIMP OnUIActivate() override;
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place,
                                  RECT* clip, OLEINPLACEFRAMEINFO* info) override;
    STDMETHODIMP Scroll(SIZE extent) override;
    STDMETHODIMP OnUIDeactivate(BOOL undoable) override;
    STDMETHODIMP OnInPlaceDeactivate() override;
    STDMETHODIMP DiscardUndoState() override;
    STDMETHODIMP DeactivateAndUndo() override;
    STDMETHODIMP OnPosRectChange(const RECT* place) override;
    STDMETHODIMP OnInPlaceActivateEx(BOOL* no_redraw, DWORD flags) override;
    STDMETHODIMP OnInPlaceDeactivateEx(BOOL no_redraw) override;
    STDMETHODIMP RequestUIActivate() override;
};

} // namespace vellora::test
