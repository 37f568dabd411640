#include "invocation.h"

#include <algorithm>
#include <cwchar>

namespace vellora::samples {

namespace {

/// The numbers of a host's run-time errors travel inside a result of this shape.
long script_number(HRESULT result) {
    constexpr HRESULT run_time_error = static_cast<HRESULT>(0x800A0000);
    return (result & static_cast<HRESULT>(0xFFFF0000)) == run_time_error ? result & 0xFFFF : result;
}

std::wstring system_words(HRESULT result) {
    wchar_t text[200] = L"";
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        static_cast<DWORD>(result), 0, text, ARRAYSIZE(text), nullptr);
    const std::wstring words(text, length);
    const std::size_t end = words.find_last_not_of(L" \r\n");
    return end == std::wstring::npos ? L"The call failed" : words.substr(0, end + 1);
}

/// What the object left behind about its failure, freed in any case.
struct ErrorLeft {
    EXCEPINFO info{};
    ~ErrorLeft() {
        for (const BSTR text : {info.bstrSource, info.bstrDescription, info.bstrHelpFile})
            SysFreeString(text);
    }
    [[noreturn]] void raise(HRESULT result) {
        if (result != DISP_E_EXCEPTION)
            throw Refusal(script_number(result), system_words(result));
        if (info.pfnDeferredFillIn)
            info.pfnDeferredFillIn(&info);
        const long number = info.wCode != 0 ? info.wCode : script_number(info.scode);
        throw Refusal(number, info.bstrDescription ? info.bstrDescription : system_words(info.scode));
    }
};

} // namespace

std::wstring sentence(const Failure& failure) {
    const auto* const refusal = dynamic_cast<const Refusal*>(&failure);
    return refusal ? L"Error " + std::to_wstring(refusal->number()) + L": " + failure.message() : failure.message();
}

Variant invoke(IDispatch* object, DISPID id, WORD kind, std::vector<Variant> arguments) {
    std::vector<VARIANT> reversed;
    std::ranges::for_each(arguments, [&](Variant& one) { reversed.insert(reversed.begin(), *one.get()); });
    DISPID assigned = DISPID_PROPERTYPUT;
    const bool puts = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters{reversed.data(), puts ? &assigned : nullptr, static_cast<UINT>(reversed.size()),
                          puts ? 1U : 0U};
    Variant result;
    ErrorLeft error;
    const HRESULT called = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                          puts ? nullptr : result.out(), &error.info, nullptr);
    if (FAILED(called))
        error.raise(called);
    return result;
}

} // namespace vellora::samples
