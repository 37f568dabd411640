// Aggregation: the control as a part of the host's own object around it, which adds a Name and a Tag.
//
//     aggregation.exe [--check]
#include "extender.h"
#include "hosting/bstr.h"
#include "hosting/failure.h"
#include "hosting/plain_form.h"
#include "hosting/sample.h"
#include "hosting/screen.h"
#include "hosting/text_array.h"
#include "hosting/user.h"

#include <string>

namespace vellora::samples {

namespace {

using Microsoft::WRL::ComPtr;

/// Late binding, as a form's program does it: `object.name`.
DISPID id_of(IDispatch* object, const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    auto* text = const_cast<LPOLESTR>(name);
    check(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id), name);
    return id;
}

std::wstring get(IDispatch* object, const wchar_t* name) {
    DISPPARAMS none{};
    VARIANT value{};
    check(object->Invoke(id_of(object, name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value,
                         nullptr, nullptr),
          name);
    check(VariantChangeType(&value, &value, 0, VT_BSTR), name);
    const std::wstring text(value.bstrVal, SysStringLen(value.bstrVal));
    VariantClear(&value);
    return text;
}

void put(IDispatch* object, const wchar_t* name, const wchar_t* text) {
    const Bstr copy(text);
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = copy.get();
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&value, &assigned, 1, 1};
    check(object->Invoke(id_of(object, name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr,
                         nullptr, nullptr),
          name);
}

bool same_object(IUnknown* one, IUnknown* other) {
    ComPtr<IUnknown> first, second;
    one->QueryInterface(IID_PPV_ARGS(&first));
    other->QueryInterface(IID_PPV_ARGS(&second));
    return first == second;
}

/// Only the last reference gives 0.
ULONG references_of(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

void play(IDispatch* box, Steps& steps) {
    ComPtr<_Vellora> control;
    check(box->QueryInterface(IID_PPV_ARGS(&control)), L"Asking the extender for the control");
    steps.expect(L"control and extender are one object", same_object(control.Get(), box));
    put(box, L"Tag", L"first");
    steps.expect_same(L"the extender has a property of its own", L"first", get(box, L"Tag"));
    put(box, L"Text", L"Peru");
    steps.expect_same(L"and the control's by name", L"Peru", get(box, L"Text"));
    steps.expect_same(L"the control shows it", L"Peru", text_of(*control.Get()));
    steps.expect_same(L"the extender names the control", L"Countries", get(box, L"Name"));
    put(box, L"TextColumn", L"1");
    const ULONG before = references_of(box);
    control.Reset();
    steps.expect_same(L"a reference to the control counts as one to the extender", static_cast<long>(before) - 1,
                      static_cast<long>(references_of(box)));
}

void fill(IUnknown* box) {
    ComPtr<_Vellora> control;
    check(box->QueryInterface(IID_PPV_ARGS(&control)), L"Asking the extender for the control");
    const TextRows rows = {{L"New Zealand"}, {L"Peru"}, {L"Switzerland"}};
    check(control->put_List(0, -3, TextArray(rows).get()), L"Filling the list");
}

void show(Steps* steps) {
    PlainForm form(L"Vellora inside an extender", {320, 80});
    ComPtr<IDispatch> box = Extender::create(ControlFactory(), L"Countries");
    ControlSite& site = form.controls().reserve(L"Countries", scaled(RECT{16, 16, 304, 38}));
    site.extend(box.Get());
    site.take(box.Get(), nullptr);
    fill(box.Get());
    form.show();
    if (steps)
        play(box.Get(), *steps);
    else
        form.run();
    form.controls().release();
    if (steps)
        steps->expect_same(L"both end together", 0, static_cast<long>(box.Detach()->Release()));
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Vellora inside an extender", [](const auto&, Steps* steps) { show(steps); });
}
