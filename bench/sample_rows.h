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
    /// More rows than these are the same over again.
    static constexpr std::size_t different = 10'000;

    SampleRows();

    std::array<std::wstring, columns>& texts(std::size_t row) { return texts_[row % different]; }
    /// An array of variants that hold texts.
    const VARIANT& variant(std::size_t row) const { return variants_[row % different].get(); }

private:
    std::vector<std::array<std::wstring, columns>> texts_;
    std::vector<test::Variant> variants_;
};

} // namespace vellora::bench
