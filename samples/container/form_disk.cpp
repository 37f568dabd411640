#include "form_disk.h"

#include "form_utf8.h"

#include <algorithm>
#include <windows.h>

namespace vellora::samples {

using std::filesystem::path;

namespace {

std::u16string text_of(const std::wstring& text) {
    return std::u16string(text.begin(), text.end());
}

std::string reason_of(DWORD error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return "there is no such file";
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
        return "there is no such folder";
    case ERROR_ACCESS_DENIED:
        return "the system does not allow it";
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return "another program has it open";
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return "the disk is full";
    case ERROR_WRITE_PROTECT:
        return "the disk is write-protected";
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        return "no file can have this name";
    default:
        return "Windows reports error " + std::to_string(error);
    }
}

[[noreturn]] void fail(const path& file, const char* step, DWORD error = GetLastError()) {
    throw FormError(shown(file) + " cannot be " + step + ": " + reason_of(error) + '.');
}

class OpenFile {
public:
    OpenFile(const path& file, DWORD access, DWORD how)
        : handle_(CreateFileW(file.c_str(), access, FILE_SHARE_READ, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (*this)
            CloseHandle(handle_);
    }

    explicit operator bool() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const noexcept { return handle_; }

private:
    HANDLE handle_;
};

std::size_t size_of(const OpenFile& open, const path& file, std::size_t limit, const char* kind) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(open.get(), &size))
        fail(file, "read");
    if (static_cast<std::uint64_t>(size.QuadPart) > limit)
        throw FormError(shown(file) + " has " + std::to_string(size.QuadPart) + " bytes, and " + kind +
                        " has at most " + std::to_string(limit) + '.');
    return static_cast<std::size_t>(size.QuadPart);
}

} // namespace

std::u16string file_name(const path& file) {
    return text_of(file.filename().native());
}

std::string shown(const path& file) {
    return encode_utf8(text_of(file.native()));
}

bool file_exists(const path& file) {
    return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<FormBlob> read_file(const path& file, std::size_t limit, const char* kind) {
    const OpenFile open(file, GENERIC_READ, OPEN_EXISTING);
    if (!open && GetLastError() == ERROR_FILE_NOT_FOUND)
        return std::nullopt;
    if (!open)
        fail(file, "opened");
    // In every folder, some names are those of devices.
    if (GetFileType(open.get()) != FILE_TYPE_DISK)
        fail(file, "read", ERROR_INVALID_NAME);
    FormBlob bytes(size_of(open, file, limit, kind));
    DWORD read = 0;
    if (!ReadFile(open.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
        fail(file, "read");
    if (read != bytes.size())
        fail(file, "read", ERROR_HANDLE_EOF);
    return bytes;
}

void write_file(const path& file, std::span<const std::byte> bytes, const path& wanted) {
    const OpenFile open(file, GENERIC_WRITE, CREATE_ALWAYS);
    if (!open)
        fail(wanted, "written");
    DWORD written = 0;
    if (!WriteFile(open.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        !FlushFileBuffers(open.get()))
        fail(wanted, "written");
    if (written != bytes.size())
        fail(wanted, "written", ERROR_DISK_FULL);
}

void move_file(const path& from, const path& to) {
    if (!MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        fail(to, "replaced");
}

void remove_file(const path& file) noexcept {
    DeleteFileW(file.c_str());
}

void check_changeable(const path& file) {
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        throw FormError(shown(file) + " cannot be written: it is a folder.");
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
        throw FormError(shown(file) + " cannot be written: it is read-only.");
}

} // namespace vellora::samples
