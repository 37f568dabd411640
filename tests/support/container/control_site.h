// IOleControlSite: focus, accelerators and the extender, the container's own half of the control's
// properties.
#pragma once

#include "support/container/site_part.h"

#include <ocidl.h>

namespace vellora::test {

class ControlSite final : public SitePart<IOleControlSite> {
public:
    using SitePart::SitePart;
    STDMETHODIMP OnControlInfoChanged() override;
    STDMETHODIMP LockInPlaceActive(BOOL lock) override;
    STDMETHODIMP GetExtendedControl(IDispatch** extender) override;
    STDMETHODIMP TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) override;
    STDMETHODIMP TranslateAccelerator(MSG* message, DWORD modifiers) override;
    STDMETHODIMP OnFocus(BOOL got) override;
    STDMETHODIMP ShowPropertyFrame() override;
};

} // namespace vellora::test
