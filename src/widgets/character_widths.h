// The widths of single characters in one font, asked for when first met, and texts summed up over them.
#pragma once

#include "widgets/text_measurer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace vellora {

class CharacterWidths {
public:
    /// Units of a text that are looked at: more do not fit into the widest window.
    static constexpr std::size_t most_units = 0x7FFF;

    struct Sum {
        std::int32_t width = 0;
        /// Units that are shown: up to the first zero, and at most `most_units`.
        std::size_t units = 0;
        /// The characters are not simply set side by side: they join, stack or change their order, so that
        /// the extent of the text may be far from the sum.
        bool shaped = false;
    };

    CharacterWidths();

    Sum sum(std::u16string_view text, const TextMeasurer& measurer);
    void forget();

private:
    static constexpr std::size_t page_units = 256;
    using Page = std::array<std::uint16_t, page_units>;

    Sum careful_sum(std::u16string_view text, const TextMeasurer& measurer);
    std::uint16_t entry(char16_t unit, const TextMeasurer& measurer);
    Page& page_of(char16_t unit);

    Page latin_; // at hand for quick sums; the zero in it stays unknown, which ends them
    std::array<std::unique_ptr<Page>, 0x10000 / page_units> pages_;
};

} // namespace vellora
