// The events of one control, each as a function that may be set. Arguments that the control lets its host change
// come as references.
#pragma once

#include "hosting/com_object.h"

#include <VelloraCTL.h>
#include <functional>

#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class BoxEvents final : public ComObject<IDispatch> {
public:
    std::function<void()> on_click;
    std::function<void(vlDropDownState state)> on_drop_down;
    std::function<void(short& character)> on_key_press;

    /// Connects to the control. Throws a Failure when it has no events.
    void listen_to(IUnknown* control);
    /// To be called before the control goes.
    void stop();

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

private:
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace vellora::samples
