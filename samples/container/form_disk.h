// The files of a form on the disk, read and written as wholes. Whatever fails ends in a FormError that says which file
// and why.
#pragma once

#include "form_text.h"

#include <filesystem>
#include <span>

namespace vellora::samples {

/// The last part of a path.
std::u16string file_name(const std::filesystem::path& path);
/// As messages show it.
std::string shown(const std::filesystem::path& path);
bool file_exists(const std::filesystem::path& path);

/// Nothing when there is no such file. A larger file than `limit` is an error; `kind` is what has the limit.
std::optional<FormBlob> read_file(const std::filesystem::path& path, std::size_t limit, const char* kind);
/// On the disk when the call returns. `wanted` is the file that the user knows of.
void write_file(const std::filesystem::path& path, std::span<const std::byte> bytes,
                const std::filesystem::path& wanted);
/// In place of what is there.
void move_file(const std::filesystem::path& from, const std::filesystem::path& to);
/// Without a word when there is no such file.
void remove_file(const std::filesystem::path& path) noexcept;
/// Fails when the file is there and marked as not to be changed.
void check_changeable(const std::filesystem::path& path);

} // namespace vellora::samples
