#include "form_text_record.h"

#include "form_utf8.h"

#include <algorithm>

namespace vellora::samples {

namespace {

// A length of all ones says that the real one follows in the next size.
constexpr std::size_t sizes[] = {1, 2, 4};

constexpr std::size_t longer_mark(std::size_t size) {
    return static_cast<std::size_t>((std::uint64_t{1} << (8 * size)) - 1);
}

std::u16string latin_1(std::string_view bytes) {
    std::u16string text(bytes.size(), u'\0');
    std::ranges::transform(bytes, text.begin(), [](char byte) { return static_cast<unsigned char>(byte); });
    return text;
}

} // namespace

std::size_t little_endian(std::span<const std::byte> bytes) {
    std::size_t number = 0;
    for (std::size_t at = bytes.size(); at > 0; --at)
        number = number << 8 | std::to_integer<std::size_t>(bytes[at - 1]);
    return number;
}

void append_little_endian(FormBlob& bytes, std::size_t number, std::size_t size) {
    for (std::size_t at = 0; at < size; ++at)
        bytes.push_back(static_cast<std::byte>(number >> (8 * at)));
}

FormBlob record_of_text(std::u16string_view text) {
    const std::string content = encode_utf8(text);
    FormBlob record;
    for (const std::size_t size : sizes) {
        const bool fits = content.size() < longer_mark(size);
        append_little_endian(record, fits ? content.size() : longer_mark(size), size);
        if (fits)
            break;
    }
    const auto bytes = std::as_bytes(std::span(content));
    record.insert(record.end(), bytes.begin(), bytes.end());
    return record;
}

std::optional<std::u16string> text_of_record(std::span<const std::byte> record) {
    std::size_t length = 0;
    for (const std::size_t size : sizes) {
        if (record.size() < size)
            return std::nullopt;
        length = little_endian(record.first(size));
        record = record.subspan(size);
        if (length != longer_mark(size))
            break;
    }
    if (length > record.size())
        return std::nullopt;
    const std::string_view bytes(reinterpret_cast<const char*>(record.data()), length);
    std::optional<std::u16string> text = decode_utf8(bytes);
    return text ? text : latin_1(bytes);
}

} // namespace vellora::samples
