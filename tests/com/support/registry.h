// The classes part of the registry, as tests of registration look at it.
#pragma once

#include <map>
#include <string>
#include <vector>
#include <windows.h>

namespace vellora::test {

/// Every key and value about classes: of the machine and of the user, as each bitness sees them.
using ClassesSnapshot = std::map<std::wstring, std::wstring>;
ClassesSnapshot classes_snapshot();

/// What only one of them has, a line each: "- " when the first has it, "+ " when the second has.
std::vector<std::string> difference(const ClassesSnapshot& first, const ClassesSnapshot& second);
/// The lines in which one of the words occurs, in any case.
std::vector<std::string> mentions(const ClassesSnapshot& snapshot, const std::vector<std::wstring>& words);

std::wstring guid_text(REFGUID id);

// Keys are below the classes key of the root; "absent" stands for what is not there.
bool has_key(HKEY root, const std::wstring& key);
std::wstring value_of(HKEY root, const std::wstring& key, const wchar_t* name = nullptr);
void put_value(HKEY root, const std::wstring& key, const std::wstring& text);
void remove_key(HKEY root, const std::wstring& key);

} // namespace vellora::test
