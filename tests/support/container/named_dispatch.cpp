#include "support/container/named_dispatch.h"

#include "support/container/failure.h"
#include "support/container/text.h"

#include <utility>
#include <wchar.h>

namespace vellora::test {

NamedDispatch::NamedDispatch() : OwnObject({IID_IDispatch}) {}

void NamedDispatch::property(const std::wstring& name, Getter get, Putter put) {
    const DISPID id = static_cast<DISPID>(properties_.size()) + 1;
    properties_[id] = {name, [get = std::move(get)](const std::vector<Variant>&) { return get(); },
                       std::move(put)};
}

void NamedDispatch::indexed(const std::wstring& name, Indexed get) {
    const DISPID id = static_cast<DISPID>(properties_.size()) + 1;
    properties_[id] = {name, std::move(get), {}};
}

void NamedDispatch::report_to(CallLog& log, const std::string& object) {
    log_ = &log;
    log_name_ = object;
}

STDMETHODIMP NamedDispatch::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}
STDMETHODIMP NamedDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return DISP_E_BADINDEX;
}

STDMETHODIMP NamedDispatch::GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) {
    if (count != 1)
        return DISP_E_UNKNOWNNAME;
    ids[0] = DISPID_UNKNOWN;
    for (const auto& [id, property] : properties_)
        if (_wcsicmp(property.name.c_str(), names[0]) == 0)
            ids[0] = id;
    return ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT NamedDispatch::read(const Indexed& get, const DISPPARAMS& parameters, VARIANT* result,
                            EXCEPINFO* info) {
    std::vector<Variant> indexes;
    for (UINT i = parameters.cArgs; i > 0; --i)
        indexes.emplace_back(parameters.rgvarg[i - 1]);
    try {
        Variant value = get(indexes);
        return result ? VariantCopy(result, value.argument()) : S_OK;
    } catch (const CallFailed& failed) {
        if (info) {
            *info = {};
            info->scode = failed.failure().result;
        }
        return DISP_E_EXCEPTION;
    }
}

STDMETHODIMP NamedDispatch::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* info, UINT*) {
    const auto found = properties_.find(id);
    if (found == properties_.end())
        return DISP_E_MEMBERNOTFOUND;
    if (log_)
        if (const auto answer = log_->instead(log_name_, "(" + utf8(found->second.name) + ")"))
            return *answer;
    if (kind & DISPATCH_PROPERTYGET) {
        return read(found->second.get, *parameters, result, info);
    }
    if (!found->second.put || parameters->cArgs != 1)
        return DISP_E_MEMBERNOTFOUND;
    found->second.put(Variant(parameters->rgvarg[0]));
    return S_OK;
}

} // namespace vellora::test
