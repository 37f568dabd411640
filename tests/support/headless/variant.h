// Variants as a caller hands them in: scalars and arrays of any rank, bounds and elements, with the host's
// conversions of texts, numbers, Empty, Null, Error and objects.
#pragma once

#include "runtime/variant.h"

#include <concepts>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace vellora::test {

struct Empty {};
struct Null {};       // converts to nothing: error 94
struct ErrorValue {}; // a variant of type Error: error 13
struct Object {};     // without a default member: error 13

using Element = std::variant<std::u16string, double, Empty, Null, ErrorValue, Object>;

struct Dimension {
    std::int32_t lower = 0;
    std::int32_t upper = -1;
};

class TestVariant : public VariantArgument {
public:
    /// A scalar; implicit, so that a test can write the value itself where a variant is wanted.
    template <class Scalar>
    requires std::constructible_from<Element, Scalar> TestVariant(Scalar scalar)
        : elements_{Element(std::move(scalar))} {}
    TestVariant(const char16_t* scalar) : elements_{std::u16string(scalar)} {}
    TestVariant(int scalar) : elements_{static_cast<double>(scalar)} {}

    /// No dimensions: an array that was never given bounds. Elements in the order of the last dimension
    /// first: for two dimensions row by row.
    static TestVariant array(std::vector<Dimension> dimensions, std::vector<Element> elements);
    /// One dimension from 0.
    static TestVariant array(std::vector<Element> elements);

    bool is_array() const override { return is_array_; }
    std::int32_t lower_bound(int dimension) const override { return at(dimension).lower; }
    std::int32_t upper_bound(int dimension) const override { return at(dimension).upper; }
    std::u16string_view text(std::u16string& scratch) const override;
    std::u16string_view text_at(std::int32_t index, std::u16string& scratch) const override;
    std::u16string_view text_at(std::int32_t first, std::int32_t second,
                                std::u16string& scratch) const override;
    std::int16_t integer_at(std::int32_t index) const override;

private:
    TestVariant() = default;
    const Dimension& at(int dimension) const;
    const Element& element(const std::vector<std::int32_t>& indexes) const;

    bool is_array_ = false;
    std::vector<Dimension> dimensions_;
    std::vector<Element> elements_;
};

} // namespace vellora::test
