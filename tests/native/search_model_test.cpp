// Random changes of a list that is long enough to be indexed, with searches between them, against the
// plainest way of searching and sorting.
#include "native/search_model.h"

#include "runtime/host_error.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace vellora::test {

namespace {

class SearchedRows {
public:
    explicit SearchedRows(unsigned seed) : random_(seed) {}

    void fill(std::int32_t count) {
        while (model_.count() < count)
            add(model_.count());
    }
    void change() {
        static constexpr void (SearchedRows::*kinds[])() = {
            &SearchedRows::append,   &SearchedRows::append,   &SearchedRows::insert, &SearchedRows::set_text,
            &SearchedRows::set_text, &SearchedRows::add_cell, &SearchedRows::remove, &SearchedRows::remove,
        };
        (this->*kinds[number(std::size(kinds))])();
    }
    void clear() {
        rows_.clear();
        model_.clear();
    }

    void change_sort() {
        const bool descending = number(2) == 0;
        const std::int32_t column = number(3);
        rows_.set_sorted(false);
        rows_.set_sort_order(descending ? 1 : 0);
        rows_.set_sort_column(column);
        rows_.set_sorted(true);
        model_.sort(column, descending);
    }
    void sort() {
        rows_.refresh();
        if (rows_.sorted())
            model_.sort(rows_.sort_column(), rows_.sort_order() == SortOrder::descending);
    }

    void expect_same_answers() {
        const std::u16string target = number(3) == 0 ? some_text() : random_text();
        const std::int32_t start = model_.count() == 0 ? 0 : number(model_.count());
        const bool partial = number(2) == 0;
        const FindWhere where = number(2) == 0 ? FindWhere::text : FindWhere::sub_items;
        const std::int32_t column = number(5);
        ASSERT_EQ(rows_.find(target, where, start, partial), model_.find(target, where, start, partial));
        ASSERT_EQ(find_exact(target, column, start, partial),
                  model_.find_exact(target, column, start, partial));
        ASSERT_EQ(rows_.first_beginning_with(target, column), model_.first_beginning_with(target, column));
        if (model_.count() > 0) {
            const std::int32_t row = number(model_.count());
            ASSERT_EQ(rows_.position(model_.ref(row)), row);
        }
    }
    void expect_same_order() {
        ASSERT_EQ(rows_.count(), model_.count());
        for (std::int32_t row = 0; row < model_.count(); ++row)
            ASSERT_EQ(rows_.ref(row), model_.ref(row));
    }

private:
    std::int32_t number(std::size_t below) { return static_cast<std::int32_t>(random_() % below); }
    std::int32_t number(std::int32_t below) { return number(static_cast<std::size_t>(below)); }

    /// Few enough different ones that many rows share theirs, or its beginning.
    std::u16string random_text() {
        std::u16string text(number(3) == 0 ? u"Item " : u"");
        const std::int32_t length = number(5);
        for (std::int32_t i = 0; i < length; ++i)
            text.push_back(u"aAbB1\u00C4\u00E4\0"[number(8)]);
        return text;
    }
    /// That a cell holds now.
    std::u16string some_text() {
        if (model_.count() == 0)
            return {};
        const std::int32_t row = number(model_.count());
        return std::u16string(rows_.text(row, number(model_.cells(row))));
    }
    std::int32_t find_exact(const std::u16string& target, std::int32_t column, std::int32_t start,
                            bool partial) {
        try {
            return rows_.find_exact(target, column, start, partial);
        } catch (const HostError&) {
            return SearchModel::refused;
        }
    }

    void append() { add(model_.count()); }
    void insert() { add(number(model_.count() + 1)); }
    void add(std::int32_t row) {
        model_.insert(row, rows_.insert(row));
        write(row, 0);
        for (std::int32_t cells = number(4); cells > 0; --cells)
            add_cell(row);
    }
    void write(std::int32_t row, std::int32_t column) {
        const std::u16string text = random_text();
        rows_.set_text(row, column, text);
        model_.write(row, column, text);
    }
    void set_text() {
        if (model_.count() == 0)
            return;
        const std::int32_t row = number(model_.count());
        write(row, number(model_.cells(row)));
    }
    void add_cell() {
        if (model_.count() > 0)
            add_cell(number(model_.count()));
    }
    void add_cell(std::int32_t row) {
        if (model_.cells(row) > 4)
            return;
        const std::u16string text = random_text();
        rows_.add_sub_item(row, text);
        model_.add_cell(row, text);
    }
    void remove() {
        if (model_.count() == 0)
            return;
        const std::int32_t row = number(3) == 0 ? model_.count() - 1 : number(model_.count());
        rows_.remove(row);
        model_.remove(row);
    }

    std::mt19937 random_;
    PlainTextCompare compare_;
    ListRows rows_{compare_};
    SearchModel model_;
};

class RowsAgainstSearchModel : public testing::TestWithParam<unsigned> {};

} // namespace

TEST_P(RowsAgainstSearchModel, FindAndSortAlike) {
    SearchedRows rows(GetParam());
    std::mt19937 random(GetParam());
    rows.fill(600);
    for (int round = 0; round < 40; ++round) {
        // Some bursts are taken in, some are few enough to be kept aside, some cost the index its life.
        const int changes = std::vector{3, 40, 300, 1200}[random() % 4];
        for (int i = 0; i < changes; ++i) {
            rows.change();
            if (changes < 100 || i % 50 == 0) {
                ASSERT_NO_FATAL_FAILURE(rows.expect_same_answers()) << "round " << round << " change " << i;
            }
        }
        if (random() % 8 == 0)
            rows.change_sort();
        if (random() % 2 == 0)
            rows.sort();
        if (random() % 16 == 0) {
            rows.clear();
            rows.fill(400);
        }
        for (int i = 0; i < 10; ++i) {
            ASSERT_NO_FATAL_FAILURE(rows.expect_same_answers()) << "round " << round;
        }
        ASSERT_NO_FATAL_FAILURE(rows.expect_same_order()) << "round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RowsAgainstSearchModel, testing::Range(1U, 9U));

} // namespace vellora::test
