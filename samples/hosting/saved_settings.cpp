#include "saved_settings.h"

#include <oleauto.h>

namespace vellora::samples {

STDMETHODIMP SavedSettings::Read(LPCOLESTR name, VARIANT* value, IErrorLog*) {
    const auto found = values_.find(name);
    if (found == values_.end())
        return E_INVALIDARG;
    VARIANT number{};
    number.vt = VT_I4;
    number.lVal = found->second;
    // The control may ask for a type of its own.
    const VARTYPE wanted = value->vt == VT_EMPTY ? static_cast<VARTYPE>(VT_I4) : value->vt;
    return VariantChangeType(value, &number, 0, wanted);
}

} // namespace vellora::samples
