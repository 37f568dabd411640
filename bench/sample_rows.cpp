#include "sample_rows.h"

#include "support/container/arrays.h"

namespace vellora::bench {

namespace {

/// The number with four digits behind a word.
std::wstring numbered(const std::wstring& word, std::size_t number) {
    return word + std::to_wstring(10'000 + number % 10'000).substr(1);
}

} // namespace

SampleRows::SampleRows() {
    for (std::size_t row = 0; row < different; ++row) {
        texts_.push_back(
            {numbered(L"Name", row * 7919), numbered(L"City", row), numbered(L"2024", row * 31)});
        variants_.push_back(test::variant_array({texts_.back()[0], texts_.back()[1], texts_.back()[2]}));
    }
}

} // namespace vellora::bench
