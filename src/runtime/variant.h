// Variants as the behaviour sees them: what a caller hands in, and what it gets back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellora {

/// A variant argument of a caller: a scalar or an array of any rank, bounds and element type.
/// Conversions follow the host's own rules; what does not convert raises 13 (type mismatch),
/// 94 (invalid use of Null) or 6 (overflow). An index or dimension that is not there raises 9.
///
/// Texts are handed out as views: into the caller's own text where it is one, otherwise into `scratch`,
/// so that reading a text column of 100,000 rows copies nothing.
class VariantArgument {
public:
    virtual ~VariantArgument() = default;

    virtual bool is_array() const = 0;
    /// Bounds of a dimension counted from 1.
    virtual std::int32_t lower_bound(int dimension) const = 0;
    virtual std::int32_t upper_bound(int dimension) const = 0;

    virtual std::u16string_view text(std::u16string& scratch) const = 0;
    virtual std::u16string_view text_at(std::int32_t index, std::u16string& scratch) const = 0;
    virtual std::u16string_view text_at(std::int32_t first, std::int32_t second,
                                        std::u16string& scratch) const = 0;
    virtual std::int16_t integer_at(std::int32_t index) const = 0;
};

/// A two-dimensional array of texts, both lower bounds 0. Cell (i, j) is `cells[i * second_extent + j]`.
struct TextTable {
    std::int32_t first_extent = 0;
    std::int32_t second_extent = 0;
    std::vector<std::u16string> cells;
};

/// What a member returns in a variant: nothing, a text, an array of texts with one or two dimensions,
/// an array of Integers, or an array of variants that hold a Long or are empty. Lower bounds are 0.
using VariantResult = std::variant<std::monostate, std::u16string, std::vector<std::u16string>, TextTable,
                                   std::vector<std::int16_t>, std::vector<std::optional<std::int32_t>>>;

} // namespace vellora
