#include "property_table.h"

#include "hosting/bstr.h"
#include "hosting/failure.h"
#include "hosting/variant.h"
#include "property_category.h"

#include <algorithm>
#include <cwchar>
#include <tuple>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

ComPtr<ITypeInfo> members_of(IDispatch* control) {
    ComPtr<ITypeInfo> members;
    check(control->GetTypeInfo(0, LOCALE_USER_DEFAULT, &members), L"Asking the control for its type");
    return members;
}

bool is_listed(const FUNCDESC& member) {
    constexpr WORD kept_back = FUNCFLAG_FHIDDEN | FUNCFLAG_FRESTRICTED | FUNCFLAG_FNONBROWSABLE;
    return member.invkind == INVOKE_PROPERTYGET && member.cParams == 0 && (member.wFuncFlags & kept_back) == 0;
}

/// Numbers become colours by the type they are declared with.
bool is_color(ITypeInfo* members, const TYPEDESC& declared) {
    ComPtr<ITypeInfo> type;
    Bstr name;
    return declared.vt == VT_USERDEFINED && SUCCEEDED(members->GetRefTypeInfo(declared.hreftype, &type)) &&
           SUCCEEDED(type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr)) &&
           name.text() == L"OLE_COLOR";
}

std::wstring name_of(ITypeInfo* members, MEMBERID id) {
    Bstr name;
    UINT count = 0;
    check(members->GetNames(id, name.out(), 1, &count), L"Reading the name of a property");
    return name.text();
}

Variant value_of(IDispatch* control, DISPID id) {
    DISPPARAMS none{};
    Variant value;
    check(
        control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, value.out(), nullptr, nullptr),
        L"Reading a property");
    return value;
}

std::wstring color_text(Variant& value) {
    wchar_t text[16] = L"";
    if (value.change_to(VT_I4))
        std::swprintf(text, ARRAYSIZE(text), L"&H%08lX", static_cast<unsigned long>(value.get()->lVal));
    return text;
}

/// The texts and numbers of a list that the control handed out, which are freed with it.
struct PredefinedValues {
    CALPOLESTR texts{};
    CADWORD cookies{};
    ~PredefinedValues() {
        for (ULONG i = 0; i < texts.cElems; ++i)
            CoTaskMemFree(texts.pElems[i]);
        CoTaskMemFree(texts.pElems);
        CoTaskMemFree(cookies.pElems);
    }
};

} // namespace

PropertyTable::PropertyTable(IUnknown* control) {
    check(control->QueryInterface(IID_PPV_ARGS(&control_)), L"Asking the control for IDispatch");
    control_.As(&browsing_);
    read_properties();
    std::ranges::sort(properties_, {}, [](const Property& one) { return std::tie(one.category, one.name); });
}

void PropertyTable::read_properties() {
    const ComPtr<ITypeInfo> members = members_of(control_.Get());
    const PropertyCategories categories(control_.Get());
    FUNCDESC* member = nullptr;
    for (UINT i = 0; SUCCEEDED(members->GetFuncDesc(i, &member)); ++i) {
        if (is_listed(*member))
            properties_.push_back({member->memid, name_of(members.Get(), member->memid),
                                   categories.name_for(member->memid),
                                   is_color(members.Get(), member->elemdescFunc.tdesc)});
        members->ReleaseFuncDesc(member);
    }
}

const Property& PropertyTable::find(const std::wstring& name) const {
    const auto found = std::ranges::find(properties_, name, &Property::name);
    if (found == properties_.end())
        throw Failure(L"The control has no property " + name + L'.');
    return *found;
}

std::wstring PropertyTable::text(const Property& property) const {
    Bstr display;
    if (browsing_ && browsing_->GetDisplayString(property.id, display.out()) == S_OK)
        return display.text();
    Variant value = value_of(control_.Get(), property.id);
    if (property.is_color)
        return color_text(value);
    if (value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN)
        return value.get()->punkVal ? L"(object)" : L"(none)";
    value.change_to(VT_BSTR);
    return value.text();
}

std::vector<std::wstring> PropertyTable::choices(const Property& property) const {
    if (value_of(control_.Get(), property.id).type() == VT_BOOL)
        return {L"False", L"True"};
    PredefinedValues list;
    if (!browsing_ || browsing_->GetPredefinedStrings(property.id, &list.texts, &list.cookies) != S_OK)
        return {};
    return {list.texts.pElems, list.texts.pElems + list.texts.cElems};
}

void PropertyTable::set(const Property& property, const std::wstring& text) const {
    PredefinedValues list;
    if (browsing_)
        browsing_->GetPredefinedStrings(property.id, &list.texts, &list.cookies);
    Variant value(text);
    for (ULONG i = 0; i < list.texts.cElems; ++i)
        if (text == list.texts.pElems[i])
            check(browsing_->GetPredefinedValue(property.id, list.cookies.pElems[i], value.out()),
                  L"Asking for a value");
    // "True" is a truth value and "&H80000005" a number only to somebody who knows what is wanted.
    if (!value.change_to(property.is_color ? static_cast<VARTYPE>(VT_I4)
                                           : value_of(control_.Get(), property.id).type()))
        throw Failure(L'"' + text + L"\" is no value for " + property.name + L'.');
    put(property.id, value.get());
}

void PropertyTable::put(DISPID id, VARIANT* value) const {
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{value, &assigned, 1, 1};
    EXCEPINFO error{};
    const HRESULT result =
        control_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr, &error, nullptr);
    const std::wstring description = error.bstrDescription ? error.bstrDescription : L"";
    for (const BSTR text : {error.bstrSource, error.bstrDescription, error.bstrHelpFile})
        SysFreeString(text);
    if (FAILED(result) && !description.empty())
        throw Failure(description);
    check(result, L"Setting the property");
}

} // namespace vellora::samples
