#include "event_sink.h"

#include "failure.h"

#include <VelloraCTL.h>
#include <utility>

namespace vellora::samples {

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

} // namespace

std::wstring Event::text() const {
    std::wstring list;
    for (const std::wstring& argument : arguments)
        list += (list.empty() ? L"" : L", ") + argument;
    return name + L'(' + list + L')';
}

std::wstring Event::named_text() const {
    std::wstring list;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        list += list.empty() ? L"" : L", ";
        list += (i < parameters.size() ? parameters[i] + L" = " : L"") + arguments[i];
    }
    return name + L'(' + list + L')';
}

void EventSink::listen_to(IUnknown* control) {
    EventType type = event_type_of(control);
    ComPtr<IConnectionPointContainer> points;
    check(control->QueryInterface(IID_PPV_ARGS(&points)), L"Asking the control for its events");
    check(points->FindConnectionPoint(type.id, &point_), L"Finding the control's events");
    type_ = std::move(type);
    check(point_->Advise(this, &cookie_), L"Listening to the control's events");
}

void EventSink::learn_from(IUnknown* control) {
    type_ = event_type_of(control);
}

void EventSink::stop() {
    if (const ComPtr<IConnectionPoint> point = std::move(point_))
        point->Unadvise(cookie_);
}

// COM passes the arguments last one first.
STDMETHODIMP EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                               UINT*) {
    const auto name = type_.names.find(id);
    if (name == type_.names.end())
        return DISP_E_MEMBERNOTFOUND;
    try {
        Event event{name->second, {}, type_.parameters[id]};
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

} // namespace vellora::samples
