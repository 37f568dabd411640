// The order in which the columns stand on the screen. It lives in the list view alone.
#pragma once

#include "control/core.h"
#include "runtime/variant.h"

#include <cstdint>
#include <vector>

namespace vellora {

class ColumnSet;

class ColumnOrder {
public:
    ColumnOrder(ControlCore& core, ColumnSet& columns);

    /// 1-based column numbers in display order, in an array that starts at 0.
    VariantResult Order();
    /// Takes the same form. Error 380, and nothing changed, for what is not an array of every column once, with upper
    /// bound Columns - 1.
    void put_Order(const VariantArgument& order);

    /// The same as numbers from 0, and without questions.
    std::vector<std::int32_t> places();
    void put_places(std::vector<std::int32_t> columns);

    bool AllowColumnReorder() const;
    void put_AllowColumnReorder(bool allow);

private:
    std::vector<std::int32_t> checked_order(const VariantArgument& order, std::int32_t count) const;

    ControlCore& core_;
    ColumnSet& columns_;
};

} // namespace vellora
