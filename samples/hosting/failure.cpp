#include "failure.h"

#include "bstr.h"

#include <cwchar>
#include <oleauto.h>
#include <wrl/client.h>

namespace vellora::samples {

namespace {

/// What a member of the control left behind when it failed; empty when it left nothing.
std::wstring last_description() {
    Microsoft::WRL::ComPtr<IErrorInfo> error;
    Bstr description;
    if (GetErrorInfo(0, &error) == S_OK)
        error->GetDescription(description.out());
    return description.text();
}

} // namespace

void check(HRESULT result, const wchar_t* step) {
    if (SUCCEEDED(result))
        return;
    wchar_t number[16];
    std::swprintf(number, ARRAYSIZE(number), L"%08lX", static_cast<unsigned long>(result));
    throw Failure(std::wstring(step) + L" failed: " + number + L' ' + last_description());
}

} // namespace vellora::samples
