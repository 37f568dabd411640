// Owner of a VARIANT, and conversions by the host's rules.
#pragma once

#include "com/ole.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vellora::com {

class Variant {
public:
    Variant() noexcept { VariantInit(&value_); }
    explicit Variant(std::int16_t value) noexcept;
    explicit Variant(std::int32_t value) noexcept;
    explicit Variant(float value) noexcept;
    explicit Variant(bool value) noexcept;
    explicit Variant(std::u16string_view value);
    /// A dispatch object where the object is one, else a plain one; null is Nothing.
    explicit Variant(IUnknown* object) noexcept;
    /// A copy with all references followed.
    static Variant copy_of(const VARIANT& value);

    Variant(Variant&& other) noexcept : value_(other.release()) {}
    Variant& operator=(Variant&& other) noexcept;
    ~Variant() { VariantClear(&value_); }

    VARTYPE type() const noexcept { return V_VT(&value_); }
    const VARIANT& get() const noexcept { return value_; }
    /// For a function that fills it in; empty before.
    VARIANT* put() noexcept;
    /// The payload in place, for a function that changes it.
    void* payload() noexcept { return &V_NONE(&value_); }
    VARIANT release() noexcept;

    bool is_object() const noexcept { return type() == VT_DISPATCH || type() == VT_UNKNOWN; }
    /// Null when it holds no object.
    ComPtr<IUnknown> object() const noexcept;
    /// Null also when the object is of another kind.
    template <class Interface>
    ComPtr<Interface> object_as() const noexcept {
        ComPtr<Interface> found;
        if (const ComPtr<IUnknown> held = object())
            held->QueryInterface(IID_PPV_ARGS(&found));
        return found;
    }

private:
    VARIANT value_;
};

/// The value in another type, by the rules and the locale of the user; booleans as words in texts.
HRESULT convert(const VARIANT& value, VARTYPE type, Variant& out);
/// Raises 6 (overflow), 13 (type mismatch) or 94 (invalid use of Null).
Variant converted(const VARIANT& value, VARTYPE type);

/// Bytes of a plain value in the payload: numbers, dates, currency and booleans. 0 for every other type.
std::size_t scalar_size(VARTYPE type) noexcept;

/// The value a by-reference variant refers to. Error 13 for references that lead nowhere.
const VARIANT& resolved(const VARIANT& value);

} // namespace vellora::com
