// The form that a script makes: the object Form, its controls, and the line at the bottom.
#pragma once

#include "hosting/control_factory.h"
#include "hosting/plain_form.h"
#include "script_events.h"

#include <map>
#include <string>
#include <vector>

namespace vellora::samples {

class ScriptForm final : public ComObject<IDispatch> {
public:
    ScriptForm();

    PlainForm& window() noexcept { return window_; }
    ScriptEngine& engine() noexcept { return *engine_.Get(); }
    /// Runs the script. Throws a Failure when it fails.
    void run(const std::wstring& script);
    /// Ends the script and everything that came with it.
    void close();

    /// A control that the script added; throws a Failure when it did not.
    _Vellora& control(const std::wstring& name) const;
    std::wstring status() const;

    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO*,
                        UINT*) override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

private:
    void preset(const std::wstring& name, VARIANT& value);
    void add(const std::wstring& name, VARIANT* result);
    void connect_object(VARIANT& object, const std::wstring& prefix);
    void set_status(const std::wstring& text) const;

    PlainForm window_;
    HWND status_;
    ControlFactory factory_;
    std::map<std::wstring, long> presets_;
    std::map<std::wstring, Microsoft::WRL::ComPtr<_Vellora>> controls_;
    std::vector<Microsoft::WRL::ComPtr<ScriptEvents>> events_;
    Microsoft::WRL::ComPtr<ScriptEngine> engine_;
};

} // namespace vellora::samples
