// What went wrong, in words for the person in front of the screen.
#pragma once

#include <exception>
#include <string>
#include <windows.h>

namespace vellora::samples {

class Failure : public std::exception {
public:
    explicit Failure(std::wstring message) : message_(std::move(message)) {}
    const std::wstring& message() const noexcept { return message_; }
    const char* what() const noexcept override { return "see message()"; }

private:
    std::wstring message_;
};

/// Throws a Failure unless the call succeeded: `step` in the user's words, then what the control says about
/// it.
void check(HRESULT result, const wchar_t* step);

} // namespace vellora::samples
