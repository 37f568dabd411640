#include "form_line.h"

#include "form_name.h"
#include "form_number.h"
#include "form_scanner.h"

namespace vellora::samples {

namespace {

/// A whole word that the line must have.
std::u16string needed_word(FormScanner& scanner, const char* what) {
    const std::u16string_view word = scanner.word();
    if (word.empty())
        scanner.place().expected(what, scanner.remainder());
    return std::u16string(word);
}

FormReference parse_reference(FormScanner& scanner, std::u16string file, bool is_text) {
    if (!scanner.takes(u':'))
        scanner.place().expected("a colon and the place in the companion file", scanner.remainder());
    const std::u16string_view digits = scanner.bare_value();
    const std::optional<std::uint32_t> offset = parse_hexadecimal(digits);
    if (!offset)
        scanner.place().expected("the place in the companion file, a number to base 16,", digits);
    return {std::move(file), *offset, is_text};
}

void parse_text(FormScanner& scanner, FormLine& line) {
    const bool is_reference = scanner.takes(u'$');
    if (!scanner.is_at(u'"'))
        scanner.place().expected("the name of the companion file", scanner.remainder());
    std::u16string text = scanner.quoted_text();
    if (is_reference || scanner.is_at(u':'))
        line.reference = parse_reference(scanner, std::move(text), is_reference);
    else
        line.value = std::move(text);
}

void parse_value(FormScanner& scanner, FormLine& line) {
    // Of keys, dates and classes.
    constexpr std::u16string_view literal_marks = u"^+%{#";
    constexpr std::u16string_view number_marks = u"-.&0123456789";
    const char16_t first = scanner.at_end() ? u'\0' : scanner.rest().front();
    if (first == u'"' || first == u'$')
        parse_text(scanner, line);
    else if (literal_marks.find(first) != std::u16string_view::npos)
        line.value = FormLiteral{std::u16string(scanner.remainder())};
    else if (number_marks.find(first) != std::u16string_view::npos)
        line.value = parse_number(scanner.bare_value(), scanner.place());
    else
        scanner.place().expected("a number or a text in quotation marks", scanner.remainder());
}

FormLine parse_setting(FormScanner& scanner, std::u16string_view name) {
    FormLine line{FormLineKind::setting, std::u16string(name)};
    parse_value(scanner, line);
    line.comment = scanner.comment();
    return line;
}

FormLine parse_begin(FormScanner& scanner) {
    FormLine line{FormLineKind::begin};
    line.first = needed_word(scanner, "the class of a control");
    line.second = needed_word(scanner, "the name of a control");
    return line;
}

FormLine parse_begin_object(FormScanner& scanner) {
    FormLine line{FormLineKind::begin_object};
    line.first = needed_word(scanner, "the name of a property");
    line.second = scanner.word();
    return line;
}

FormLine parse_version(FormScanner& scanner) {
    FormLine line{FormLineKind::version};
    line.second = needed_word(scanner, "the number of a version");
    return line;
}

FormLine parse_keyword(FormScanner& scanner, std::u16string_view word, std::u16string_view text) {
    if (same_name(word, u"Begin"))
        return parse_begin(scanner);
    if (same_name(word, u"BeginProperty"))
        return parse_begin_object(scanner);
    if (same_name(word, u"End"))
        return {FormLineKind::end};
    if (same_name(word, u"EndProperty"))
        return {FormLineKind::end_object};
    if (same_name(word, u"VERSION"))
        return parse_version(scanner);
    scanner.place().expected("a setting, Begin or End", text);
}

} // namespace

FormLine parse_form_line(std::u16string_view text, const FormPlace& place) {
    FormScanner scanner(text, place);
    if (scanner.at_end())
        return {};
    const std::u16string_view whole = scanner.rest();
    const std::u16string_view word = scanner.word();
    if (word.empty() && scanner.is_at(u'\''))
        return {FormLineKind::comment, {}, {}, {}, {}, scanner.comment()};
    if (!word.empty() && scanner.takes(u'='))
        return parse_setting(scanner, word);
    FormLine line = parse_keyword(scanner, word, whole);
    if (!scanner.at_end())
        place.expected("the end of the line", scanner.remainder());
    return line;
}

bool starts_with_word(std::u16string_view text, std::u16string_view word) {
    static const std::string nowhere;
    return same_name(FormScanner(text, {nowhere, 0}).word(), word);
}

} // namespace vellora::samples
