#include "native/rows_model.h"

#include <algorithm>

namespace vellora::test {

namespace {

std::u16string key(const ModelRow& row, const TextCompare& compare, std::size_t column) {
    return compare.sort_key(column < row.texts.size() ? row.texts[column] : std::u16string());
}

} // namespace

void sort_model(Model& model, const TextCompare& compare, std::size_t column, bool descending) {
    std::stable_sort(model.begin(), model.end(), [&](const ModelRow& a, const ModelRow& b) {
        return descending ? key(b, compare, column) < key(a, compare, column)
                          : key(a, compare, column) < key(b, compare, column);
    });
}

std::int32_t find_in_model(const Model& model, const TextCompare& compare, const std::u16string& target,
                           bool in_sub_items, std::int32_t start, bool partial) {
    const auto matches = [&](const std::u16string& text) {
        const std::u16string wanted = compare.fold(target);
        const std::u16string folded = compare.fold(text);
        return partial ? folded.rfind(wanted, 0) == 0 : folded == wanted;
    };
    for (auto row = static_cast<std::size_t>(start); row < model.size(); ++row) {
        const auto& texts = model[row].texts;
        const auto first = texts.begin() + (in_sub_items ? 1 : 0);
        if (std::any_of(first, in_sub_items ? texts.end() : first + 1, matches))
            return static_cast<std::int32_t>(row);
    }
    return -1;
}

Model model_of(const ListRows& rows) {
    Model model;
    for (std::int32_t row = 0; row < rows.count(); ++row) {
        ModelRow copy;
        copy.texts.clear();
        copy.tool_tips.clear();
        for (std::int32_t column = 0; column <= rows.sub_item_count(row); ++column) {
            copy.texts.emplace_back(rows.text(row, column));
            copy.tool_tips.emplace_back(rows.tool_tip(row, column));
        }
        copy.tag = rows.tag(row);
        copy.checked = rows.checked(row);
        copy.selected = rows.selected() == row;
        copy.ref = rows.ref(row);
        model.push_back(copy);
    }
    return model;
}

} // namespace vellora::test
