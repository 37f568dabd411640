// The companion file of a form: records one after the other, which the form's text names by file and offset. Those of
// this program say how long they are; those of other programs end where the next one begins.
#pragma once

#include "form_place.h"
#include "form_text.h"

#include <map>
#include <set>
#include <span>

namespace vellora::samples {

/// "Form1.frx":0000, with a dollar sign before it for a text.
struct FormReference {
    std::u16string file;
    std::uint32_t offset = 0;
    bool is_text = false;
};

/// A record of this program around `content`.
FormBlob record_of(std::span<const std::byte> content);
/// What is in such a record; nothing for a record of another program.
std::optional<std::span<const std::byte>> content_of(const FormBlob& record);

/// The records that a form's text refers to. All references are noted before the first is followed, since the next one
/// may tell where a record ends.
class FormRecords {
public:
    explicit FormRecords(const FormSource& source) : source_(source) {}

    bool empty() const noexcept { return files_.empty(); }
    /// Fails when the file is not there, or ends before the offset.
    void note(const FormReference& reference, const FormPlace& place);
    /// Fails for a damaged record. `reference` was noted.
    FormValue value(const FormReference& reference, const FormPlace& place);

private:
    struct File {
        FormBlob bytes;
        std::set<std::size_t> offsets;
    };
    File& file(const std::u16string& name, const FormPlace& place);
    void count(std::size_t bytes, const FormPlace& place);

    const FormSource& source_;
    std::map<std::u16string, File> files_;
    std::size_t total_ = 0;
};

/// Puts a companion file together.
class FormRecordWriter {
public:
    /// `name` is how the text calls the file.
    explicit FormRecordWriter(std::u16string_view name) : name_(name) {}

    /// Both give what the text says instead of the value.
    std::string add(const FormBlob& record);
    std::string add(std::u16string_view text);
    FormBlob take() noexcept { return std::move(bytes_); }

private:
    std::string append(std::span<const std::byte> record);

    std::u16string name_;
    FormBlob bytes_;
};

} // namespace vellora::samples
