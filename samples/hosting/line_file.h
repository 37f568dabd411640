// What happens on the form as lines of a file, for a program that watches it.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <windows.h>

namespace vellora::samples {

class LineFile {
public:
    /// Starts the file anew. Without a path nothing is written. Throws a Failure when the file cannot be
    /// made.
    explicit LineFile(const std::wstring& path);
    LineFile(const LineFile&) = delete;
    LineFile& operator=(const LineFile&) = delete;
    ~LineFile();

    bool is_open() const noexcept { return file_ != INVALID_HANDLE_VALUE; }
    /// One line, its fields parted by tabs, in UTF-8; on the disk when the call returns. What parts lines or fields
    /// becomes a blank.
    void write(std::initializer_list<std::wstring_view> fields);

private:
    HANDLE file_ = INVALID_HANDLE_VALUE;
};

} // namespace vellora::samples
