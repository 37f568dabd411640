#include "sample_rows.h"

#include "support/container/arrays.h"

namespace vellora::bench {

namespace {

/// The number with four digits behind a word.
std::wstring numbered(const std::wstring& word, std::size_t number) {
    return word + std::to_wstring(10'000 + number % 10'000).substr(1);
}

std::wstring long_numbered(const std::wstring& word, std::size_t number) {
    return word + std::to_wstring(1'000'000 + number).substr(1);
}

} // namespace

SampleRows::SampleRows() {
    for (std::size_t row = 0; row < different; ++row)
        add({numbered(L"Name", row * 7919), numbered(L"City", row), numbered(L"2024", row * 31)});
}

SampleRows::SampleRows(std::size_t count) {
    for (std::size_t row = 0; row < count; ++row)
        add({long_numbered(L"Item ", row), long_numbered(L"Place ", row), long_numbered(L"Code ", row)});
}

void SampleRows::add(const std::array<std::wstring, columns>& texts) {
    texts_.push_back(texts);
    variants_.push_back(test::variant_array({texts[0], texts[1], texts[2]}));
}

} // namespace vellora::bench
