// Thousands of random operations on the rows and on a naive model of them, which must stay alike.
#include "native/rows_model.h"
#include "runtime/plain_text_compare.h"
#include "widgets/list_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

namespace vellora::test {

namespace {

class RandomRows {
public:
    explicit RandomRows(unsigned seed) : random_(seed) {}

    void step() {
        static constexpr void (RandomRows::*often[])() = {
            &RandomRows::append,       &RandomRows::append,      &RandomRows::insert,
            &RandomRows::set_text,     &RandomRows::set_text,    &RandomRows::add_sub_item,
            &RandomRows::add_sub_item, &RandomRows::set_tip,     &RandomRows::set_tag,
            &RandomRows::set_check,    &RandomRows::select,      &RandomRows::remove,
            &RandomRows::remove,       &RandomRows::copy_a_text, &RandomRows::add_sub_item,
        };
        static constexpr void (RandomRows::*seldom[])() = {
            &RandomRows::clear,
            &RandomRows::change_sort,
            &RandomRows::set_big_text,
            &RandomRows::sort,
        };
        if (number(40) == 0)
            (this->*seldom[number(std::size(seldom))])();
        else
            (this->*often[number(std::size(often))])();
    }

    void compare() {
        ASSERT_EQ(model_of(rows_), model_);
        for (std::size_t row = 0; row < model_.size(); ++row)
            ASSERT_EQ(rows_.position(model_[row].ref), static_cast<std::int32_t>(row));
        for (const RowRef& ref : gone_)
            ASSERT_EQ(rows_.position(ref), -1);
    }

    void compare_searches() {
        const std::u16string target = random_text();
        const std::int32_t start = model_.empty() ? 0 : random_row();
        for (const bool partial : {false, true})
            for (const bool sub_items : {false, true})
                ASSERT_EQ(
                    rows_.find(target, sub_items ? FindWhere::sub_items : FindWhere::text, start, partial),
                    find_in_model(model_, compare_, target, sub_items, start, partial));
    }

private:
    std::size_t number(std::size_t below) { return random_() % below; }
    std::int32_t random_row() { return static_cast<std::int32_t>(number(model_.size())); }
    ModelRow& model_row(std::int32_t row) { return model_[static_cast<std::size_t>(row)]; }

    std::u16string random_text() {
        std::u16string text(number(4) == 0 ? number(60) : number(4), u' ');
        for (char16_t& unit : text)
            unit = u"abAB\u00C4\u00E4\0z"[number(8)];
        return text;
    }

    void append() {
        const RowRef ref = rows_.append();
        added(ref, rows_.count() - 1);
    }
    void insert() {
        const auto row = static_cast<std::int32_t>(number(model_.size() + 1));
        added(rows_.insert(row), row);
    }
    void added(RowRef ref, std::int32_t row) {
        ModelRow fresh;
        fresh.ref = ref;
        model_.insert(model_.begin() + row, fresh);
    }

    void remove() {
        if (model_.empty())
            return;
        const std::int32_t row = number(3) == 0 ? 0 : random_row();
        rows_.remove(row);
        gone_.push_back(model_row(row).ref);
        model_.erase(model_.begin() + row);
    }
    void clear() {
        for (const ModelRow& row : model_)
            gone_.push_back(row.ref);
        rows_.clear();
        model_.clear();
    }

    void write(std::int32_t row, const std::u16string& text) {
        const std::size_t column = number(model_row(row).texts.size());
        rows_.set_text(row, static_cast<std::int32_t>(column), text);
        model_row(row).texts[column] = text;
    }
    void set_text() {
        if (!model_.empty())
            write(random_row(), random_text());
    }
    void set_big_text() {
        if (!model_.empty())
            write(random_row(), std::u16string(4000 + number(30000), u'b'));
    }
    void copy_a_text() {
        if (model_.empty())
            return;
        const std::int32_t from = random_row();
        const std::int32_t to = number(2) == 0 ? from : random_row();
        const std::size_t column = number(model_row(from).texts.size());
        const std::u16string text = model_row(from).texts[column];
        rows_.add_sub_item(to, rows_.text(from, static_cast<std::int32_t>(column)));
        model_row(to).texts.push_back(text);
        model_row(to).tool_tips.emplace_back();
    }
    void add_sub_item() {
        if (model_.empty())
            return;
        const std::int32_t row = random_row();
        const std::u16string text = random_text();
        rows_.add_sub_item(row, text);
        model_row(row).texts.push_back(text);
        model_row(row).tool_tips.emplace_back();
    }

    void set_tip() {
        if (model_.empty())
            return;
        const std::int32_t row = random_row();
        const std::size_t column = number(model_row(row).texts.size());
        model_row(row).tool_tips[column] = random_text();
        rows_.set_tool_tip(row, static_cast<std::int32_t>(column), model_row(row).tool_tips[column]);
    }
    void set_tag() {
        if (model_.empty())
            return;
        const std::int32_t row = random_row();
        model_row(row).tag = static_cast<std::int32_t>(random_());
        rows_.set_tag(row, *model_row(row).tag);
    }
    void set_check() {
        if (model_.empty())
            return;
        const std::int32_t row = random_row();
        model_row(row).checked = !model_row(row).checked;
        rows_.set_checked(row, model_row(row).checked);
    }

    void select() {
        for (ModelRow& row : model_)
            row.selected = false;
        const auto row = static_cast<std::int32_t>(number(model_.size() + 1)) - 1;
        rows_.select(row);
        if (row >= 0)
            model_row(row).selected = true;
    }

    void change_sort() {
        const bool sorted = number(2) == 0;
        const bool descending = number(2) == 0;
        const std::size_t column = number(4);
        rows_.set_sorted(false);
        rows_.set_sort_order(descending ? 1 : 0);
        rows_.set_sort_column(static_cast<std::int32_t>(column));
        rows_.set_sorted(sorted);
        if (sorted)
            sort_model(model_, compare_, column, descending);
    }
    void sort() {
        rows_.refresh();
        if (rows_.sorted())
            sort_model(model_, compare_, static_cast<std::size_t>(rows_.sort_column()),
                       rows_.sort_order() == SortOrder::descending);
    }

    std::mt19937 random_;
    PlainTextCompare compare_;
    ListRows rows_{compare_};
    Model model_;
    std::vector<RowRef> gone_;
};

class RowsAgainstModel : public testing::TestWithParam<unsigned> {};

} // namespace

TEST_P(RowsAgainstModel, StayAlike) {
    RandomRows rows(GetParam());
    for (int step = 0; step < 4000; ++step) {
        rows.step();
        if (step % 16 == 0) {
            ASSERT_NO_FATAL_FAILURE(rows.compare()) << "step " << step;
        }
        if (step % 64 == 0) {
            ASSERT_NO_FATAL_FAILURE(rows.compare_searches()) << "step " << step;
        }
    }
    rows.compare();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RowsAgainstModel, testing::Range(1U, 13U));

} // namespace vellora::test
