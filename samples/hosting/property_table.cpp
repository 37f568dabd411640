#include "property_table.h"

#include "bstr.h"
#include "invocation.h"
#include "object_values.h"
#include "property_category.h"

#include <algorithm>
#include <cwchar>
#include <set>
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

bool is_put(const FUNCDESC& member) {
    return (member.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0 && member.cParams == 1;
}

std::wstring name_of_type(ITypeInfo* members, const TYPEDESC& declared) {
    if (declared.vt == VT_PTR)
        return name_of_type(members, *declared.lptdesc);
    ComPtr<ITypeInfo> type;
    Bstr name;
    if (declared.vt == VT_USERDEFINED && SUCCEEDED(members->GetRefTypeInfo(declared.hreftype, &type)))
        type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr);
    return name.text();
}

/// Numbers become colours, and objects fonts, by the type they are declared with.
PropertyKind kind_of(ITypeInfo* members, const TYPEDESC& declared) {
    const std::wstring type = name_of_type(members, declared);
    if (type == L"OLE_COLOR")
        return PropertyKind::color;
    if (type == L"Font" || type == L"IFontDisp")
        return PropertyKind::font;
    return type == L"Picture" || type == L"IPictureDisp" ? PropertyKind::picture : PropertyKind::plain;
}

std::wstring name_of(ITypeInfo* members, MEMBERID id) {
    Bstr name;
    UINT count = 0;
    check(members->GetNames(id, name.out(), 1, &count), L"Reading the name of a property");
    return name.text();
}

bool is_object(const Variant& value) {
    return value.type() == VT_DISPATCH || value.type() == VT_UNKNOWN;
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
    std::set<DISPID> put;
    FUNCDESC* member = nullptr;
    for (UINT i = 0; SUCCEEDED(members->GetFuncDesc(i, &member)); ++i) {
        if (is_put(*member))
            put.insert(member->memid);
        if (is_listed(*member))
            properties_.push_back({member->memid, name_of(members.Get(), member->memid),
                                   categories.name_for(member->memid),
                                   kind_of(members.Get(), member->elemdescFunc.tdesc), false});
        members->ReleaseFuncDesc(member);
    }
    for (Property& property : properties_)
        property.writable = put.contains(property.id);
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
    Variant value = invoke(control_.Get(), property.id, DISPATCH_PROPERTYGET);
    if (property.kind == PropertyKind::color)
        return color_text(value);
    if (is_object(value))
        return text_of_object(property.kind, *value.get());
    value.change_to(VT_BSTR);
    return value.text();
}

std::vector<std::wstring> PropertyTable::choices(const Property& property) const {
    if (invoke(control_.Get(), property.id, DISPATCH_PROPERTYGET).type() == VT_BOOL)
        return {L"False", L"True"};
    PredefinedValues list;
    if (!browsing_ || browsing_->GetPredefinedStrings(property.id, &list.texts, &list.cookies) != S_OK)
        return {};
    return {list.texts.pElems, list.texts.pElems + list.texts.cElems};
}

void PropertyTable::set(const Property& property, const std::wstring& text) {
    PredefinedValues list;
    if (browsing_)
        browsing_->GetPredefinedStrings(property.id, &list.texts, &list.cookies);
    Variant value(text);
    for (ULONG i = 0; i < list.texts.cElems; ++i)
        if (text == list.texts.pElems[i])
            check(browsing_->GetPredefinedValue(property.id, list.cookies.pElems[i], value.out()),
                  L"Asking for a value");
    const Variant before = invoke(control_.Get(), property.id, DISPATCH_PROPERTYGET);
    if (is_object(before)) {
        invoke(control_.Get(), property.id, DISPATCH_PROPERTYPUTREF, {object_of_text(property.kind, text)});
        return;
    }
    // "True" is a truth value and "&H80000005" a number only to somebody who knows what is wanted.
    if (!value.change_to(property.kind == PropertyKind::color ? static_cast<VARTYPE>(VT_I4) : before.type()))
        throw Failure(L'"' + text + L"\" is no value for " + property.name + L'.');
    invoke(control_.Get(), property.id, DISPATCH_PROPERTYPUT, {value});
}

} // namespace vellora::samples
