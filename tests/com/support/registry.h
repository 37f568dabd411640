// The classes part of the registry, as tests of registration look at it.
#pragma once

#include <map>
#include <string>
#include <vector>
#include <windows.h>

namespace vellora::test {

/// Keys and values below the classes keys of the machine and of the user, by their paths.
using ClassesSnapshot = std::map<std::wstring, std::wstring>;
/// All there are: tens of thousands.
ClassesSnapshot classes_snapshot();
/// These keys and what is below them, as each bitness sees them.
ClassesSnapshot snapshot_of(const std::vector<std::wstring>& keys);

std::vector<std::string> lines_of(const ClassesSnapshot& snapshot);
/// What only one of them has, a line each: "- " when the first has it, "+ " when the second has.
std::vector<std::string> difference(const ClassesSnapshot& first, const ClassesSnapshot& second);

std::wstring guid_text(REFGUID id);

// Keys are below the classes key of the root; "absent" stands for what is not there.
bool has_key(HKEY root, const std::wstring& key);
std::wstring value_of(HKEY root, const std::wstring& key, const wchar_t* name = nullptr);
void put_value(HKEY root, const std::wstring& key, const std::wstring& text);
void remove_key(HKEY root, const std::wstring& key);

} // namespace vellora::test
