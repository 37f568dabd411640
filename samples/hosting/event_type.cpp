#include "event_type.h"

#include "bstr.h"
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

} // namespace

EventType event_type_of(IUnknown* object) {
    EventType result{};
    ComPtr<IProvideClassInfo2> info;
    check(object->QueryInterface(IID_PPV_ARGS(&info)), L"Asking the object for its class");
    check(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &result.id), L"Asking the object for its events");
    const ComPtr<ITypeInfo> type = described(object, result.id);
    FUNCDESC* event = nullptr;
    for (UINT i = 0; SUCCEEDED(type->GetFuncDesc(i, &event)); ++i) {
        Bstr name;
        UINT count = 0;
        if (SUCCEEDED(type->GetNames(event->memid, name.out(), 1, &count)))
            result.names[event->memid] = name.text();
        type->ReleaseFuncDesc(event);
    }
    return result;
}

} // namespace vellora::samples
