#include "support/container/event_sink.h"

#include "support/container/text.h"

#include <algorithm>
#include <ocidl.h>
#include <utility>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

// The default source interface of the control's class.
ComPtr<ITypeInfo> event_type(IUnknown* control) {
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> coclass;
    TYPEATTR* attributes = nullptr;
    if (FAILED(control->QueryInterface(IID_PPV_ARGS(&provider))) ||
        FAILED(provider->GetClassInfo(&coclass)) || FAILED(coclass->GetTypeAttr(&attributes)))
        return nullptr;
    const UINT count = attributes->cImplTypes;
    coclass->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        INT flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> type;
        constexpr INT wanted = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
        if (SUCCEEDED(coclass->GetImplTypeFlags(i, &flags)) && (flags & wanted) == wanted &&
            SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference)) &&
            SUCCEEDED(coclass->GetRefTypeInfo(reference, &type)))
            return type;
    }
    return nullptr;
}

std::string arguments_text(const EventArguments& arguments) {
    std::string text;
    for (std::size_t i = 0; i < arguments.count(); ++i)
        text += (i ? ", " : "") + arguments.get(i).describe();
    return "(" + text + ")";
}

void write_reference(const VARIANT& target, const Variant& value) {
    switch (target.vt & ~VT_BYREF) {
    case VT_I2:
        *target.piVal = value.get().iVal;
        break;
    case VT_I4:
        *target.plVal = value.get().lVal;
        break;
    case VT_R4:
        *target.pfltVal = value.get().fltVal;
        break;
    case VT_BOOL:
        *target.pboolVal = value.get().boolVal;
        break;
    default:
        break;
    }
}

} // namespace

Variant EventArguments::get(std::size_t index) const {
    return Variant(at(index));
}

bool EventArguments::set(std::size_t index, const Variant& value) {
    VARIANT& target = at(index);
    Variant converted;
    if (!(target.vt & VT_BYREF) || FAILED(VariantChangeType(converted.out(), value.argument(), 0,
                                                            static_cast<VARTYPE>(target.vt & ~VT_BYREF))))
        return false;
    write_reference(target, converted);
    return true;
}

EventSink::EventSink() : OwnObject({IID_IDispatch}) {}

void EventSink::learn_names(IUnknown* control) {
    const ComPtr<ITypeInfo> type = event_type(control);
    if (!type)
        return;
    FUNCDESC* function = nullptr;
    for (UINT i = 0; SUCCEEDED(type->GetFuncDesc(i, &function)); ++i) {
        Bstr name;
        UINT count = 0;
        if (SUCCEEDED(type->GetNames(function->memid, name.out(), 1, &count)) && count == 1)
            names_[function->memid] = utf8(name.text());
        type->ReleaseFuncDesc(function);
    }
}

std::vector<std::string> EventSink::take() {
    return std::exchange(events_, {});
}

int EventSink::count(const std::string& name) const {
    const std::string start = name + '(';
    return static_cast<int>(std::count_if(events_.begin(), events_.end(), [&](const std::string& event) {
        return event.compare(0, start.size(), start) == 0;
    }));
}

void EventSink::on(const std::string& name, Handler handler) {
    handlers_[name] = std::move(handler);
}

void EventSink::on_every(std::function<void(const std::string&, EventArguments&)> observer) {
    observer_ = std::move(observer);
}

void EventSink::forget_handlers() {
    handlers_.clear();
    observer_ = {};
}

void EventSink::ignore(const std::string& name) {
    ignored_.push_back(name);
}

std::string EventSink::name_of(DISPID id) const {
    const auto found = names_.find(id);
    return found == names_.end() ? std::to_string(id) : found->second;
}

STDMETHODIMP EventSink::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}
STDMETHODIMP EventSink::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return DISP_E_BADINDEX;
}
STDMETHODIMP EventSink::GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) {
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                               UINT*) {
    const std::string name = name_of(id);
    EventArguments arguments(*parameters);
    if (std::find(ignored_.begin(), ignored_.end(), name) == ignored_.end()) {
        events_.push_back(name + arguments_text(arguments));
        if (const HRESULT answer = log_ ? log_->enter("Event", "(" + name + ")") : S_OK; FAILED(answer))
            return answer;
    }
    // A handler may end this sink or take itself out: both work on copies.
    const ComPtr<IDispatch> alive(this);
    const auto observer = observer_;
    const auto found = handlers_.find(name);
    const Handler handler = found == handlers_.end() ? Handler() : found->second;
    if (observer)
        observer(name, arguments);
    if (handler)
        handler(arguments);
    return S_OK;
}

IID event_interface(IUnknown* control) {
    const ComPtr<ITypeInfo> type = event_type(control);
    TYPEATTR* attributes = nullptr;
    if (!type || FAILED(type->GetTypeAttr(&attributes)))
        return IID_NULL;
    const IID id = attributes->guid;
    type->ReleaseTypeAttr(attributes);
    return id;
}

} // namespace vellora::test
