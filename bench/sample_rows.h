// The rows that are added: three short texts each, ready in the forms the two lists take them.
#pragma once

#include "support/container/variant.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vellora::bench {

inline constexpr int columns = 3;

class SampleRows {
public:
    /// More rows than these are the same over again, unless more were asked for.
    static constexpr std::size_t different = 10'000;

    SampleRows();
    /// So many rows of which no two are alike, though their texts begin alike: "Item 000001" and so on.
    explicit SampleRows(std::size_t count);

    std::array<std::wstring, columns>& texts(std::size_t row) { return texts_[row % texts_.size()]; }
    /// An array of variants that hold texts.
    const VARIANT& variant(std::size_t row) const { return variants_[row % variants_.size()].get(); }

private:
    void add(const std::array<std::wstring, columns>& texts);

    std::vector<std::array<std::wstring, columns>> texts_;
    std::vector<test::Variant> variants_;
};

} // namespace vellora::bench
