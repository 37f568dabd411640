// The events of a control as its type library describes them.
#pragma once

#include <map>
#include <string>
#include <vector>
#include <windows.h>

#include <oaidl.h>

namespace vellora::samples {

struct EventType {
    IID id; // of the event interface, which connection points go by
    std::map<DISPID, std::wstring> names;
    std::map<DISPID, std::vector<std::wstring>> parameters; // in declared order
};

/// Throws a Failure when the object has no events.
EventType event_type_of(IUnknown* object);

} // namespace vellora::samples
