// The settings a form designer saved with a control. Some, such as check boxes, cannot be changed any more
// once the program runs, so a control gets them here, when it is loaded.
#pragma once

#include "com_object.h"

#include <map>
#include <string>

#include <oaidl.h>
#include <ocidl.h>

namespace vellora::samples {

class SavedSettings final : public ComObject<IPropertyBag> {
public:
    /// By the name of the property. Truth values are -1 and 0. What is not named here has its default value.
    using Values = std::map<std::wstring, long>;

    explicit SavedSettings(Values values) : values_(std::move(values)) {}

    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override;
    STDMETHODIMP Write(LPCOLESTR, VARIANT*) override { return E_NOTIMPL; }

private:
    Values values_;
};

} // namespace vellora::samples
