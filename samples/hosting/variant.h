// A value of any type as COM passes it, freed by its owner.
#pragma once

#include <string>
#include <utility>
#include <windows.h>

#include <oleauto.h>

namespace vellora::samples {

class Variant {
public:
    Variant() = default;
    explicit Variant(const std::wstring& text) {
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    }
    explicit Variant(const VARIANT& other) { VariantCopy(&value_, const_cast<VARIANT*>(&other)); }
    Variant(const Variant& other) : Variant(other.value_) {}
    Variant(Variant&& other) noexcept : value_(std::exchange(other.value_, VARIANT{})) {}
    Variant& operator=(Variant other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~Variant() { VariantClear(&value_); }

    VARTYPE type() const noexcept { return value_.vt; }
    /// To pass on; stays this object's.
    VARIANT* get() noexcept { return &value_; }
    /// For a call that hands a value out; frees the one before.
    VARIANT* out() noexcept {
        VariantClear(&value_);
        return &value_;
    }
    /// Becomes a value of another type; false, and unchanged, when it has no meaning there.
    bool change_to(VARTYPE type) noexcept {
        return SUCCEEDED(VariantChangeType(&value_, &value_, VARIANT_ALPHABOOL, type));
    }
    /// Empty for what is no text.
    std::wstring text() const {
        return value_.vt == VT_BSTR ? std::wstring(value_.bstrVal, SysStringLen(value_.bstrVal)) : std::wstring();
    }

private:
    VARIANT value_{};
};

} // namespace vellora::samples
