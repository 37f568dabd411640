// A VARIANT that frees itself, is made from plain values and describes itself in one line, so that whole
// answers can be compared in a test.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>
#include <windows.h>

#include <oleauto.h>

namespace vellora::test {

class Variant {
public:
    Variant() noexcept { VariantInit(&value_); }
    Variant(const wchar_t* text);
    Variant(const std::wstring& text);
    Variant(std::int16_t number) noexcept;
    Variant(int number) noexcept;
    Variant(long number) noexcept;
    Variant(float number) noexcept;
    Variant(double number) noexcept;
    Variant(bool truth) noexcept;
    Variant(IDispatch* object) noexcept;
    Variant(IUnknown* object) noexcept;
    /// Takes the array over.
    explicit Variant(SAFEARRAY* array);
    /// Copies a variant that somebody else owns, following a reference.
    explicit Variant(const VARIANT& value);

    Variant(const Variant& other);
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant other) noexcept;
    ~Variant();

    static Variant null();
    static Variant missing();
    static Variant date(double days);

    /// Cleared, for an out argument.
    VARIANT* out();
    const VARIANT& get() const noexcept { return value_; }
    /// For platform functions that only read, yet take a pointer to a changeable one.
    VARIANT* argument() const noexcept { return const_cast<VARIANT*>(&value_); }
    VARIANT& raw() noexcept { return value_; }
    VARTYPE type() const noexcept { return value_.vt; }

    /// Converted by the platform; empty or 0 where it does not convert.
    std::wstring text() const;
    long number() const;
    double real() const;
    bool truth() const;

    /// `"text"`, `I2 5`, `I4 5`, `R4 2.5`, `True`, `Empty`, `Null`, `String(0 To 1) {"a", "b"}`,
    /// `String(0 To 1, 0 To 0) {{"a"}, {"b"}}` and so on.
    std::string describe() const;

private:
    VARIANT value_;
};

} // namespace vellora::test
