// Members that are declared but have no behaviour yet. The list says which, and tests hold it against what
// callers get; it only ever gets shorter.
#pragma once

#include <string_view>

namespace vellora::server {

/// By their names in the function table.
inline constexpr std::u16string_view unbuilt_members[] = {
    u"get_HeaderIcons", u"putref_HeaderIcons", u"get_HeaderIcon", u"put_HeaderIcon",
};

/// Error 445. The name is for the interface checker, which holds it against the list.
[[noreturn]] void raise_unbuilt(std::u16string_view member);

} // namespace vellora::server
