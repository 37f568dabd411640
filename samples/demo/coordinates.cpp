#include "coordinates.h"

namespace vellora::samples {

namespace {

bool is_sign(char c) {
    return c == '+' || c == '-';
}

bool is_digits(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// A sign, `degree_digits` digits of degrees, two of minutes and perhaps two of seconds.
std::optional<std::wstring> readable_angle(std::string_view angle, std::size_t degree_digits,
                                           const wchar_t* directions) {
    const std::size_t shortest = 1 + degree_digits + 2;
    if ((angle.size() != shortest && angle.size() != shortest + 2) || !is_sign(angle[0]) ||
        !is_digits(angle.substr(1)))
        return std::nullopt;
    std::string_view degrees = angle.substr(1, degree_digits);
    while (degrees.size() > 1 && degrees.front() == '0')
        degrees.remove_prefix(1);
    const std::string_view minutes = angle.substr(1 + degree_digits, 2);
    return std::wstring(degrees.begin(), degrees.end()) + L'°' +
           std::wstring(minutes.begin(), minutes.end()) + L"' " + directions[angle[0] == '-'];
}

} // namespace

std::optional<std::wstring> readable_coordinates(std::string_view iso_6709) {
    const std::size_t second_sign = iso_6709.find_first_of("+-", 1);
    if (second_sign == std::string_view::npos)
        return std::nullopt;
    const auto latitude = readable_angle(iso_6709.substr(0, second_sign), 2, L"NS");
    const auto longitude = readable_angle(iso_6709.substr(second_sign), 3, L"EW");
    if (!latitude || !longitude)
        return std::nullopt;
    return *latitude + L"  " + *longitude;
}

} // namespace vellora::samples
