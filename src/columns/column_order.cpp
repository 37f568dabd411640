#include "columns/column_order.h"

#include "columns/column_set.h"
#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <algorithm>

namespace vellora {

namespace {

[[noreturn]] void refuse() { throw HostError(error_number::invalid_property_value); }

std::intptr_t address_of(std::vector<std::int32_t>& columns) {
    return reinterpret_cast<std::intptr_t>(columns.data());
}

} // namespace

ColumnOrder::ColumnOrder(ControlCore& core, ColumnSet& columns) : core_(core), columns_(columns) {}

std::vector<std::int32_t> ColumnOrder::places() {
    columns_.ensure_headers();
    std::vector<std::int32_t> columns(static_cast<std::size_t>(core_.parts.ListView1.header_count()));
    core_.user32.send_message(core_.parts.ListView1.window(), message::list_get_column_order, columns.size(),
                              address_of(columns));
    return columns;
}

void ColumnOrder::put_places(std::vector<std::int32_t> columns) {
    core_.user32.send_message(core_.parts.ListView1.window(), message::list_set_column_order, columns.size(),
                              address_of(columns));
}

VariantResult ColumnOrder::Order() {
    const auto columns = places();
    std::vector<std::int16_t> order;
    order.reserve(columns.size());
    for (const std::int32_t column : columns) {
        order.push_back(to_integer(column + 1));
    }
    return order;
}

void ColumnOrder::put_Order(const VariantArgument& order) {
    columns_.ensure_headers();
    put_places(checked_order(order, core_.parts.ListView1.header_count()));
}

std::vector<std::int32_t> ColumnOrder::checked_order(const VariantArgument& order, std::int32_t count) const {
    std::vector<std::int32_t> columns;
    try {
        if (!order.is_array() || order.upper_bound(1) != count - 1) {
            refuse();
        }
        for (std::int32_t i = 0; i < count; ++i) {
            columns.push_back(order.integer_at(i) - 1);
        }
    } catch (const HostError&) {
        refuse();
    }
    auto sorted = columns;
    std::ranges::sort(sorted);
    for (std::int32_t i = 0; i < count; ++i) {
        if (sorted[static_cast<std::size_t>(i)] != i) {
            refuse();
        }
    }
    return columns;
}

bool ColumnOrder::AllowColumnReorder() const { return core_.state.mbAllowColumnReorder; }

void ColumnOrder::put_AllowColumnReorder(bool allow) {
    if (allow == core_.state.mbAllowColumnReorder) {
        return;
    }
    core_.state.mbAllowColumnReorder = allow;
    core_.parts.ListView1.set_allow_column_reorder(allow);
    core_.property_changed(u"AllowColumnReorder");
}

} // namespace vellora
