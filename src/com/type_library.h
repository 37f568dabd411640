// The type library the module carries: the only description of the public interface there is at run time.
#pragma once

#include "com/member_table.h"
#include "com/ole.h"

#include <memory>
#include <string>

namespace vellora::com {

/// A dispatch interface: its type information and its members.
struct InterfaceInfo {
    explicit InterfaceInfo(ComPtr<ITypeInfo> info);

    ComPtr<ITypeInfo> type;
    MemberTable members;
};

class TypeLibrary {
public:
    /// Read from this module's own file, so no registration is needed; shared by all objects that are alive.
    static std::shared_ptr<const TypeLibrary> shared(REFIID default_interface);

    explicit TypeLibrary(REFIID default_interface);

    const InterfaceInfo& default_interface() const noexcept { return default_interface_; }
    /// A class or another type of the library.
    ComPtr<ITypeInfo> type(REFGUID id) const;

private:
    ComPtr<ITypeLib> library_;
    InterfaceInfo default_interface_;
};

/// Full path of the file this code was loaded from.
std::wstring module_path();
HINSTANCE module_instance() noexcept;

} // namespace vellora::com
