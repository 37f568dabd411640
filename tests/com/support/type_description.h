// A type library in words: each member, event and enumeration as a line that a test can compare whole.
#pragma once

#include <string>
#include <vector>
#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

namespace vellora::test {

class TypeDescription {
public:
    /// Reads the type library inside a file, without any registration. Throws std::runtime_error when it has
    /// none.
    explicit TypeDescription(const std::wstring& file);

    ITypeLib* library() const { return library_.Get(); }
    /// Throws std::runtime_error for a name the library does not describe.
    Microsoft::WRL::ComPtr<ITypeInfo> type(const std::wstring& name) const;

    /// `id kind Name(type name, ...) result [attributes]`, in the order of the function table. Parameters by
    /// reference have a star, optional ones their default.
    std::vector<std::string> functions(const std::wstring& type_name) const;
    /// The one line of `functions` for an accessor, such as "get Text"; empty when there is none.
    std::string function(const std::wstring& type_name, const std::string& accessor) const;
    /// `name = value`
    std::vector<std::string> values(const std::wstring& enumeration) const;

private:
    Microsoft::WRL::ComPtr<ITypeLib> library_;
};

/// Name and help string of a library or type.
struct Documentation {
    std::string name;
    std::string help;
};
Documentation documentation(ITypeLib* library);
Documentation documentation(ITypeInfo* type);
WORD type_flags(ITypeInfo* type);

} // namespace vellora::test
