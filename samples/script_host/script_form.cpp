#include "script_form.h"

#include "hosting/bstr.h"
#include "hosting/child_window.h"
#include "hosting/failure.h"
#include "hosting/saved_settings.h"
#include "hosting/screen.h"

#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

constexpr SIZE client_size{400, 120};

/// The members of the object Form. Their places are their identifiers, from 1 on.
constexpr const wchar_t* members[] = {L"Preset", L"Add", L"ConnectObject", L"Status"};
enum Member : DISPID { preset_member = 1, add_member, connect_member, status_member };

std::wstring text_of(VARIANT& value) {
    VARIANT text{};
    check(VariantChangeType(&text, &value, VARIANT_ALPHABOOL, VT_BSTR), L"Reading an argument");
    const std::wstring result(text.bstrVal, SysStringLen(text.bstrVal));
    VariantClear(&text);
    return result;
}

} // namespace

ScriptForm::ScriptForm()
    : window_(L"Form of a script", client_size), status_(make_label(window_.window(), L"")),
      engine_(new ScriptEngine(window_.window(), [this](const std::wstring& error) { set_status(error); })) {
    set_font(status_, window_.controls().font());
    move_window(status_, scaled(RECT{16, 88, 384, 108}));
}

void ScriptForm::run(const std::wstring& script) {
    engine_->offer(L"Form", this);
    engine_->run(script);
}

void ScriptForm::close() {
    for (const ComPtr<ScriptEvents>& events : events_)
        events->stop();
    events_.clear();
    window_.controls().release();
    controls_.clear();
    engine_->close();
}

_Vellora& ScriptForm::control(const std::wstring& name) const {
    const auto found = controls_.find(name);
    if (found == controls_.end())
        throw Failure(L"The script made no control " + name + L'.');
    return *found->second.Get();
}

std::wstring ScriptForm::status() const {
    wchar_t text[200] = L"";
    GetWindowTextW(status_, text, ARRAYSIZE(text));
    return text;
}

STDMETHODIMP ScriptForm::GetIDsOfNames(REFIID, OLECHAR** names, UINT, LCID, DISPID* ids) {
    for (std::size_t i = 0; i < ARRAYSIZE(members); ++i)
        if (lstrcmpiW(names[0], members[i]) == 0) {
            ids[0] = static_cast<DISPID>(i + 1);
            return S_OK;
        }
    ids[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

// Arguments come last one first.
STDMETHODIMP ScriptForm::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO*,
                                UINT*) {
    const UINT wanted = id == preset_member || id == connect_member ? 2 : 1;
    if (arguments->cArgs != wanted)
        return DISP_E_BADPARAMCOUNT;
    VARIANT& first = arguments->rgvarg[wanted - 1];
    VARIANT& last = arguments->rgvarg[0];
    try {
        switch (id) {
        case preset_member:
            preset(text_of(first), last);
            return S_OK;
        case add_member:
            add(text_of(first), result);
            return S_OK;
        case connect_member:
            connect_object(first, text_of(last));
            return S_OK;
        case status_member:
            set_status(text_of(first));
            return S_OK;
        default:
            return DISP_E_MEMBERNOTFOUND;
        }
    } catch (...) {
        return E_FAIL; // exceptions must not reach the script
    }
}

STDMETHODIMP ScriptForm::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

void ScriptForm::preset(const std::wstring& name, VARIANT& value) {
    VARIANT number{};
    check(VariantChangeType(&number, &value, 0, VT_I4), L"Reading a setting");
    presets_[name] = number.lVal;
}

void ScriptForm::add(const std::wstring& name, VARIANT* result) {
    const int top = 16 + 40 * static_cast<int>(controls_.size());
    const ComPtr<_Vellora> control = factory_.create();
    const ComPtr<SavedSettings> saved(new SavedSettings(std::exchange(presets_, {})));
    window_.controls().add(control.Get(), name, scaled(RECT{16, top, 384, top + 22}), saved.Get());
    controls_[name] = control;
    if (!result)
        return;
    result->vt = VT_DISPATCH;
    result->pdispVal = ComPtr<_Vellora>(control).Detach();
}

void ScriptForm::connect_object(VARIANT& object, const std::wstring& prefix) {
    VARIANT plain{};
    // Script passes a variable, which is a reference to what is in it.
    check(VariantCopyInd(&plain, &object), L"Reading an argument");
    ComPtr<IDispatch> source;
    if (plain.vt == VT_DISPATCH)
        source = plain.pdispVal;
    VariantClear(&plain);
    if (!source)
        throw Failure(L"ConnectObject wants an object.");
    events_.emplace_back(new ScriptEvents(engine(), prefix));
    events_.back()->listen_to(source.Get());
}

void ScriptForm::set_status(const std::wstring& text) const {
    SetWindowTextW(status_, text.c_str());
}

} // namespace vellora::samples
