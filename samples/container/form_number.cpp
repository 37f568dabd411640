#include "form_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace vellora::samples {

namespace {

using Long = std::numeric_limits<std::int32_t>;

/// Numbers are plain; what is not becomes a mark that no number has.
std::string plain(std::u16string_view text) {
    std::string result(text.size(), '?');
    std::ranges::transform(text, result.begin(),
                           [](char16_t unit) { return unit < 0x80 ? static_cast<char>(unit) : '?'; });
    return result;
}

/// `base_or_format` as std::from_chars has it.
template <typename Number>
std::errc parse(const std::string& text, Number& number, auto... base_or_format) {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base_or_format...);
    return error == std::errc() && stop != end ? std::errc::invalid_argument : error;
}

FormValue parse_fraction(std::u16string_view text, const FormPlace& place) {
    double number = 0;
    const std::errc error = parse(plain(text), number);
    if (error == std::errc::result_out_of_range)
        place.expected("a number of a size that a control can have", text);
    if (error != std::errc() || !std::isfinite(number))
        place.expected("a number", text);
    return number;
}

FormValue parse_whole(std::u16string_view text, const FormPlace& place) {
    std::int64_t number = 0;
    const std::errc error = parse(plain(text), number);
    if (error == std::errc::invalid_argument)
        place.expected("a number", text);
    if (error != std::errc() || number < Long::min() || number > Long::max())
        place.expected("a number from -2147483648 to 2147483647", text);
    return static_cast<std::int32_t>(number);
}

/// Between &H and &, the second of which may be missing.
FormValue parse_color(std::u16string_view text, const FormPlace& place) {
    std::u16string_view digits = text.substr(std::min<std::size_t>(2, text.size()));
    if (digits.ends_with(u'&'))
        digits.remove_suffix(1);
    const bool marked = text.starts_with(u"&H") || text.starts_with(u"&h");
    const std::optional<std::uint32_t> number = marked ? parse_hexadecimal(digits) : std::nullopt;
    if (!number)
        place.expected("a number such as &H8000000F&", text);
    return static_cast<std::int32_t>(*number);
}

} // namespace

FormValue parse_number(std::u16string_view text, const FormPlace& place) {
    if (text.starts_with(u'&'))
        return parse_color(text, place);
    return text.find_first_of(u".eE") == std::u16string_view::npos ? parse_whole(text, place)
                                                                   : parse_fraction(text, place);
}

std::optional<std::uint32_t> parse_hexadecimal(std::u16string_view text) {
    std::uint32_t number = 0;
    if (parse(plain(text), number, 16) != std::errc())
        return std::nullopt;
    return number;
}

std::string number_text(std::int32_t number) {
    // The colours of the system are known by their numbers to base 16.
    constexpr std::uint32_t system_colors = 0x80000000;
    const auto bits = static_cast<std::uint32_t>(number);
    if ((bits & 0xFFFFFF00) == system_colors)
        return "&H" + hexadecimal_text(bits, 8) + '&';
    return std::to_string(number);
}

std::string number_text(double number) {
    if (!std::isfinite(number))
        throw FormError("A form file cannot hold a number that is not finite.");
    char text[32];
    // Users write 100000 and not 1e+05, as long as they can count the digits.
    constexpr std::size_t most = 17; // fifteen, a sign and a point
    auto [end, error] = std::to_chars(text, text + most, number, std::chars_format::fixed);
    if (error != std::errc())
        end = std::to_chars(text, std::end(text), number).ptr;
    std::string result(text, end);
    // Without a mark it would be read as a Long.
    if (std::abs(number) > Long::max() && result.find_first_of(".e") == std::string::npos)
        result += ".0";
    return result;
}

std::string hexadecimal_text(std::uint32_t number, std::size_t digits) {
    char text[8];
    std::string result(text, std::to_chars(text, std::end(text), number, 16).ptr);
    std::ranges::transform(result, result.begin(),
                           [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit; });
    return std::string(digits - std::min(digits, result.size()), '0') + result;
}

} // namespace vellora::samples
