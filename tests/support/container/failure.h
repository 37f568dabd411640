// A failed call as a caller of the control sees it: number, source and description.
#pragma once

#include <exception>
#include <string>
#include <windows.h>

#include <oleauto.h>

namespace vellora::test {

struct Failure {
    HRESULT result = S_OK;
    std::wstring source;
    std::wstring description;

    /// The number a script sees in Err.Number: run-time errors without their facility.
    long number() const noexcept;
    /// `381 source "..." description "..."`
    std::string describe() const;
};

class CallFailed : public std::exception {
public:
    explicit CallFailed(Failure failure);
    const Failure& failure() const noexcept { return failure_; }
    const char* what() const noexcept override { return text_.c_str(); }

private:
    Failure failure_;
    std::string text_;
};

/// The error information that `object` left for `interface_id`, which it must own up to.
Failure failure_of(IUnknown* object, REFIID interface_id, HRESULT result);
Failure failure_of(HRESULT result, EXCEPINFO& info);

} // namespace vellora::test
