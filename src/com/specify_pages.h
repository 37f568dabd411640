// ISpecifyPropertyPages: the control has none of its own; its properties are in the container's list.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class SpecifyPages final : public Delegating<ISpecifyPropertyPages> {
public:
    explicit SpecifyPages(IUnknown* controlling) : Delegating(controlling) {}

    STDMETHODIMP GetPages(CAUUID* pages) noexcept override {
        if (!pages)
            return E_POINTER;
        *pages = {};
        return S_OK;
    }
};

} // namespace vellora::com
