// Texts of the platform as the tests read and print them.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

#include <oleauto.h>

namespace vellora::test {

std::string utf8(std::wstring_view text);
std::wstring wide(std::string_view utf8);

/// Owns a BSTR that a callee fills.
class Bstr {
public:
    Bstr() noexcept = default;
    explicit Bstr(std::wstring_view text);
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    Bstr(Bstr&& other) noexcept;
    ~Bstr();

    /// Frees what was held; for an out argument.
    BSTR* out();
    BSTR get() const noexcept { return text_; }
    std::wstring text() const;

private:
    BSTR text_ = nullptr;
};

} // namespace vellora::test
