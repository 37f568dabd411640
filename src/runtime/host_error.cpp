#include "runtime/host_error.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace vellora {

namespace {

struct StandardText {
    std::int32_t number;
    std::u16string_view text;
};

constexpr std::array standard_texts{
    StandardText{error_number::invalid_procedure_call, u"Invalid procedure call or argument"},
    StandardText{error_number::overflow, u"Overflow"},
    StandardText{error_number::subscript_out_of_range, u"Subscript out of range"},
    StandardText{error_number::division_by_zero, u"Division by zero"},
    StandardText{error_number::type_mismatch, u"Type mismatch"},
    StandardText{error_number::object_not_set, u"Object variable or With block variable not set"},
    StandardText{error_number::invalid_use_of_null, u"Invalid use of Null"},
    StandardText{error_number::control_array_element_missing, u"Control array element does not exist"},
    StandardText{error_number::invalid_property_value, u"Invalid property value"},
    StandardText{error_number::invalid_property_array_index, u"Invalid property array index"},
    StandardText{error_number::set_not_supported_at_run_time, u"Property Set can't be executed at run time"},
    StandardText{error_number::set_not_permitted, u"Property Set not permitted"},
    StandardText{error_number::member_not_supported, u"Object doesn't support this property or method"},
    StandardText{error_number::index_out_of_bounds, u"Index out of bounds"},
    StandardText{error_number::element_not_found, u"Element not found"},
};

std::string ascii(std::u16string_view text) {
    std::string result;
    std::transform(text.begin(), text.end(), std::back_inserter(result),
                   [](char16_t unit) { return unit >= 0x20 && unit < 0x7F ? static_cast<char>(unit) : '?'; });
    return result;
}

std::string rendering(std::int32_t number, std::u16string_view source, std::u16string_view description) {
    std::string result = "Error " + std::to_string(number);
    if (!description.empty())
        result += ": " + ascii(description);
    if (!source.empty())
        result += " (" + ascii(source) + ")";
    return result;
}

} // namespace

HostError::HostError(std::int32_t number, std::u16string source, std::u16string description)
    : number_(number), source_(std::move(source)), description_(std::move(description)),
      rendering_(
          rendering(number_, source_, description_.empty() ? standard_description(number_) : description_)) {}

const char* HostError::what() const noexcept {
    return rendering_.c_str();
}

std::u16string standard_description(std::int32_t number) {
    const auto found = std::find_if(standard_texts.begin(), standard_texts.end(),
                                    [number](const StandardText& entry) { return entry.number == number; });
    return found == standard_texts.end() ? std::u16string() : std::u16string(found->text);
}

} // namespace vellora
