// The one place where failures change their form: inside are exceptions, outside are HRESULTs and the
// error object of the caller's thread.
#pragma once

#include "com/ole.h"

#include <exception>
#include <string_view>
#include <type_traits>

namespace vellora {
class HostError;
}

namespace vellora::com {

/// A failure that the platform itself names; it reaches the caller as it is.
class ComFailure : public std::exception {
public:
    explicit ComFailure(HRESULT result) noexcept : result_(result) {}
    HRESULT result() const noexcept { return result_; }

private:
    HRESULT result_;
};

/// Throws ComFailure for a failed call, std::bad_alloc where memory ran out.
void check(HRESULT result);

/// Throws E_POINTER for a missing argument.
void need(const void* argument);

/// The source of errors that name none. Set once, while the library is loaded; `name` is not copied.
void set_error_source(std::u16string_view name) noexcept;

/// Run-time numbers below 65536 travel as 0x800A0000 + number, numbers with the top bit set as they are.
HRESULT error_result(const HostError& error) noexcept;

/// Turns the exception being handled into its HRESULT and, for a HostError, the thread's error object.
HRESULT report_current_exception(REFIID interface_id) noexcept;

/// Runs the body of a COM method. A body without a result succeeds with S_OK.
template <class Body>
HRESULT guard(REFIID interface_id, Body&& body) noexcept {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Body&>>) {
            body();
            return S_OK;
        } else {
            return body();
        }
    } catch (...) {
        return report_current_exception(interface_id);
    }
}

template <class Body>
HRESULT guard(Body&& body) noexcept {
    return guard(IID_NULL, body);
}

} // namespace vellora::com
