#include "script_engine.h"

#include "hosting/bstr.h"
#include "hosting/failure.h"

#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

void free_texts(EXCEPINFO& info) {
    for (const BSTR text : {info.bstrSource, info.bstrDescription, info.bstrHelpFile})
        SysFreeString(text);
}

} // namespace

ScriptEngine::ScriptEngine(HWND window, Teller tell) : window_(window), tell_(std::move(tell)) {
    CLSID language;
    check(CLSIDFromProgID(L"VBScript", &language), L"Looking for VBScript");
    check(CoCreateInstance(language, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&script_)), L"Starting VBScript");
}

void ScriptEngine::offer(const std::wstring& name, IDispatch* object) {
    object_name_ = name;
    object_ = object;
}

void ScriptEngine::run(const std::wstring& text) {
    ComPtr<IActiveScriptParse> parser;
    check(script_.As(&parser), L"Asking VBScript for its parser");
    check(script_->SetScriptSite(this), L"Giving VBScript a site");
    check(parser->InitNew(), L"Preparing VBScript");
    check(script_->AddNamedItem(object_name_.c_str(), SCRIPTITEM_ISVISIBLE), L"Naming the program's object");
    check_script(
        parser->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, nullptr),
        L"Reading the script");
    check_script(script_->SetScriptState(SCRIPTSTATE_CONNECTED), L"Running the script");
}

void ScriptEngine::call(const std::wstring& procedure, DISPPARAMS& arguments) {
    // The script may end itself in the procedure.
    const ComPtr<IActiveScript> script = script_;
    ComPtr<IDispatch> procedures;
    DISPID id = DISPID_UNKNOWN;
    auto* name = const_cast<LPOLESTR>(procedure.c_str());
    if (!script || FAILED(script->GetScriptDispatch(nullptr, &procedures)) ||
        FAILED(procedures->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id)))
        return;
    EXCEPINFO info{};
    const HRESULT result =
        procedures->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr, &info, nullptr);
    free_texts(info);
    check_script(result, procedure.c_str());
}

void ScriptEngine::close() {
    if (const ComPtr<IActiveScript> script = std::exchange(script_, nullptr))
        script->Close();
    object_.Reset();
}

STDMETHODIMP ScriptEngine::GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** object, ITypeInfo** type) {
    if (object)
        *object = nullptr;
    if (type)
        *type = nullptr;
    if (name != object_name_)
        return TYPE_E_ELEMENTNOTFOUND;
    if (wanted & SCRIPTINFO_IUNKNOWN)
        return object_.CopyTo(IID_PPV_ARGS(object));
    return S_OK;
}

STDMETHODIMP ScriptEngine::OnScriptError(IActiveScriptError* error) {
    EXCEPINFO info{};
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    if (SUCCEEDED(error->GetExceptionInfo(&info)) && SUCCEEDED(error->GetSourcePosition(&context, &line, &column)))
        error_ = L"Line " + std::to_wstring(line + 1) + L": " + (info.bstrDescription ? info.bstrDescription : L"");
    free_texts(info);
    tell_(error_);
    return S_OK;
}

STDMETHODIMP ScriptEngine::GetWindow(HWND* window) {
    *window = window_;
    return S_OK;
}

void ScriptEngine::check_script(HRESULT result, const wchar_t* step) const {
    if (FAILED(result) && !error_.empty())
        throw Failure(error_);
    check(result, step);
}

} // namespace vellora::samples
