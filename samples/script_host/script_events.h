// Brings the events of a control to the procedures of a script: the event Click of the control connected as
// "Countries_" calls Sub Countries_Click. What the procedure makes of an argument that came by reference goes back
// to the control.
#pragma once

#include "hosting/com_object.h"
#include "script_engine.h"

#include <map>
#include <string>

#include <ocidl.h>

namespace vellora::samples {

class ScriptEvents final : public ComObject<IDispatch> {
public:
    ScriptEvents(ScriptEngine& engine, std::wstring prefix) : engine_(&engine), prefix_(std::move(prefix)) {}

    /// Learns the events from the type library and connects. Throws a Failure when the object has none.
    void listen_to(IUnknown* object);
    void stop();

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

private:
    Microsoft::WRL::ComPtr<ScriptEngine> engine_;
    std::wstring prefix_;
    std::map<DISPID, std::wstring> names_;
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace vellora::samples
