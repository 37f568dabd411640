// A text file of a Linux package, one record a line, whose fields a separator parts: the tables of time zones
// and of Unicode. The demonstration brings no data of its own, so a file may well be missing.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vellora::samples {

/// Where a file is expected and how it is laid out.
struct RecordSource {
    const wchar_t* folder_variable; // the environment variable that names the folder
    const wchar_t* file;
    const wchar_t* package; // what to install when the file is not there
    char separator;
    std::size_t least_fields;
};

class RecordFile {
public:
    using Fields = std::vector<std::string_view>;
    /// Answers false when it cannot make sense of a record.
    using Reader = std::function<bool(const Fields& fields)>;

    /// Reads the whole file. Throws a Failure that names the package when that is not possible.
    explicit RecordFile(const RecordSource& source);

    /// Hands every record to the reader; empty lines and comments are left out. Throws a Failure that names
    /// line and package for a record with too few fields, or one the reader makes no sense of.
    void for_each(const Reader& reader) const;

private:
    [[noreturn]] void damaged(std::size_t line) const;

    const RecordSource& source_;
    std::wstring path_;
    std::string contents_;
};

/// A field as text; false for what is not UTF-8.
bool decode(std::string_view utf8, std::wstring& text);

} // namespace vellora::samples
