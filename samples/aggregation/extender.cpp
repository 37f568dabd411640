#include "extender.h"

#include "hosting/failure.h"

#include <new>
#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

// Far from any number the control may use; the first two bytes are those that hosts keep for themselves.
enum ExtenderId : DISPID { name_id = static_cast<DISPID>(0x80010000), tag_id };

} // namespace

ComPtr<IDispatch> Extender::create(const ControlFactory& factory, std::wstring name) {
    ComPtr<Extender> extender(new Extender(std::move(name)));
    extender->take_in(factory.create_inside(extender.Get()));
    return extender;
}

// The control's interfaces count as references to the extender. One kept for good would keep it alive for ever.
void Extender::take_in(ComPtr<IUnknown> control) {
    inner_ = std::move(control);
    check(inner_->QueryInterface(IID_PPV_ARGS(&control_)), L"Asking the control for IDispatch");
    control_->Release();
}

STDMETHODIMP Extender::QueryInterface(REFIID id, void** object) {
    *object = nullptr;
    if (!IsEqualIID(id, __uuidof(IUnknown)) && !IsEqualIID(id, __uuidof(IDispatch)))
        return inner_ ? inner_->QueryInterface(id, object) : E_NOINTERFACE;
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) Extender::Release() {
    const ULONG left = --references_;
    if (left > 0)
        return left;
    // While the control ends it may still count references to what it is part of.
    references_ = 1;
    inner_.Reset();
    delete this;
    return 0;
}

STDMETHODIMP Extender::GetIDsOfNames(REFIID id, OLECHAR** names, UINT count, LCID locale, DISPID* ids) {
    const bool is_name = lstrcmpiW(names[0], L"Name") == 0;
    if (!is_name && lstrcmpiW(names[0], L"Tag") != 0)
        return control_->GetIDsOfNames(id, names, count, locale, ids);
    ids[0] = is_name ? name_id : tag_id;
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

STDMETHODIMP Extender::Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* arguments,
                              VARIANT* result, EXCEPINFO* error, UINT* wrong_argument) {
    if (id != name_id && id != tag_id)
        return control_->Invoke(id, reserved, locale, kind, arguments, result, error, wrong_argument);
    try {
        return name_or_tag(id, kind, *arguments, result);
    } catch (...) {
        return E_OUTOFMEMORY; // exceptions must not reach the caller
    }
}

HRESULT Extender::name_or_tag(DISPID id, WORD kind, const DISPPARAMS& arguments, VARIANT* result) {
    if (kind & DISPATCH_PROPERTYGET) {
        if (!result)
            return E_POINTER;
        result->vt = VT_BSTR;
        result->bstrVal = SysAllocString(id == name_id ? name_.c_str() : tag_.c_str());
        return result->bstrVal ? S_OK : E_OUTOFMEMORY;
    }
    if (id == name_id || !(kind & DISPATCH_PROPERTYPUT))
        return DISP_E_MEMBERNOTFOUND; // names are given on the form, not by programs
    if (arguments.cArgs != 1)
        return DISP_E_BADPARAMCOUNT;
    VARIANT text{};
    const HRESULT converted = VariantChangeType(&text, &arguments.rgvarg[0], 0, VT_BSTR);
    if (SUCCEEDED(converted))
        tag_.assign(text.bstrVal ? text.bstrVal : L"", SysStringLen(text.bstrVal));
    VariantClear(&text);
    return converted;
}

} // namespace vellora::samples
