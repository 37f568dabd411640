// VBScript inside a program: runs a text, lets it see objects of the program, and calls its procedures by name.
#pragma once

#include "hosting/com_object.h"

#include <functional>
#include <string>

#include <activscp.h>
#include <oaidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class ScriptEngine final : public ComObject<IActiveScriptSite, IActiveScriptSiteWindow> {
public:
    /// Tells the user what went wrong, and in which line.
    using Teller = std::function<void(const std::wstring& error)>;

    /// `window` owns message boxes of the script. Throws a Failure when there is no VBScript.
    ScriptEngine(HWND window, Teller tell);

    /// The script knows the object by this name from now on.
    void offer(const std::wstring& name, IDispatch* object);
    /// Runs all that stands outside of procedures. Throws a Failure that names the line when it fails.
    void run(const std::wstring& text);
    /// Calls a procedure with arguments as IDispatch wants them: the last one first. A script need not have one
    /// for every event; throws a Failure when one fails.
    void call(const std::wstring& procedure, DISPPARAMS& arguments);
    /// Ends the script, which lets all objects go.
    void close();

    STDMETHODIMP GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** object, ITypeInfo** type) override;
    STDMETHODIMP OnScriptError(IActiveScriptError* error) override;
    STDMETHODIMP GetLCID(LCID*) override { return E_NOTIMPL; } // the user's own
    STDMETHODIMP GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    STDMETHODIMP OnStateChange(SCRIPTSTATE) override { return S_OK; }
    STDMETHODIMP OnEnterScript() override { return S_OK; }
    STDMETHODIMP OnLeaveScript() override { return S_OK; }
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

private:
    void check_script(HRESULT result, const wchar_t* step) const;

    HWND window_;
    Teller tell_;
    std::wstring object_name_;
    Microsoft::WRL::ComPtr<IDispatch> object_;
    Microsoft::WRL::ComPtr<IActiveScript> script_;
    std::wstring error_; // what the script said about its last one
};

} // namespace vellora::samples
