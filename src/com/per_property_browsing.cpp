#include "com/per_property_browsing.h"

#include "com/bstr.h"
#include "com/control_host.h"
#include "com/default_property.h"
#include "com/type_owners.h"

#include <algorithm>
#include <memory>

namespace vellora::com {

namespace {

std::u16string name_of(ITypeInfo* type, MEMBERID id) {
    Bstr name;
    UINT count = 0;
    check(type->GetNames(id, name.put(), 1, &count));
    return std::u16string(name.view());
}

std::u16string choice_text(std::int32_t value, const std::u16string& name) {
    return std::u16string(narrow_view(std::to_wstring(value))) + u" - " + name;
}

struct TaskDeleter {
    void operator()(void* memory) const noexcept { CoTaskMemFree(memory); }
};
template <class Element>
using TaskArray = std::unique_ptr<Element[], TaskDeleter>;

template <class Element>
TaskArray<Element> make_task_array(std::size_t count) {
    TaskArray<Element> array(static_cast<Element*>(CoTaskMemAlloc(count * sizeof(Element))));
    if (!array)
        throw std::bad_alloc();
    std::fill_n(array.get(), count, Element{});
    return array;
}

} // namespace

PropertyBrowsing::PropertyBrowsing(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP PropertyBrowsing::GetDisplayString(DISPID property, BSTR* text) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(text);
        *text = nullptr;
        const std::vector<Choice> list = choices(property);
        if (list.empty())
            return S_FALSE;
        const std::int32_t value = current_value(property);
        const auto found = std::find_if(list.begin(), list.end(),
                                        [&](const Choice& choice) { return choice.value == value; });
        if (found == list.end())
            return S_FALSE;
        *text = make_bstr(found->text);
        return S_OK;
    });
}

STDMETHODIMP PropertyBrowsing::MapPropertyToPage(DISPID, CLSID* page) noexcept {
    return guard([&] {
        need(page);
        *page = CLSID_NULL;
        return PERPROP_E_NOPAGEAVAILABLE;
    });
}

STDMETHODIMP PropertyBrowsing::GetPredefinedStrings(DISPID property, CALPOLESTR* texts,
                                                    CADWORD* cookies) noexcept {
    return guard([&] {
        need(texts);
        need(cookies);
        *texts = {};
        *cookies = {};
        const std::vector<Choice> list = choices(property);
        if (list.empty())
            return S_FALSE;
        TaskArray<LPOLESTR> names = make_task_array<LPOLESTR>(list.size());
        TaskArray<DWORD> values = make_task_array<DWORD>(list.size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            names[i] = make_task_text(list[i].text);
            values[i] = static_cast<DWORD>(list[i].value);
        }
        const auto count = static_cast<ULONG>(list.size());
        *texts = {count, names.release()};
        *cookies = {count, values.release()};
        return S_OK;
    });
}

STDMETHODIMP PropertyBrowsing::GetPredefinedValue(DISPID, DWORD cookie, VARIANT* value) noexcept {
    return guard([&] {
        need(value);
        VariantInit(value);
        V_VT(value) = VT_I4;
        V_I4(value) = static_cast<LONG>(cookie);
    });
}

std::vector<PropertyBrowsing::Choice> PropertyBrowsing::choices(DISPID property) const {
    std::vector<Choice> list;
    const Member* const member =
        host_.types()->default_interface().members.find(property, DISPATCH_PROPERTYGET);
    if (!member || !member->enumeration)
        return list;
    ITypeInfo* const type = member->enumeration.Get();
    const TypeAttributes attributes(type);
    for (UINT i = 0; i < attributes->cVars; ++i) {
        const VariableDescription variable(type, i);
        const std::int32_t value = V_I4(&converted(*variable->lpvarValue, VT_I4).get());
        list.push_back({value, choice_text(value, name_of(type, variable->memid))});
    }
    return list;
}

std::int32_t PropertyBrowsing::current_value(DISPID property) const {
    ComPtr<IDispatch> object;
    check(host_.controlling()->QueryInterface(IID_PPV_ARGS(&object)));
    const std::optional<Variant> value = read_property(object.Get(), property);
    if (!value)
        throw ComFailure(DISP_E_MEMBERNOTFOUND);
    return V_I4(&converted(value->get(), VT_I4).get());
}

} // namespace vellora::com
