#include "environment.h"

#include <algorithm>
#include <windows.h>

namespace vellora::samples {

std::wstring environment(const wchar_t* name) {
    std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

std::wstring windows_path(std::wstring path) {
    if (path.starts_with(L'/'))
        path.insert(0, L"Z:");
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

} // namespace vellora::samples
