#include "server/file_identity.h"

namespace vellora::server {

std::optional<FileIdentity> identity_of(const std::wstring& path) noexcept {
    const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION found = {};
    const bool known = GetFileInformationByHandle(file, &found) != FALSE;
    CloseHandle(file);
    if (!known)
        return {};
    return FileIdentity(found.dwVolumeSerialNumber, found.nFileIndexHigh, found.nFileIndexLow);
}

} // namespace vellora::server
