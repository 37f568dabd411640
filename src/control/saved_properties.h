// What is saved with a form, as one table: key, default and where the value comes from, in the order of writing. An
// absent key means the default, so a default must never change.
#pragma once

#include "control/core.h"
#include "host/property_bag.h"

#include <span>
#include <string>
#include <string_view>

namespace vellora {

struct SavedProperty {
    std::u16string_view key;
    SavedValue (*default_value)(const ControlCore& core);
    SavedValue (*value)(const ControlCore& core);
};

/// A property of each column; its keys are `key` followed by the column number, 1 to Columns.
struct SavedColumnProperty {
    std::u16string_view key;
    SavedValue default_value;
    SavedValue (*value)(const ControlCore& core, std::size_t slot);
};

/// The properties written before the columns', and those after them.
std::span<const SavedProperty> properties_before_columns();
std::span<const SavedColumnProperty> column_properties();
std::span<const SavedProperty> properties_after_columns();

/// The default of a key of the table.
SavedValue default_of(const ControlCore& core, std::u16string_view key);
SavedValue default_of_column(std::u16string_view key);

std::u16string column_key(std::u16string_view key, std::int32_t column);

} // namespace vellora
