// Which file a path leads to: short and long names, links and drive letters give one file many paths.
#pragma once

#include <optional>
#include <string>
#include <tuple>
#include <windows.h>

namespace vellora::server {

/// Volume and the two halves of the file's number on it.
using FileIdentity = std::tuple<DWORD, DWORD, DWORD>;

/// Nothing when there is no such file.
std::optional<FileIdentity> identity_of(const std::wstring& path) noexcept;

} // namespace vellora::server
