// What a form designer keeps of a control: its settings by name, as it saved them.
#pragma once

#include "hosting/com_object.h"
#include "hosting/variant.h"

#include <map>
#include <string>

#include <ocidl.h>

namespace vellora::samples {

class PropertyBag final : public ComObject<IPropertyBag> {
public:
    bool has(const std::wstring& name) const { return values_.contains(name); }

    STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
        const auto found = values_.find(name);
        if (found == values_.end())
            return E_INVALIDARG; // the control takes its default
        Variant copy = found->second;
        // The control may ask for a type of its own.
        if (value->vt != VT_EMPTY && !copy.change_to(value->vt))
            return E_INVALIDARG;
        VariantInit(value);
        return VariantCopy(value, copy.get());
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override {
        values_[name] = Variant(*value);
        return S_OK;
    }

private:
    std::map<std::wstring, Variant> values_;
};

} // namespace vellora::samples
