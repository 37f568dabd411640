#include "event_sink.h"

#include "bstr.h"
#include "failure.h"

#include <VelloraCTL.h>
#include <utility>

namespace vellora::demo {

using Microsoft::WRL::ComPtr;

namespace {

std::wstring argument_text(const std::wstring& event, VARIANT& argument) {
    VARIANT text{};
    // An argument that the handler may change comes by reference; copying it follows the reference.
    if (FAILED(VariantCopyInd(&text, &argument)))
        return L"?";
    if (event == L"DropDown" && text.vt == VT_I4)
        return text.lVal == vlOpen ? L"vlOpen" : L"vlClosed";
    if (FAILED(VariantChangeType(&text, &text, VARIANT_ALPHABOOL, VT_BSTR)))
        return L"?";
    const std::wstring result(text.bstrVal, SysStringLen(text.bstrVal));
    VariantClear(&text);
    return result;
}

/// The event interface in the type library that describes the control.
ComPtr<ITypeInfo> event_type(IUnknown* control) {
    ComPtr<IDispatch> members;
    ComPtr<ITypeInfo> type;
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> events;
    UINT index = 0;
    check(control->QueryInterface(IID_PPV_ARGS(&members)), L"Asking the control for IDispatch");
    check(members->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type), L"Asking the control for its type");
    check(type->GetContainingTypeLib(&library, &index), L"Asking the control for its type library");
    check(library->GetTypeInfoOfGuid(__uuidof(__Vellora), &events), L"Finding the control's events");
    return events;
}

} // namespace

std::wstring Event::text() const {
    std::wstring list;
    for (const std::wstring& argument : arguments)
        list += (list.empty() ? L"" : L", ") + argument;
    return name + L'(' + list + L')';
}

void EventSink::listen_to(IUnknown* control) {
    ComPtr<IConnectionPointContainer> points;
    check(control->QueryInterface(IID_PPV_ARGS(&points)), L"Asking the control for its events");
    check(points->FindConnectionPoint(__uuidof(__Vellora), &point_), L"Finding the control's events");
    learn_names(control);
    check(point_->Advise(this, &cookie_), L"Listening to the control's events");
}

void EventSink::stop() {
    if (const ComPtr<IConnectionPoint> point = std::move(point_))
        point->Unadvise(cookie_);
}

void EventSink::learn_names(IUnknown* control) {
    const ComPtr<ITypeInfo> type = event_type(control);
    FUNCDESC* event = nullptr;
    for (UINT i = 0; SUCCEEDED(type->GetFuncDesc(i, &event)); ++i) {
        Bstr name;
        UINT count = 0;
        if (SUCCEEDED(type->GetNames(event->memid, name.out(), 1, &count)))
            names_[event->memid] = name.text();
        type->ReleaseFuncDesc(event);
    }
}

// COM passes the arguments last one first.
STDMETHODIMP EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                               UINT*) {
    const auto name = names_.find(id);
    if (name == names_.end())
        return DISP_E_MEMBERNOTFOUND;
    try {
        Event event{name->second, {}};
        for (UINT i = parameters->cArgs; i-- > 0;)
            event.arguments.push_back(argument_text(event.name, parameters->rgvarg[i]));
        handler_(event);
        return S_OK;
    } catch (...) {
        return E_FAIL; // exceptions must not reach the control
    }
}

STDMETHODIMP EventSink::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

} // namespace vellora::demo
