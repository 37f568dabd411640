#include "line_file.h"

#include "environment.h"
#include "failure.h"

#include <algorithm>

namespace vellora::samples {

namespace {

std::string utf8(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    // A unit of UTF-16 takes three bytes at most.
    std::string bytes(text.size() * 3, '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(),
                                           static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

bool parts_lines(wchar_t character) {
    return character == L'\t' || character == L'\r' || character == L'\n';
}

} // namespace

LineFile::LineFile(const std::wstring& path) {
    if (path.empty())
        return;
    file_ = CreateFileW(windows_path(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                        FILE_ATTRIBUTE_NORMAL, nullptr);
    if (!is_open())
        throw Failure(path + L" cannot be written.");
}

LineFile::~LineFile() {
    if (is_open())
        CloseHandle(file_);
}

void LineFile::write(std::initializer_list<std::wstring_view> fields) {
    if (!is_open())
        return;
    std::wstring line;
    for (const std::wstring_view field : fields) {
        const std::size_t begin = line.size();
        line.append(field).append(1, L'\t');
        std::replace_if(line.begin() + static_cast<std::ptrdiff_t>(begin), line.end() - 1, parts_lines, L' ');
    }
    line.back() = L'\n';
    const std::string bytes = utf8(line);
    DWORD written = 0;
    WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace vellora::samples
