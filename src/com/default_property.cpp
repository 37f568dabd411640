#include "com/default_property.h"

#include "com/bstr.h"
#include "runtime/host_error.h"

namespace vellora::com {

namespace {

constexpr std::uint32_t run_time_error_facility = 0x800A0000;

ComPtr<IDispatch> dispatch_of(const VARIANT& value) {
    IUnknown* const object = V_ISBYREF(&value) ? *V_UNKNOWNREF(&value) : V_UNKNOWN(&value);
    if (!object)
        throw HostError(error_number::object_not_set);
    ComPtr<IDispatch> dispatch;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch))))
        throw HostError(error_number::member_not_supported);
    return dispatch;
}

HRESULT get(IDispatch* object, DISPID id, Variant& out, EXCEPINFO* exception, DISPPARAMS arguments = {}) {
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                          &arguments, out.put(), exception, nullptr);
}

std::optional<DISPID> identifier(IDispatch* object, const wchar_t* name) noexcept {
    DISPID id = DISPID_UNKNOWN;
    auto text = const_cast<LPOLESTR>(name);
    if (!object || FAILED(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id)))
        return std::nullopt;
    return id;
}

[[noreturn]] void raise_exception_of_object(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn)
        exception.pfnDeferredFillIn(&exception);
    Bstr source, description, help;
    *source.put() = exception.bstrSource;
    *description.put() = exception.bstrDescription;
    *help.put() = exception.bstrHelpFile;
    const auto code = static_cast<std::uint32_t>(exception.scode);
    std::int32_t number = exception.wCode ? exception.wCode : exception.scode;
    if (!exception.wCode && (code & 0xFFFF0000) == run_time_error_facility)
        number = static_cast<std::int32_t>(code & 0xFFFF);
    throw HostError(number, std::u16string(source.view()), std::u16string(description.view()));
}

} // namespace

bool holds_object(const VARIANT& value) noexcept {
    const VARTYPE type = V_VT(&value) & static_cast<VARTYPE>(~VT_BYREF);
    return type == VT_DISPATCH || type == VT_UNKNOWN;
}

Variant default_value(const VARIANT& object) {
    constexpr int deepest = 8; // an object that is its own default value
    Variant value = Variant::copy_of(object);
    for (int depth = 0; holds_object(value.get()); ++depth) {
        if (depth == deepest)
            throw HostError(error_number::type_mismatch);
        const ComPtr<IDispatch> dispatch = dispatch_of(value.get());
        EXCEPINFO exception = {};
        const HRESULT result = get(dispatch.Get(), DISPID_VALUE, value, &exception);
        if (result == DISP_E_EXCEPTION)
            raise_exception_of_object(exception);
        if (FAILED(result))
            throw HostError(error_number::member_not_supported);
    }
    return value;
}

std::optional<Variant> read_property(IDispatch* object, DISPID id) noexcept {
    Variant value;
    if (!object || FAILED(get(object, id, value, nullptr)))
        return std::nullopt;
    return value;
}

std::optional<Variant> read_property(IDispatch* object, const wchar_t* name) noexcept {
    const auto id = identifier(object, name);
    return id ? read_property(object, *id) : std::nullopt;
}

std::optional<Variant> read_property(IDispatch* object, const wchar_t* name, const Variant& index) noexcept {
    const auto id = identifier(object, name);
    VARIANT argument = index.get();
    Variant value;
    if (!id || FAILED(get(object, *id, value, nullptr, {&argument, nullptr, 1, 0})))
        return std::nullopt;
    return value;
}

bool has_member(IDispatch* object, const wchar_t* name) noexcept {
    return identifier(object, name).has_value();
}

} // namespace vellora::com
