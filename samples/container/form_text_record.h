// Texts as records of a companion file: their length in as few bytes as it takes, then their bytes.
#pragma once

#include "form_text.h"

#include <span>

namespace vellora::samples {

FormBlob record_of_text(std::u16string_view text);
/// What other programs wrote in the characters of their country is read as Latin-1. Nothing for a record that is not
/// whole.
std::optional<std::u16string> text_of_record(std::span<const std::byte> record);

std::size_t little_endian(std::span<const std::byte> bytes);
void append_little_endian(FormBlob& bytes, std::size_t number, std::size_t size);

} // namespace vellora::samples
