// The receiving end of a control's events.
#pragma once

#include "com_object.h"
#include "event_type.h"

#include <functional>
#include <string>
#include <vector>

#include <oaidl.h>
#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

struct Event {
    std::wstring name;
    std::vector<std::wstring> arguments; // in declared order
    std::vector<std::wstring> parameters; // their names
    /// `DropDown(vlOpen)`
    std::wstring text() const;
    /// `DropDown(State = vlOpen)`
    std::wstring named_text() const;
};

class EventSink final : public ComObject<IDispatch> {
public:
    using Handler = std::function<void(const Event&)>;

    explicit EventSink(Handler handler) : handler_(std::move(handler)) {}

    /// Connects to the control and learns the names of its events. Throws a Failure when it has no events.
    void listen_to(IUnknown* control);
    /// Only learns the names, for a sink that is connected in another way.
    void learn_from(IUnknown* control);
    void stop();

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

private:
    Handler handler_;
    EventType type_;
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace vellora::samples
