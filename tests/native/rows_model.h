// The plainest list of rows there can be, to compare the real one with.
#pragma once

#include "runtime/text_compare.h"
#include "widgets/list_rows.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vellora::test {

struct ModelRow {
    std::vector<std::u16string> texts{1};
    std::vector<std::u16string> tool_tips{1};
    std::optional<std::int32_t> tag;
    bool checked = false;
    bool selected = false;
    RowRef ref;
    bool operator==(const ModelRow&) const = default;
};

using Model = std::vector<ModelRow>;

/// Rows in sorted order as a naive sort makes it.
void sort_model(Model& model, const TextCompare& compare, std::size_t column, bool descending);
std::int32_t find_in_model(const Model& model, const TextCompare& compare, const std::u16string& target,
                           bool in_sub_items, std::int32_t start, bool partial);

/// What the rows hold, in the form of the model.
Model model_of(const ListRows& rows);

} // namespace vellora::test
