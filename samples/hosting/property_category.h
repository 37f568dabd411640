// The groups of a property window. A control says by ICategorizeProperties which group a property belongs to; the
// standard groups are named by the designer, others by the control.
#pragma once

#include <string>
#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace vellora::samples {

/// Not in every system's headers.
struct ICategorizeProperties : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID property, int* category) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(int category, LCID locale, BSTR* name) = 0;
};

class PropertyCategories {
public:
    explicit PropertyCategories(IUnknown* control);
    /// "Misc" for what the control does not put anywhere.
    std::wstring name_for(DISPID property) const;

private:
    Microsoft::WRL::ComPtr<ICategorizeProperties> control_;
};

} // namespace vellora::samples
