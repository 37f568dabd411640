#include "com/per_property_browsing.h"

#include "com/bstr.h"
#include "com/control_host.h"
#include "com/object_property.h"
#include "com/task_array.h"

#include <algorithm>

namespace vellora::com {

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

// What has an argument cannot be a line of a property list; everything else is better off there.
STDMETHODIMP PropertyBrowsing::MapPropertyToPage(DISPID property, CLSID* page) noexcept {
    return guard([&] {
        need(page);
        *page = CLSID_NULL;
        for (const PageClass& candidate : host_.control_class().pages)
            for (const DISPID numbered : candidate.numbered_properties)
                if (numbered == property) {
                    *page = candidate.class_id;
                    return S_OK;
                }
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

std::vector<Choice> PropertyBrowsing::choices(DISPID property) const {
    const Member* const member =
        host_.types()->default_interface().members.find(property, DISPATCH_PROPERTYGET);
    return choices_of(member ? member->enumeration.Get() : nullptr);
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
