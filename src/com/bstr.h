// Texts across the COM boundary: UTF-16 on both sides, only the character type differs.
#pragma once

#include "com/ole.h"

#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace vellora::com {

inline const wchar_t* wide(const char16_t* text) noexcept {
    return reinterpret_cast<const wchar_t*>(text);
}
inline std::wstring wide(std::u16string_view text) {
    return {wide(text.data()), text.size()};
}
inline std::u16string_view narrow_view(std::wstring_view text) noexcept {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

/// The text of a BSTR; a null one is empty.
inline std::u16string_view bstr_view(BSTR text) noexcept {
    return {reinterpret_cast<const char16_t*>(text), SysStringLen(text)};
}

/// A copy of a text for the caller to free. Throws std::bad_alloc.
inline BSTR make_bstr(std::u16string_view text) {
    const BSTR made = SysAllocStringLen(wide(text.data()), static_cast<UINT>(text.size()));
    if (!made)
        throw std::bad_alloc();
    return made;
}

/// Owner of a BSTR.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(std::u16string_view text) : text_(make_bstr(text)) {}
    Bstr(Bstr&& other) noexcept : text_(other.release()) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~Bstr() { SysFreeString(text_); }

    BSTR get() const noexcept { return text_; }
    BSTR release() noexcept { return std::exchange(text_, nullptr); }
    std::u16string_view view() const noexcept { return bstr_view(text_); }
    /// For a function that fills it in.
    BSTR* put() noexcept {
        SysFreeString(release());
        return &text_;
    }

private:
    BSTR text_ = nullptr;
};

/// A copy of a text in the COM allocator, as enumerations and user type names are handed out.
inline LPOLESTR make_task_text(std::u16string_view text) {
    const auto made = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(OLECHAR)));
    if (!made)
        throw std::bad_alloc();
    text.copy(reinterpret_cast<char16_t*>(made), text.size());
    made[text.size()] = L'\0';
    return made;
}

} // namespace vellora::com
