#include "runtime/plain_text_compare.h"

#include <algorithm>
#include <array>

namespace vellora {

namespace {

/// Capital letters that stand `step` apart from each other and `distance` below their small ones.
struct Capitals {
    char16_t first;
    char16_t last;
    unsigned step;
    int distance;
};

// Source: the simple case mappings of the Unicode character database for the blocks Basic Latin, Latin-1
// Supplement, Latin Extended-A, Greek and Coptic, Cyrillic, Cyrillic Supplement; sorted by `last`.
constexpr std::array capitals{
    Capitals{0x0041, 0x005A, 1, 32}, Capitals{0x00C0, 0x00D6, 1, 32},   Capitals{0x00D8, 0x00DE, 1, 32},
    Capitals{0x0100, 0x012E, 2, 1},  Capitals{0x0132, 0x0136, 2, 1},    Capitals{0x0139, 0x0147, 2, 1},
    Capitals{0x014A, 0x0176, 2, 1},  Capitals{0x0178, 0x0178, 1, -121}, Capitals{0x0179, 0x017D, 2, 1},
    Capitals{0x0370, 0x0372, 2, 1},  Capitals{0x0376, 0x0376, 1, 1},    Capitals{0x0386, 0x0386, 1, 38},
    Capitals{0x0388, 0x038A, 1, 37}, Capitals{0x038C, 0x038C, 1, 64},   Capitals{0x038E, 0x038F, 1, 63},
    Capitals{0x0391, 0x03A1, 1, 32}, Capitals{0x03A3, 0x03AB, 1, 32},   Capitals{0x03D8, 0x03EE, 2, 1},
    Capitals{0x0400, 0x040F, 1, 80}, Capitals{0x0410, 0x042F, 1, 32},   Capitals{0x0460, 0x0480, 2, 1},
    Capitals{0x048A, 0x04BE, 2, 1},  Capitals{0x04C0, 0x04C0, 1, 15},   Capitals{0x04C1, 0x04CD, 2, 1},
    Capitals{0x04D0, 0x052E, 2, 1},
};

char16_t folded(char16_t unit) {
    const auto range =
        std::lower_bound(capitals.begin(), capitals.end(), unit,
                         [](const Capitals& entry, char16_t value) { return entry.last < value; });
    const bool capital =
        range != capitals.end() && unit >= range->first && (unit - range->first) % range->step == 0;
    return capital ? static_cast<char16_t>(unit + range->distance) : unit;
}

} // namespace

std::u16string PlainTextCompare::fold(std::u16string_view text) const {
    std::u16string result(text.size(), u'\0');
    std::transform(text.begin(), text.end(), result.begin(), folded);
    return result;
}

} // namespace vellora
