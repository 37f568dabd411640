#include "support/container/call_by_name.h"

#include "support/container/failure.h"

#include <algorithm>
#include <utility>

namespace vellora::test {
namespace {

// The arguments in the order IDispatch wants them: last first.
std::vector<VARIANT> reversed(const std::vector<Variant>& arguments) {
    std::vector<VARIANT> result;
    for (auto it = arguments.rbegin(); it != arguments.rend(); ++it)
        result.push_back(it->get());
    return result;
}

Variant invoke(IDispatch* object, const std::wstring& name, WORD kind,
               const std::vector<Variant>& arguments) {
    const DISPID id = dispatch_id(object, name);
    std::vector<VARIANT> values = reversed(arguments);
    DISPID put = DISPID_PROPERTYPUT;
    const bool assigns = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters{values.data(), assigns ? &put : nullptr, static_cast<UINT>(values.size()),
                          assigns ? 1U : 0U};
    Variant result;
    EXCEPINFO info{};
    UINT wrong_argument = 0;
    const HRESULT hr = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                      assigns ? nullptr : result.out(), &info, &wrong_argument);
    if (FAILED(hr))
        throw CallFailed(failure_of(hr, info));
    return result;
}

} // namespace

DISPID dispatch_id(IDispatch* object, const std::wstring& name) {
    auto* text = const_cast<OLECHAR*>(name.c_str());
    DISPID id = DISPID_UNKNOWN;
    const HRESULT hr = object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(hr))
        throw CallFailed({hr, name, L"unknown name"});
    return id;
}

Variant call_method(IDispatch* object, const std::wstring& name, std::vector<Variant> arguments) {
    return invoke(object, name, DISPATCH_METHOD, arguments);
}

Variant get_property(IDispatch* object, const std::wstring& name, std::vector<Variant> arguments) {
    return invoke(object, name, DISPATCH_PROPERTYGET, arguments);
}

Variant invoke_either(IDispatch* object, const std::wstring& name, std::vector<Variant> arguments) {
    return invoke(object, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

void put_property(IDispatch* object, const std::wstring& name, Variant value,
                  std::vector<Variant> arguments) {
    arguments.push_back(std::move(value));
    invoke(object, name, DISPATCH_PROPERTYPUT, arguments);
}

void set_property(IDispatch* object, const std::wstring& name, Variant object_value) {
    invoke(object, name, DISPATCH_PROPERTYPUTREF, {std::move(object_value)});
}

} // namespace vellora::test
