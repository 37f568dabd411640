#include "record_file.h"

#include "hosting/environment.h"
#include "hosting/failure.h"

#include <memory>
#include <windows.h>

namespace vellora::samples {

namespace {

struct CloseFile {
    using pointer = HANDLE;
    void operator()(HANDLE file) const noexcept { CloseHandle(file); }
};
using FileHandle = std::unique_ptr<void, CloseFile>;

std::string read_whole(const std::wstring& path) {
    const HANDLE opened = CreateFileW(windows_path(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return {};
    const FileHandle file(opened);
    std::string contents(GetFileSize(file.get(), nullptr), '\0');
    DWORD read = 0;
    if (!ReadFile(file.get(), contents.data(), static_cast<DWORD>(contents.size()), &read, nullptr))
        read = 0;
    contents.resize(read);
    return contents;
}

/// The text up to the separator, which is taken off the rest.
std::string_view take_until(std::string_view& rest, char separator) {
    const std::size_t end = rest.find(separator);
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

std::string_view take_line(std::string_view& rest) {
    std::string_view line = take_until(rest, '\n');
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

void split(std::string_view line, char separator, RecordFile::Fields& fields) {
    fields.clear();
    while (!line.empty())
        fields.push_back(take_until(line, separator));
}

} // namespace

RecordFile::RecordFile(const RecordSource& source)
    : source_(source), path_(environment(source.folder_variable)) {
    if (path_.empty())
        throw Failure(std::wstring(source_.folder_variable) + L" does not name the folder of " +
                      source_.file + L", which the package " + source_.package + L" brings.");
    path_ += std::wstring(L"/") + source_.file;
    contents_ = read_whole(path_);
    if (contents_.empty())
        throw Failure(path_ + L" cannot be read. Install the package " + source_.package + L'.');
}

void RecordFile::for_each(const Reader& reader) const {
    Fields fields;
    std::string_view rest = contents_;
    for (std::size_t number = 1; !rest.empty(); ++number) {
        const std::string_view line = take_line(rest);
        if (line.empty() || line.front() == '#')
            continue;
        split(line, source_.separator, fields);
        if (fields.size() < source_.least_fields || !reader(fields))
            damaged(number);
    }
}

void RecordFile::damaged(std::size_t line) const {
    throw Failure(path_ + L" is damaged in line " + std::to_wstring(line) + L". Install the package " +
                  source_.package + L" again.");
}

bool decode(std::string_view utf8, std::wstring& text) {
    text.clear();
    if (utf8.empty())
        return true;
    const int size = static_cast<int>(utf8.size());
    // UTF-16 never has more units than UTF-8 has bytes.
    text.resize(utf8.size());
    const int length =
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), size, text.data(), size);
    text.resize(static_cast<std::size_t>(length));
    return length > 0;
}

} // namespace vellora::samples
