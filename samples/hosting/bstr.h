// A text as COM passes it, freed by its owner.
#pragma once

#include <new>
#include <string>
#include <string_view>
#include <windows.h>

#include <oleauto.h>

namespace vellora::samples {

class Bstr {
public:
    Bstr() noexcept = default;
    explicit Bstr(std::wstring_view text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
        if (!text_)
            throw std::bad_alloc();
    }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }

    BSTR get() const noexcept { return text_; }
    /// For a call that hands a text out; only once in a Bstr's life.
    BSTR* out() noexcept { return &text_; }
    std::wstring text() const { return std::wstring(text_ ? text_ : L"", SysStringLen(text_)); }

private:
    BSTR text_ = nullptr;
};

} // namespace vellora::samples
