#include "native/search_model.h"

#include <algorithm>

namespace vellora::test {

void SearchModel::insert(std::int32_t row, RowRef ref) {
    rows_.insert(rows_.begin() + row, Row{ref});
}

void SearchModel::write(std::int32_t row, std::int32_t column, std::u16string_view text) {
    at(row).texts[static_cast<std::size_t>(column)] = text;
    at(row).folded[static_cast<std::size_t>(column)] = compare_.fold(text);
}

void SearchModel::add_cell(std::int32_t row, std::u16string_view text) {
    at(row).texts.emplace_back(text);
    at(row).folded.push_back(compare_.fold(text));
}

void SearchModel::sort(std::int32_t column, bool descending) {
    const auto key = [column](const Row& row) {
        const auto cell = static_cast<std::size_t>(column);
        return cell < row.folded.size() ? std::u16string_view(row.folded[cell]) : std::u16string_view();
    };
    std::stable_sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) {
        return descending ? key(b) < key(a) : key(a) < key(b);
    });
}

std::int32_t SearchModel::find(std::u16string_view target, FindWhere where, std::int32_t start,
                               bool partial) const {
    const std::u16string wanted = compare_.fold(target);
    const auto matches = [&](std::u16string_view text) {
        return partial ? text.substr(0, wanted.size()) == wanted : text == wanted;
    };
    for (std::int32_t row = start; row < count(); ++row) {
        const auto& folded = at(row).folded;
        const auto first = folded.begin() + (where == FindWhere::text ? 0 : 1);
        const auto last = where == FindWhere::text ? first + 1 : folded.end();
        if (std::any_of(first, last, matches))
            return row;
    }
    return -1;
}

std::int32_t SearchModel::find_exact(std::u16string_view target, std::int32_t column, std::int32_t start,
                                     bool partial) const {
    const FindWhere where = column > 0 ? FindWhere::sub_items : FindWhere::text;
    std::int32_t row = find(target, where, start, partial);
    while (row >= 0) {
        if (column >= cells(row))
            return refused;
        if (at(row).texts[static_cast<std::size_t>(column)] == target)
            return row;
        row = row + 1 < count() ? find(target, where, row + 1, partial) : -1;
    }
    return -1;
}

std::int32_t SearchModel::first_beginning_with(std::u16string_view target, std::int32_t column) const {
    const std::u16string wanted = compare_.fold(target);
    for (std::int32_t row = 0; row < count(); ++row)
        if (column < cells(row) &&
            std::u16string_view(at(row).folded[static_cast<std::size_t>(column)]).substr(0, wanted.size()) ==
                wanted)
            return row;
    return -1;
}

} // namespace vellora::test
