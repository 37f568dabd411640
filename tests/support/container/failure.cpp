#include "support/container/failure.h"

#include "support/container/text.h"

#include <utility>
#include <wrl/client.h>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

long Failure::number() const noexcept {
    const auto bits = static_cast<unsigned long>(result);
    return (bits & 0xFFFF0000UL) == 0x800A0000UL ? static_cast<long>(bits & 0xFFFFUL) : result;
}

std::string Failure::describe() const {
    return std::to_string(number()) + " source \"" + utf8(source) + "\" description \"" + utf8(description) +
           '"';
}

CallFailed::CallFailed(Failure failure) : failure_(std::move(failure)), text_(failure_.describe()) {}

Failure failure_of(IUnknown* object, REFIID interface_id, HRESULT result) {
    Failure failure{result, {}, {}};
    ComPtr<ISupportErrorInfo> support;
    ComPtr<IErrorInfo> info;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&support))) ||
        support->InterfaceSupportsErrorInfo(interface_id) != S_OK || GetErrorInfo(0, &info) != S_OK)
        return failure;
    Bstr source;
    Bstr description;
    info->GetSource(source.out());
    info->GetDescription(description.out());
    failure.source = source.text();
    failure.description = description.text();
    return failure;
}

Failure failure_of(HRESULT result, EXCEPINFO& info) {
    if (result != DISP_E_EXCEPTION)
        return {result, {}, {}};
    if (info.pfnDeferredFillIn)
        info.pfnDeferredFillIn(&info);
    Bstr source;
    Bstr description;
    *source.out() = std::exchange(info.bstrSource, nullptr);
    *description.out() = std::exchange(info.bstrDescription, nullptr);
    SysFreeString(std::exchange(info.bstrHelpFile, nullptr));
    const HRESULT code = info.scode ? info.scode : static_cast<HRESULT>(0x800A0000UL | info.wCode);
    return {code, source.text(), description.text()};
}

} // namespace vellora::test
