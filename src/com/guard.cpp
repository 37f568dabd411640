#include "com/guard.h"

#include "com/bstr.h"
#include "runtime/host_error.h"

#include <new>
#include <string>

namespace vellora::com {

namespace {

constexpr std::uint32_t run_time_error_base = 0x800A0000;
constexpr std::int32_t run_time_error_limit = 0x10000;

std::u16string_view error_source;

void set_error_object(REFIID interface_id, std::u16string_view source, std::u16string_view description) {
    ComPtr<ICreateErrorInfo> created;
    check(CreateErrorInfo(&created));
    check(created->SetGUID(interface_id));
    check(created->SetSource(wide(source).data()));
    check(created->SetDescription(wide(description).data()));
    ComPtr<IErrorInfo> error;
    check(created.As(&error));
    check(SetErrorInfo(0, error.Get()));
}

HRESULT report(const HostError& error, REFIID interface_id) {
    const std::u16string description =
        error.description().empty() ? standard_description(error.number()) : error.description();
    set_error_object(interface_id, error.source().empty() ? error_source : error.source(), description);
    return error_result(error);
}

} // namespace

void check(HRESULT result) {
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    if (FAILED(result))
        throw ComFailure(result);
}

void need(const void* argument) {
    if (!argument)
        throw ComFailure(E_POINTER);
}

void set_error_source(std::u16string_view name) noexcept {
    error_source = name;
}

HRESULT error_result(const HostError& error) noexcept {
    if (error.number() < 0)
        return error.number();
    if (error.number() == 0 || error.number() >= run_time_error_limit)
        return E_UNEXPECTED;
    return static_cast<HRESULT>(run_time_error_base + static_cast<std::uint32_t>(error.number()));
}

HRESULT report_current_exception(REFIID interface_id) noexcept {
    try {
        SetErrorInfo(0, nullptr);
        try {
            throw;
        } catch (const HostError& error) {
            return report(error, interface_id);
        }
    } catch (const ComFailure& failure) {
        // A platform function may fail without an error number.
        return FAILED(failure.result()) ? failure.result() : E_FAIL;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

} // namespace vellora::com
