#include "form_writer.h"

#include "form_name.h"
#include "form_number.h"
#include "form_utf8.h"

#include <algorithm>

namespace vellora::samples {

namespace {

/// Names in front of the equals sign.
constexpr std::size_t name_width = 16;
/// Longer texts would make lines that nobody can read.
constexpr std::size_t longest_text = 2000;

std::string word(std::u16string_view name) {
    if (!is_word(name))
        throw FormError("A form file cannot hold the name " + quoted(name) +
                        ", as a name has neither blanks nor marks.");
    return encode_utf8(name);
}

/// Whether a text between quotation marks comes back as it is, in any editor.
bool is_plain(std::u16string_view text) {
    const auto is_control = [](char16_t unit) { return unit < u' ' && unit != u'\t'; };
    return std::ranges::none_of(text, is_control) && has_whole_characters(text);
}

/// A piece of a line as it was read.
std::string piece(std::u16string_view text) {
    if (text.find_first_of(std::u16string_view(u"\r\n\0", 3)) != std::u16string_view::npos ||
        !has_whole_characters(text))
        throw FormError("A form file cannot hold " + quoted(text) + " in a line.");
    return encode_utf8(text);
}

std::string in_marks(std::u16string_view text) {
    std::string bytes = encode_utf8(text);
    for (std::size_t at = 0; (at = bytes.find('"', at)) != std::string::npos; at += 2)
        bytes.insert(at, 1, '"');
    return '"' + bytes + '"';
}

} // namespace

FormText FormWriter::write(const Form& form) {
    line("VERSION " + word(form.version));
    for (const std::u16string& library : form.libraries)
        line(piece(library));
    begin(form.class_name, form.name);
    if (!form.caption.empty() || (form.parts & form_caption) != 0)
        setting(u"Caption", text_value(form.caption));
    if (form.client_height != 0 || (form.parts & form_client_height) != 0)
        setting(u"ClientHeight", number_text(form.client_height));
    if (form.client_width != 0 || (form.parts & form_client_width) != 0)
        setting(u"ClientWidth", number_text(form.client_width));
    settings(form.settings);
    for (const FormControl& control : form.controls)
        this->control(control);
    end("End");
    text_ += form.code;
    return {std::move(text_), records_.take()};
}

void FormWriter::line(const std::string& text) {
    text_.append(3 * depth_, ' ').append(text).append("\r\n");
}

void FormWriter::begin(std::u16string_view class_name, std::u16string_view name) {
    line("Begin " + word(class_name) + ' ' + word(name));
    go_deeper();
}

// Objects that hold each other would go on for ever.
void FormWriter::go_deeper() {
    if (++depth_ > FormLimits::depth)
        throw FormError("The controls and objects of the form go deeper than the " + std::to_string(FormLimits::depth) +
                        " levels that a form file can have.");
}

void FormWriter::end(const char* keyword) {
    --depth_;
    line(keyword);
}

void FormWriter::control(const FormControl& control) {
    begin(control.program_id, control.name);
    place(control);
    settings(control.settings);
    for (const FormControl& child : control.controls)
        this->control(child);
    end("End");
}

void FormWriter::place(const FormControl& control) {
    const auto number = [&](std::u16string_view name, std::int32_t value, FormPlacePart part) {
        if (value != 0 || (control.place_parts & part) != 0)
            setting(name, number_text(value));
    };
    number(u"Height", control.height, form_height);
    number(u"Left", control.left, form_left);
    number(u"TabIndex", control.tab_index, form_tab_index);
    number(u"Top", control.top, form_top);
    number(u"Width", control.width, form_width);
}

void FormWriter::settings(const FormObject& object) {
    for (const FormSetting& setting : object.settings)
        this->setting(setting);
}

void FormWriter::setting(const FormSetting& setting) {
    if (setting.name.empty())
        line('\'' + piece(setting.comment));
    else if (const auto object = std::get_if<std::shared_ptr<FormObject>>(&setting.value))
        this->object(setting.name, **object);
    else
        this->setting(setting.name, value_text(setting.value), setting.comment);
}

void FormWriter::setting(std::u16string_view name, const std::string& value, std::u16string_view comment) {
    const std::string padding(name_width - std::min(name_width, name.size()), ' ');
    line(word(name) + padding + "=   " + value + (comment.empty() ? "" : "  '" + piece(comment)));
}

void FormWriter::object(std::u16string_view name, const FormObject& object) {
    line("BeginProperty " + word(name) + (object.class_id.empty() ? "" : ' ' + word(object.class_id)));
    go_deeper();
    settings(object);
    end("EndProperty");
}

std::string FormWriter::text_value(std::u16string_view text) {
    return text.size() <= longest_text && is_plain(text) ? in_marks(text) : records_.add(text);
}

std::string FormWriter::value_text(const FormValue& value) {
    if (const auto text = std::get_if<std::u16string>(&value))
        return text_value(*text);
    if (const auto number = std::get_if<std::int32_t>(&value))
        return number_text(*number);
    if (const auto number = std::get_if<double>(&value))
        return number_text(*number);
    if (const auto record = std::get_if<FormBlob>(&value))
        return records_.add(*record);
    return piece(std::get<FormLiteral>(value).text);
}

// What cannot be read back is not written.
FormText write_form(const Form& form, std::u16string_view companion_name) {
    FormText written = FormWriter(companion_name).write(form);
    const auto companion = [&](const std::u16string&) { return std::optional(written.companion); };
    read_form({"the form that is to be saved", written.text, companion});
    return written;
}

} // namespace vellora::samples
