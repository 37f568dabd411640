// ISpecifyPropertyPages: which pages a design tool shows for the control.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class SpecifyPages final : public Delegating<ISpecifyPropertyPages> {
public:
    explicit SpecifyPages(ControlHost& host);

    STDMETHODIMP GetPages(CAUUID* pages) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
