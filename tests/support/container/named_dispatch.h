// An automation object whose properties are functions: the extender of a control, the form it stands on, an
// image list.
#pragma once

#include "support/container/call_log.h"
#include "support/container/own_object.h"
#include "support/container/variant.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <oaidl.h>

namespace vellora::test {

class NamedDispatch final : public OwnObject<IDispatch> {
public:
    using Getter = std::function<Variant()>;
    using Putter = std::function<void(const Variant&)>;
    /// Arguments in declared order. It throws CallFailed to raise an error.
    using Indexed = std::function<Variant(const std::vector<Variant>& indexes)>;

    NamedDispatch();
    /// Names are found without regard to case. Without a putter the property is read only.
    void property(const std::wstring& name, Getter get, Putter put = {});
    /// A read-only property with indexes.
    void indexed(const std::wstring& name, Indexed get);
    /// Enters every access into a log, which may prescribe an answer: `object(Property)`.
    void report_to(CallLog& log, const std::string& object);

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* info, UINT* wrong_argument) override;

private:
    static HRESULT read(const Indexed& get, const DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* info);

    struct Property {
        std::wstring name;
        Indexed get;
        Putter put;
    };
    std::map<DISPID, Property> properties_;
    CallLog* log_ = nullptr;
    std::string log_name_;
};

} // namespace vellora::test
