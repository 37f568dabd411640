#include "com/object_property.h"

#include "com/bstr.h"
#include "com/guard.h"
#include "runtime/host_error.h"

namespace vellora::com {

namespace {

constexpr std::uint32_t run_time_error_facility = 0x800A0000;

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

void check_call(HRESULT result, EXCEPINFO& exception) {
    if (result == DISP_E_EXCEPTION)
        raise_exception_of_object(exception);
    check(result);
}

} // namespace

Variant get_property(IDispatch* object, DISPID id, const Variant* index) {
    VARIANT argument = index ? index->get() : VARIANT{};
    Variant value;
    EXCEPINFO exception = {};
    check_call(get(object, id, value, &exception, {&argument, nullptr, index ? 1U : 0U, 0}), exception);
    return value;
}

void put_property(IDispatch* object, DISPID id, const Variant& value, const Variant* index) {
    // Arguments travel from last to first, and the value is the last.
    VARIANT arguments[] = {value.get(), index ? index->get() : VARIANT{}};
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = {arguments, &named, index ? 2U : 1U, 1};
    EXCEPINFO exception = {};
    check_call(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &parameters, nullptr,
                              &exception, nullptr),
               exception);
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
