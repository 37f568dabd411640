#include "com/support/registry.h"

#include "support/container/text.h"

#include <gtest/gtest.h>
#include <objbase.h>

namespace vellora::test {

namespace {

constexpr wchar_t classes[] = L"Software\\Classes\\";

void take_values(HKEY key, const std::wstring& path, ClassesSnapshot& snapshot) {
    for (DWORD index = 0;; ++index) {
        wchar_t name[512] = {};
        wchar_t data[4096] = {};
        DWORD name_length = 512;
        DWORD bytes = sizeof data - sizeof(wchar_t);
        const LSTATUS status =
            RegEnumValueW(key, index, name, &name_length, nullptr, nullptr, reinterpret_cast<BYTE*>(data), &bytes);
        if (status == ERROR_NO_MORE_ITEMS)
            return;
        snapshot[path + L" @" + name] = status == ERROR_SUCCESS ? data : L"(long)";
    }
}

void take_key(HKEY parent, const std::wstring& name, const std::wstring& path, REGSAM view, ClassesSnapshot& snapshot) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS)
        return;
    snapshot[path];
    take_values(key, path, snapshot);
    wchar_t child[512] = {};
    for (DWORD index = 0, length = 512;
         RegEnumKeyExW(key, index, child, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++index, length = 512)
        take_key(key, child, path + L"\\" + child, view, snapshot);
    RegCloseKey(key);
}

std::string line(const ClassesSnapshot::value_type& entry) {
    return utf8(entry.first + (entry.second.empty() ? L"" : L" = " + entry.second));
}

void add_missing(const ClassesSnapshot& from, const ClassesSnapshot& in, const char* mark,
                 std::vector<std::string>& lines) {
    for (const auto& entry : from) {
        const auto found = in.find(entry.first);
        if (found == in.end() || found->second != entry.second)
            lines.push_back(mark + line(entry));
    }
}

} // namespace

ClassesSnapshot classes_snapshot() {
    ClassesSnapshot snapshot;
    const std::wstring all(classes, std::size(classes) - 2);
    // Where both bitnesses are, this view has the other one's classes below a key of their own.
    take_key(HKEY_LOCAL_MACHINE, all, L"machine", KEY_WOW64_64KEY, snapshot);
    take_key(HKEY_CURRENT_USER, all, L"user", KEY_WOW64_64KEY, snapshot);
    return snapshot;
}

ClassesSnapshot snapshot_of(const std::vector<std::wstring>& keys) {
    ClassesSnapshot snapshot;
    for (const std::wstring& key : keys) {
        const std::wstring path = classes + key;
        take_key(HKEY_LOCAL_MACHINE, path, L"machine 32 " + key, KEY_WOW64_32KEY, snapshot);
        take_key(HKEY_LOCAL_MACHINE, path, L"machine 64 " + key, KEY_WOW64_64KEY, snapshot);
        take_key(HKEY_CURRENT_USER, path, L"user 32 " + key, KEY_WOW64_32KEY, snapshot);
        take_key(HKEY_CURRENT_USER, path, L"user 64 " + key, KEY_WOW64_64KEY, snapshot);
    }
    return snapshot;
}

std::vector<std::string> lines_of(const ClassesSnapshot& snapshot) {
    return difference({}, snapshot);
}

std::vector<std::string> difference(const ClassesSnapshot& first, const ClassesSnapshot& second) {
    std::vector<std::string> lines;
    add_missing(first, second, "- ", lines);
    add_missing(second, first, "+ ", lines);
    return lines;
}

std::wstring guid_text(REFGUID id) {
    wchar_t text[39] = {};
    StringFromGUID2(id, text, 39);
    return text;
}

bool has_key(HKEY root, const std::wstring& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, (classes + key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

std::wstring value_of(HKEY root, const std::wstring& key, const wchar_t* name) {
    wchar_t text[1024] = {};
    DWORD size = sizeof text;
    const LSTATUS status = RegGetValueW(root, (classes + key).c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? text : L"absent";
}

void put_value(HKEY root, const std::wstring& key, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    EXPECT_EQ(ERROR_SUCCESS, RegSetKeyValueW(root, (classes + key).c_str(), nullptr, REG_SZ, text.c_str(), bytes));
}

void remove_key(HKEY root, const std::wstring& key) {
    EXPECT_EQ(ERROR_SUCCESS, RegDeleteTreeW(root, (classes + key).c_str()));
}

} // namespace vellora::test
