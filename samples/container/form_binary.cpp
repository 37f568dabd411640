#include "form_binary.h"

#include "form_number.h"
#include "form_text_record.h"
#include "form_utf8.h"

#include <algorithm>
#include <array>

namespace vellora::samples {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::array mark{std::byte{'V'}, std::byte{'F'}, std::byte{'r'}, std::byte{'x'}};
constexpr std::size_t head_size = mark.size() + 4;

/// So is one that ends within the mark: what other programs write is longer.
bool is_own(Bytes record) {
    const std::size_t size = std::min(record.size(), mark.size());
    return std::ranges::equal(record.first(size), Bytes(mark).first(size));
}

/// Whether a record of this program is whole, or the record is another program's.
bool is_whole(Bytes record) {
    return !is_own(record) ||
           (record.size() >= head_size && little_endian(record.subspan(mark.size(), 4)) <= record.size() - head_size);
}

} // namespace

FormBlob record_of(Bytes content) {
    FormBlob record(mark.begin(), mark.end());
    append_little_endian(record, content.size(), 4);
    record.insert(record.end(), content.begin(), content.end());
    return record;
}

std::optional<Bytes> content_of(const FormBlob& record) {
    if (!is_own(record) || !is_whole(record))
        return std::nullopt;
    return Bytes(record).subspan(head_size, little_endian(Bytes(record).subspan(mark.size(), 4)));
}

void FormRecords::note(const FormReference& reference, const FormPlace& place) {
    File& file = this->file(reference.file, place);
    if (reference.offset >= file.bytes.size())
        place.fail("the place " + hexadecimal_text(reference.offset) + " was expected to be in the companion file " +
                   quoted(reference.file) + ", which ends at " +
                   hexadecimal_text(static_cast<std::uint32_t>(file.bytes.size())));
    file.offsets.insert(reference.offset);
}

FormValue FormRecords::value(const FormReference& reference, const FormPlace& place) {
    const File& file = files_.at(reference.file);
    const auto next = file.offsets.upper_bound(reference.offset);
    const std::size_t end = next == file.offsets.end() ? file.bytes.size() : *next;
    const Bytes record = Bytes(file.bytes).subspan(reference.offset, end - reference.offset);
    count(record.size(), place);
    if (!reference.is_text && is_whole(record))
        return FormBlob(record.begin(), record.end());
    std::optional<std::u16string> text = reference.is_text ? text_of_record(record) : std::nullopt;
    if (!text)
        place.fail("a whole record was expected at " + hexadecimal_text(reference.offset) + " of the companion file " +
                   quoted(reference.file) + ", which is damaged there");
    return *std::move(text);
}

FormRecords::File& FormRecords::file(const std::u16string& name, const FormPlace& place) {
    const auto known = files_.find(name);
    if (known != files_.end())
        return known->second;
    if (name.find_first_of(u"/\\:") != std::u16string::npos)
        place.expected("a companion file in the folder of the form", name);
    std::optional<FormBlob> bytes = source_.companion(name);
    if (!bytes)
        place.fail("the companion file " + quoted(name) + " was expected beside the form, and it is not there");
    count(bytes->size(), place);
    return files_.emplace(name, File{*std::move(bytes), {}}).first->second;
}

// A form may name the same record or ever new files many times, and each is a copy in memory.
void FormRecords::count(std::size_t bytes, const FormPlace& place) {
    total_ += bytes;
    constexpr std::size_t limit = 2 * FormLimits::companion_bytes;
    if (total_ > limit)
        place.fail("the records of the form take more than the " + std::to_string(limit / 1024 / 1024) +
                   " megabytes that a form can have");
}

std::string FormRecordWriter::add(const FormBlob& record) {
    return append(record);
}

std::string FormRecordWriter::add(std::u16string_view text) {
    return '$' + append(record_of_text(text));
}

std::string FormRecordWriter::append(Bytes record) {
    if (bytes_.size() + record.size() > FormLimits::companion_bytes)
        throw FormError("The pictures and long texts of the form take more than the " +
                        std::to_string(FormLimits::companion_bytes / 1024 / 1024) +
                        " megabytes that a companion file can have.");
    const auto offset = static_cast<std::uint32_t>(bytes_.size());
    bytes_.insert(bytes_.end(), record.begin(), record.end());
    return '"' + encode_utf8(name_) + "\":" + hexadecimal_text(offset);
}

} // namespace vellora::samples
