// What the registry holds about the control, as a list.
#pragma once

#include <string>
#include <vector>

namespace vellora::server {

struct RegistryEntry {
    /// Below the classes key.
    std::wstring key;
    /// Empty for the key's own value.
    std::wstring name;
    std::wstring value;
};

/// "CLSID\{...}": everything about this bitness of the control lies below it.
std::wstring class_key();
/// Where the class names the file of the library.
std::wstring server_key();
/// "TypeLib\{...}\1.0": both bitnesses share it, each with a file of its own below.
std::wstring type_library_key();

std::vector<RegistryEntry> class_entries();
/// The same for its property pages.
std::vector<std::wstring> page_keys();
std::vector<RegistryEntry> page_entries();
/// The names scripts create the control by, which lead to the class.
std::vector<RegistryEntry> program_id_entries();

} // namespace vellora::server
