// The host's conversions of variants and its checks of their bounds.
#include "support/headless/variant.h"

#include "runtime/checked.h"
#include "runtime/host_error.h"
#include "support/headless/journal.h"

#include <cstdlib>
#include <utility>

namespace vellora::test {

namespace {

std::u16string number_text(double number) {
    const std::string digits = readable(number);
    return {digits.begin(), digits.end()};
}

struct ToText {
    std::u16string& scratch;

    std::u16string_view operator()(const std::u16string& text) const { return text; }
    std::u16string_view operator()(double number) const { return scratch = number_text(number); }
    std::u16string_view operator()(Empty) const { return scratch = {}; }
    std::u16string_view operator()(Null) const { throw HostError(error_number::invalid_use_of_null); }
    std::u16string_view operator()(ErrorValue) const { throw HostError(error_number::type_mismatch); }
    std::u16string_view operator()(Object) const { throw HostError(error_number::type_mismatch); }
};

struct ToInteger {
    std::int16_t operator()(const std::u16string& text) const {
        const std::string digits(text.begin(), text.end());
        char* end = nullptr;
        const double number = std::strtod(digits.c_str(), &end);
        if (digits.empty() || *end != '\0') {
            throw HostError(error_number::type_mismatch);
        }
        return to_integer(number);
    }
    std::int16_t operator()(double number) const { return to_integer(number); }
    std::int16_t operator()(Empty) const { return 0; }
    std::int16_t operator()(Null) const { throw HostError(error_number::invalid_use_of_null); }
    std::int16_t operator()(ErrorValue) const { throw HostError(error_number::type_mismatch); }
    std::int16_t operator()(Object) const { throw HostError(error_number::type_mismatch); }
};

} // namespace

TestVariant TestVariant::array(std::vector<Dimension> dimensions, std::vector<Element> elements) {
    TestVariant made;
    made.is_array_ = true;
    made.dimensions_ = std::move(dimensions);
    made.elements_ = std::move(elements);
    return made;
}

TestVariant TestVariant::array(std::vector<Element> elements) {
    const auto upper = static_cast<std::int32_t>(elements.size()) - 1;
    return array({{0, upper}}, std::move(elements));
}

const Dimension& TestVariant::at(int dimension) const {
    if (dimension < 1 || dimension > static_cast<int>(dimensions_.size())) {
        throw HostError(error_number::subscript_out_of_range);
    }
    return dimensions_[static_cast<std::size_t>(dimension - 1)];
}

const Element& TestVariant::element(const std::vector<std::int32_t>& indexes) const {
    if (dimensions_.empty() || indexes.size() != dimensions_.size()) {
        throw HostError(error_number::subscript_out_of_range);
    }
    std::size_t place = 0;
    for (std::size_t i = 0; i < indexes.size(); ++i) {
        const Dimension& dimension = dimensions_[i];
        if (indexes[i] < dimension.lower || indexes[i] > dimension.upper) {
            throw HostError(error_number::subscript_out_of_range);
        }
        place = place * static_cast<std::size_t>(dimension.upper - dimension.lower + 1) +
                static_cast<std::size_t>(indexes[i] - dimension.lower);
    }
    return elements_.at(place);
}

std::u16string_view TestVariant::text(std::u16string& scratch) const {
    if (is_array()) {
        throw HostError(error_number::type_mismatch);
    }
    return std::visit(ToText{scratch}, elements_.front());
}

std::u16string_view TestVariant::text_at(std::int32_t index, std::u16string& scratch) const {
    return std::visit(ToText{scratch}, element({index}));
}

std::u16string_view TestVariant::text_at(std::int32_t first, std::int32_t second,
                                         std::u16string& scratch) const {
    return std::visit(ToText{scratch}, element({first, second}));
}

std::int16_t TestVariant::integer_at(std::int32_t index) const {
    return std::visit(ToInteger{}, element({index}));
}

} // namespace vellora::test
