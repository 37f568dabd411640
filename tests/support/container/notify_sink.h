// IPropertyNotifySink: the control says which of its bindable properties changed.
#pragma once

#include "support/container/site_part.h"

#include <ocidl.h>

namespace vellora::test {

class NotifySink final : public SitePart<IPropertyNotifySink> {
public:
    using SitePart::SitePart;
    STDMETHODIMP OnChanged(DISPID id) override;
    STDMETHODIMP OnRequestEdit(DISPID id) override;

private:
    std::string name_of(DISPID id) const;
};

} // namespace vellora::test
