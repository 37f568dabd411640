#include "server/file_identity.h"

#include <memory>

namespace vellora::server {

namespace {

struct FileCloser {
    void operator()(HANDLE file) const noexcept { CloseHandle(file); }
};

} // namespace

std::optional<FileIdentity> identity_of(const std::wstring& path) noexcept {
    const HANDLE opened = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return {};
    const std::unique_ptr<void, FileCloser> file(opened);
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!GetFileInformationByHandle(file.get(), &found))
        return {};
    return FileIdentity(found.dwVolumeSerialNumber, found.nFileIndexHigh, found.nFileIndexLow);
}

} // namespace vellora::server
