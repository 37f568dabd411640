#include "form_reader.h"

#include "form_name.h"
#include "form_utf8.h"

#include <algorithm>
#include <array>

namespace vellora::samples {

namespace {

struct PlacePart {
    const char16_t* name;
    std::int32_t FormControl::*number;
    FormPlacePart part;
};
constexpr std::array place_parts{
    PlacePart{u"Left", &FormControl::left, form_left}, PlacePart{u"Top", &FormControl::top, form_top},
    PlacePart{u"Width", &FormControl::width, form_width}, PlacePart{u"Height", &FormControl::height, form_height},
    PlacePart{u"TabIndex", &FormControl::tab_index, form_tab_index}};

template <typename Type>
const Type& needed(const FormLine& line, const char* what, const FormPlace& place) {
    const Type* const found = std::get_if<Type>(&line.value);
    if (!found)
        place.fail(std::string(what) + " was expected for " + quoted(line.first));
    return *found;
}

std::int32_t needed_number(const FormLine& line, const FormPlace& place) {
    return needed<std::int32_t>(line, "a number without a fraction", place);
}

/// Of a control that shares its name with others.
std::optional<std::int32_t> index_of(const FormControl& control) {
    const FormSetting* const index = find_setting(control.settings, u"Index");
    const auto number = index ? std::get_if<std::int32_t>(&index->value) : nullptr;
    return number ? std::optional(*number) : std::nullopt;
}

/// Whether the text can be a line within a form, which has no place in code.
bool is_form_line(const std::u16string& text, const FormPlace& place) {
    try {
        const FormLineKind kind = parse_form_line(text, place).kind;
        return kind != FormLineKind::comment && kind != FormLineKind::blank;
    } catch (const FormError&) {
        return false;
    }
}

bool is_blank_line(std::u16string_view text) {
    return text.find_first_not_of(u" \t") == std::u16string_view::npos;
}

std::string_view first_line(std::string_view text) {
    return text.substr(0, std::min(text.find_first_of("\r\n"), FormLimits::line_bytes));
}

bool starts_with_blank_line(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first < FormLimits::line_bytes && (text[first] == '\r' || text[first] == '\n');
}

} // namespace

Form FormReader::read() {
    read_version();
    read_libraries();
    while (!open_.empty()) {
        if (lines_.at_end())
            ends_too_early();
        read_line();
    }
    read_code();
    return std::move(form_);
}

void FormReader::read_line() {
    const std::u16string text = lines_.next();
    FormLine line = parse_form_line(text, lines_.place());
    switch (line.kind) {
    case FormLineKind::blank:
        return;
    case FormLineKind::version:
        lines_.place().expected("a setting, Begin or End", text);
    case FormLineKind::begin:
        return begin_control(std::move(line));
    case FormLineKind::begin_object:
        return begin_object(std::move(line));
    case FormLineKind::end:
        return end_control(ended("End", false).control);
    case FormLineKind::end_object:
        return end_object(ended("EndProperty", true));
    case FormLineKind::comment:
    case FormLineKind::setting:
        return set(std::move(line));
    }
}

void FormReader::read_version() {
    std::u16string text;
    while (is_blank_line(text) && !lines_.at_end())
        text = lines_.next();
    if (!starts_with_word(text, u"VERSION"))
        lines_.place().expected("the word VERSION, with which every form file begins,", text);
    const FormLine line = parse_form_line(text, lines_.place());
    if (line.kind != FormLineKind::version)
        lines_.place().expected("the number of a version", text);
    form_.version = line.second;
}

void FormReader::read_libraries() {
    while (!lines_.at_end()) {
        const std::u16string text = lines_.next();
        if (starts_with_word(text, u"Object")) {
            form_.libraries.push_back(text);
            continue;
        }
        FormLine line = parse_form_line(text, lines_.place());
        if (line.kind == FormLineKind::begin)
            return begin_control(std::move(line));
        if (line.kind != FormLineKind::blank)
            lines_.place().expected("a line with Begin and the class of the form", text);
    }
    lines_.place().expected("a line with Begin and the class of the form", {});
}

void FormReader::begin_control(FormLine&& line) {
    if (!open_.empty() && open_.back().object)
        lines_.place().expected("a setting or EndProperty", u"Begin");
    Open& opened = open(std::move(line.second));
    opened.control.program_id = std::move(line.first);
    opened.control.place_parts = 0;
}

void FormReader::begin_object(FormLine&& line) {
    open(std::move(line.first)).object = std::make_shared<FormObject>(FormObject{std::move(line.second)});
}

FormReader::Open& FormReader::open(std::u16string&& name) {
    if (open_.size() == FormLimits::depth)
        lines_.place().fail("controls and objects go deeper than the " + std::to_string(FormLimits::depth) +
                            " levels that a form can have");
    Open opened{{}, nullptr, lines_.place().line};
    opened.control.name = std::move(name);
    return open_.emplace_back(std::move(opened));
}

FormReader::Open FormReader::ended(const char* keyword, bool is_object) {
    Open& last = open_.back();
    if (is_object != (last.object != nullptr))
        lines_.place().fail(std::string(keyword_of(last)) + " was expected for " + quoted(last.control.name) +
                            ", which begins in line " + std::to_string(last.line) + ", not " + keyword);
    Open result = std::move(last);
    open_.pop_back();
    return result;
}

void FormReader::end_object(Open&& object) {
    settings_of(open_.back()).settings.push_back({std::move(object.control.name), std::move(object.object)});
}

void FormReader::end_control(FormControl&& control) {
    if (!open_.empty()) {
        check_unique(control);
        open_.back().control.controls.push_back(std::move(control));
        return;
    }
    form_.class_name = std::move(control.program_id);
    form_.name = std::move(control.name);
    form_.settings = std::move(control.settings);
    form_.controls = std::move(control.controls);
}

void FormReader::set(FormLine&& line) {
    count(settings_, FormLimits::settings, "settings");
    if (line.reference)
        line.value = follow_(*line.reference, lines_.place());
    Open& open = open_.back();
    const bool is_form = open_.size() == 1;
    if (!open.object && (is_form ? set_form(line) : set_place(open.control, line))) {
        if (line.comment.empty())
            return;
        // It becomes a line of its own.
        line.first.clear();
        line.value = {};
    }
    settings_of(open).settings.push_back({std::move(line.first), std::move(line.value), std::move(line.comment)});
}

bool FormReader::set_form(const FormLine& line) {
    if (!same_name(line.first, u"Caption"))
        return set_size(line);
    form_.caption = needed<std::u16string>(line, "a text in quotation marks", lines_.place());
    form_.parts |= form_caption;
    return true;
}

bool FormReader::set_size(const FormLine& line) {
    const bool is_width = same_name(line.first, u"ClientWidth");
    if (!is_width && !same_name(line.first, u"ClientHeight"))
        return false;
    (is_width ? form_.client_width : form_.client_height) = needed_number(line, lines_.place());
    form_.parts |= is_width ? form_client_width : form_client_height;
    return true;
}

bool FormReader::set_place(FormControl& control, const FormLine& line) {
    for (const PlacePart& part : place_parts) {
        if (!same_name(line.first, part.name))
            continue;
        control.*part.number = needed_number(line, lines_.place());
        control.place_parts |= part.part;
        return true;
    }
    return false;
}

void FormReader::count(std::size_t& sum, std::size_t most, const char* what) const {
    if (++sum > most)
        lines_.place().fail("the form has more than the " + std::to_string(most) + ' ' + what +
                            " that a form can have");
}

void FormReader::check_unique(const FormControl& control) {
    count(controls_, FormLimits::controls, "controls");
    if (!names_.emplace(folded(control.name), index_of(control)).second)
        lines_.place().fail("a second control called " + quoted(control.name) +
                            " ends, where every name was expected only once");
}

// A line of a form that follows its end means that the form ended too early. Code need not be UTF-8, nor its lines
// short, so that no more of it is looked at.
void FormReader::read_code() {
    form_.code = lines_.rest();
    const std::size_t ended = lines_.place().line;
    while (starts_with_blank_line(lines_.rest()))
        lines_.next();
    const FormPlace place{lines_.place().file, lines_.place().line + 1};
    const std::optional<std::u16string> text = decode_utf8(first_line(lines_.rest()));
    if (text && is_form_line(*text, place))
        place.expected("code, as the form ended in line " + std::to_string(ended) + ',', *text);
}

FormObject& FormReader::settings_of(Open& open) {
    return open.object ? *open.object : open.control.settings;
}

const char* FormReader::keyword_of(const Open& open) {
    return open.object ? "EndProperty" : "End";
}

void FormReader::ends_too_early() const {
    const Open& last = open_.back();
    lines_.place().fail("the file ends, where " + std::string(keyword_of(last)) + " was expected for " +
                        quoted(last.control.name) + ", which begins in line " + std::to_string(last.line));
}

} // namespace vellora::samples
