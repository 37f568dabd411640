// ICategorizeProperties: the groups of a property list. The platform's headers lack the interface.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

inline constexpr IID IID_ICategorizeProperties = {
    0x4D07FC10, 0xF931, 0x11CE, {0xB0, 0x01, 0x00, 0xAA, 0x00, 0x68, 0x84, 0xE5}};

struct ICategorizeProperties : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID property, int* category) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(int category, LCID locale, BSTR* name) = 0;
};

class ControlHost;

class PropertyCategories final : public Delegating<ICategorizeProperties> {
public:
    explicit PropertyCategories(ControlHost& host);

    STDMETHODIMP MapPropertyToCategory(DISPID property, int* category) noexcept override;
    /// The standard groups have names in every container already.
    STDMETHODIMP GetCategoryName(int category, LCID locale, BSTR* name) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
