// An automation object whose properties are functions: the extender of a control and the form it stands on.
#pragma once

#include "support/container/own_object.h"
#include "support/container/variant.h"

#include <functional>
#include <map>
#include <string>

#include <oaidl.h>

namespace vellora::test {

class NamedDispatch final : public OwnObject<IDispatch> {
public:
    using Getter = std::function<Variant()>;
    using Putter = std::function<void(const Variant&)>;

    NamedDispatch();
    /// Names are found without regard to case. Without a putter the property is read only.
    void property(const std::wstring& name, Getter get, Putter put = {});

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* info, UINT* wrong_argument) override;

private:
    struct Property {
        std::wstring name;
        Getter get;
        Putter put;
    };
    std::map<DISPID, Property> properties_;
};

} // namespace vellora::test
