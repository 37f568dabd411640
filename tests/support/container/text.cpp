#include "support/container/text.h"

#include <utility>

namespace vellora::test {

std::string utf8(std::wstring_view text) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring wide(std::string_view text) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), size);
    return result;
}

Bstr::Bstr(std::wstring_view text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}

Bstr::Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}

Bstr::~Bstr() {
    SysFreeString(text_);
}

BSTR* Bstr::out() {
    SysFreeString(std::exchange(text_, nullptr));
    return &text_;
}

std::wstring Bstr::text() const {
    return text_ ? std::wstring(text_, SysStringLen(text_)) : std::wstring();
}

} // namespace vellora::test
