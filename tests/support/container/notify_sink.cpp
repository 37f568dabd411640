#include "support/container/notify_sink.h"

#include "support/container/text.h"

#include <oaidl.h>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

STDMETHODIMP NotifySink::OnChanged(DISPID id) {
    state_.changed.push_back(name_of(id));
    return enter("IPropertyNotifySink::OnChanged", "(" + state_.changed.back() + ")");
}

STDMETHODIMP NotifySink::OnRequestEdit(DISPID id) {
    return enter("IPropertyNotifySink::OnRequestEdit", "(" + name_of(id) + ")");
}

std::string NotifySink::name_of(DISPID id) const {
    ComPtr<IDispatch> dispatch;
    ComPtr<ITypeInfo> type;
    Bstr name;
    UINT count = 0;
    if (state_.control && SUCCEEDED(state_.control.As(&dispatch)) &&
        SUCCEEDED(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type)) &&
        SUCCEEDED(type->GetNames(id, name.out(), 1, &count)) && count == 1)
        return utf8(name.text());
    return std::to_string(id);
}

} // namespace vellora::test
