#include "event_type.h"

#include "failure.h"

#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

/// The interface in the type library that describes the object.
ComPtr<ITypeInfo> described(IUnknown* object, REFIID id) {
    ComPtr<IDispatch> members;
    ComPtr<ITypeInfo> type;
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> events;
    UINT index = 0;
    check(object->QueryInterface(IID_PPV_ARGS(&members)), L"Asking the object for IDispatch");
    check(members->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type), L"Asking the object for its type");
    check(type->GetContainingTypeLib(&library, &index), L"Asking the object for its type library");
    check(library->GetTypeInfoOfGuid(id, &events), L"Finding the object's events");
    return events;
}

/// The name of an event, then those of its parameters.
std::vector<std::wstring> names_of(ITypeInfo* type, MEMBERID event) {
    constexpr UINT most = 32;
    BSTR names[most]{};
    UINT count = 0;
    type->GetNames(event, names, most, &count);
    std::vector<std::wstring> result(names, names + count);
    for (const BSTR name : names)
        SysFreeString(name);
    return result;
}

} // namespace

EventType event_type_of(IUnknown* object) {
    EventType result{};
    ComPtr<IProvideClassInfo2> info;
    check(object->QueryInterface(IID_PPV_ARGS(&info)), L"Asking the object for its class");
    check(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &result.id), L"Asking the object for its events");
    const ComPtr<ITypeInfo> type = described(object, result.id);
    FUNCDESC* event = nullptr;
    for (UINT i = 0; SUCCEEDED(type->GetFuncDesc(i, &event)); ++i) {
        if (const auto names = names_of(type.Get(), event->memid); !names.empty()) {
            result.names[event->memid] = names.front();
            result.parameters[event->memid] = {names.begin() + 1, names.end()};
        }
        type->ReleaseFuncDesc(event);
    }
    return result;
}

} // namespace vellora::samples
