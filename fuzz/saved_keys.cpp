// The keys, from the table itself.
#include "fuzz/saved_keys.h"

#include "control/saved_properties.h"

namespace vellora::fuzz {

namespace {

std::vector<std::u16string> collect() {
    std::vector<std::u16string> keys;
    for (const auto properties : {properties_before_columns(), properties_after_columns()}) {
        for (const SavedProperty& property : properties) {
            keys.emplace_back(property.key);
        }
    }
    for (const SavedColumnProperty& property : column_properties()) {
        for (const std::int32_t column : {1, 2, 50, 51}) {
            keys.push_back(column_key(property.key, column));
        }
    }
    return keys;
}

} // namespace

const std::vector<std::u16string>& saved_keys() {
    static const std::vector<std::u16string> keys = collect();
    return keys;
}

} // namespace vellora::fuzz
