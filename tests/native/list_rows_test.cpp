// Rows one by one: adding, texts, tips, tags, checks, removing, and what is reported of it.
#include "widgets/list_rows.h"

#include "native/error_of.h"
#include "native/rows_recorder.h"
#include "runtime/plain_text_compare.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vellora::test {

namespace {

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

class ListRowsTest : public testing::Test {
protected:
    RowRef add(std::u16string_view text) {
        const RowRef ref = rows_.append();
        rows_.set_text(rows_.count() - 1, 0, text);
        return ref;
    }
    template <class Call>
    void expect_out_of_bounds(const Call& call) {
        EXPECT_EQ(error_of(call), error_number::index_out_of_bounds);
    }

    PlainTextCompare compare_;
    ListRows rows_{compare_};
};

} // namespace

TEST_F(ListRowsTest, StartEmpty) {
    EXPECT_EQ(rows_.count(), 0);
    EXPECT_EQ(rows_.selected(), -1);
    EXPECT_FALSE(rows_.sorted());
    EXPECT_EQ(rows_.sort_order(), SortOrder::ascending);
    EXPECT_EQ(rows_.sort_column(), 0);
}

TEST_F(ListRowsTest, NewRowIsBlank) {
    rows_.append();
    EXPECT_EQ(rows_.text(0, 0), u"");
    EXPECT_EQ(rows_.sub_item_count(0), 0);
    EXPECT_EQ(rows_.tool_tip(0, 0), u"");
    EXPECT_EQ(rows_.tag(0), std::nullopt);
    EXPECT_FALSE(rows_.checked(0));
}

TEST_F(ListRowsTest, InsertPutsTheRowWhereAsked) {
    add(u"b");
    rows_.insert(0);
    rows_.set_text(0, 0, u"a");
    rows_.insert(2);
    rows_.set_text(2, 0, u"c");
    EXPECT_EQ(rows_.text(0, 0), u"a");
    EXPECT_EQ(rows_.text(1, 0), u"b");
    EXPECT_EQ(rows_.text(2, 0), u"c");
}

TEST_F(ListRowsTest, RemoveClosesTheGap) {
    add(u"a");
    add(u"b");
    add(u"c");
    rows_.remove(1);
    EXPECT_EQ(rows_.count(), 2);
    EXPECT_EQ(rows_.text(0, 0), u"a");
    EXPECT_EQ(rows_.text(1, 0), u"c");
}

TEST_F(ListRowsTest, ARowReusesNothingOfARemovedOne) {
    add(u"old");
    add(u"other");
    rows_.add_sub_item(0, u"sub");
    rows_.set_tool_tip(0, 0, u"tip");
    rows_.set_tag(0, 7);
    rows_.set_checked(0, true);
    rows_.remove(0);
    rows_.append();
    EXPECT_EQ(rows_.text(1, 0), u"");
    EXPECT_EQ(rows_.sub_item_count(1), 0);
    EXPECT_EQ(rows_.tool_tip(1, 0), u"");
    EXPECT_EQ(rows_.tag(1), std::nullopt);
    EXPECT_FALSE(rows_.checked(1));
}

TEST_F(ListRowsTest, TextsOfSubItems) {
    add(u"first");
    rows_.add_sub_item(0, u"second");
    rows_.add_sub_item(0, u"");
    rows_.add_sub_item(0, u"fourth");
    EXPECT_EQ(rows_.sub_item_count(0), 3);
    rows_.set_text(0, 1, u"a much longer second text");
    rows_.set_text(0, 3, u"4");
    rows_.set_text(0, 2, u"third");
    EXPECT_EQ(rows_.text(0, 0), u"first");
    EXPECT_EQ(rows_.text(0, 1), u"a much longer second text");
    EXPECT_EQ(rows_.text(0, 2), u"third");
    EXPECT_EQ(rows_.text(0, 3), u"4");
}

TEST_F(ListRowsTest, SubItemsOfARowWhoseTextWasNeverSet) {
    rows_.append();
    rows_.add_sub_item(0, u"sub");
    rows_.append();
    rows_.add_sub_item(1, u"");
    EXPECT_EQ(rows_.text(0, 0), u"");
    EXPECT_EQ(rows_.text(0, 1), u"sub");
    EXPECT_EQ(rows_.text(1, 0), u"");
    EXPECT_EQ(rows_.text(1, 1), u"");
}

TEST_F(ListRowsTest, TextsEndWithAZeroUnit) {
    add(u"first");
    rows_.add_sub_item(0, u"second");
    rows_.append();
    rows_.set_text(0, 0, u"1st");
    for (const std::u16string_view text : {rows_.text(0, 0), rows_.text(0, 1), rows_.text(1, 0)})
        EXPECT_EQ(text.data()[text.size()], u'\0');
}

TEST_F(ListRowsTest, TextsMayHoldZeroUnits) {
    const std::u16string text(u"a\0b\0", 4);
    add(text);
    rows_.add_sub_item(0, std::u16string_view(u"\0", 1));
    EXPECT_EQ(rows_.text(0, 0), text);
    EXPECT_EQ(rows_.text(0, 1).size(), 1U);
}

TEST_F(ListRowsTest, ATextMayComeFromTheRowsThemselves) {
    add(u"some text of the row");
    rows_.add_sub_item(0, rows_.text(0, 0));
    rows_.add_sub_item(0, rows_.text(0, 1).substr(5));
    EXPECT_EQ(rows_.text(0, 1), u"some text of the row");
    EXPECT_EQ(rows_.text(0, 2), u"text of the row");
    rows_.set_text(0, 0, rows_.text(0, 1).substr(10));
    EXPECT_EQ(rows_.text(0, 0), u"of the row");
    rows_.set_text(0, 2, rows_.text(0, 2).substr(5, 2));
    EXPECT_EQ(rows_.text(0, 2), u"of");
    add(rows_.text(0, 1));
    EXPECT_EQ(rows_.text(1, 0), u"some text of the row");
}

TEST_F(ListRowsTest, ManySubItems) {
    add(u"0");
    for (int k = 1; k <= 40000; ++k)
        rows_.add_sub_item(0, u"sub-item " + std::u16string(static_cast<std::size_t>(k % 7), u'x'));
    EXPECT_EQ(rows_.sub_item_count(0), 40000);
    EXPECT_EQ(rows_.text(0, 0), u"0");
    EXPECT_EQ(rows_.text(0, 20000), u"sub-item x");
    EXPECT_EQ(rows_.text(0, 40000), u"sub-item xx");
}

TEST_F(ListRowsTest, ToolTips) {
    add(u"a");
    rows_.add_sub_item(0, u"b");
    rows_.add_sub_item(0, u"c");
    rows_.set_tool_tip(0, 2, u"tip of c");
    rows_.set_tool_tip(0, 0, u"tip of a");
    EXPECT_EQ(rows_.tool_tip(0, 0), u"tip of a");
    EXPECT_EQ(rows_.tool_tip(0, 1), u"");
    EXPECT_EQ(rows_.tool_tip(0, 2), u"tip of c");
    EXPECT_EQ(rows_.tool_tip(0, 3), u"");
    EXPECT_EQ(rows_.tool_tip(0, -1), u"");
    rows_.set_tool_tip(0, 2, u"");
    EXPECT_EQ(rows_.tool_tip(0, 2), u"");
    EXPECT_EQ(rows_.text(0, 2), u"c");
}

TEST_F(ListRowsTest, TagsAndChecks) {
    add(u"a");
    rows_.set_tag(0, lowest);
    rows_.set_checked(0, true);
    EXPECT_EQ(rows_.tag(0), lowest);
    EXPECT_TRUE(rows_.checked(0));
    rows_.set_tag(0, 0);
    rows_.set_checked(0, false);
    EXPECT_EQ(rows_.tag(0), 0);
    EXPECT_FALSE(rows_.checked(0));
}

TEST_F(ListRowsTest, RowsThatAreNotThereAreOutOfBounds) {
    add(u"a");
    for (const std::int32_t row : {-1, 1, lowest, highest}) {
        expect_out_of_bounds([&] { rows_.remove(row); });
        expect_out_of_bounds([&] { rows_.ref(row); });
        expect_out_of_bounds([&] { rows_.text(row, 0); });
        expect_out_of_bounds([&] { rows_.set_text(row, 0, u"x"); });
        expect_out_of_bounds([&] { rows_.sub_item_count(row); });
        expect_out_of_bounds([&] { rows_.add_sub_item(row, u"x"); });
        expect_out_of_bounds([&] { rows_.tool_tip(row, 0); });
        expect_out_of_bounds([&] { rows_.set_tool_tip(row, 0, u"x"); });
        expect_out_of_bounds([&] { rows_.tag(row); });
        expect_out_of_bounds([&] { rows_.set_tag(row, 1); });
        expect_out_of_bounds([&] { rows_.checked(row); });
        expect_out_of_bounds([&] { rows_.set_checked(row, true); });
    }
    EXPECT_EQ(rows_.count(), 1);
}

TEST_F(ListRowsTest, PositionsToInsertAtEndAtTheCount) {
    add(u"a");
    for (const std::int32_t row : {-1, 2, lowest, highest})
        expect_out_of_bounds([&] { rows_.insert(row); });
    EXPECT_EQ(rows_.count(), 1);
}

TEST_F(ListRowsTest, CellsThatAreNotThereAreOutOfBounds) {
    add(u"a");
    rows_.add_sub_item(0, u"b");
    for (const std::int32_t column : {-1, 2, lowest, highest}) {
        expect_out_of_bounds([&] { rows_.text(0, column); });
        expect_out_of_bounds([&] { rows_.set_text(0, column, u"x"); });
        expect_out_of_bounds([&] { rows_.set_tool_tip(0, column, u"x"); });
    }
}

TEST_F(ListRowsTest, ReferencesFollowTheirRow) {
    const RowRef a = add(u"a");
    const RowRef b = add(u"b");
    const RowRef first = rows_.insert(0);
    EXPECT_EQ(rows_.position(first), 0);
    EXPECT_EQ(rows_.position(a), 1);
    EXPECT_EQ(rows_.position(b), 2);
    EXPECT_EQ(rows_.ref(1), a);
    rows_.remove(0);
    EXPECT_EQ(rows_.position(first), -1);
    EXPECT_EQ(rows_.position(b), 1);
}

TEST_F(ListRowsTest, ReferencesToRowsThatAreGone) {
    EXPECT_EQ(rows_.position(RowRef()), -1);
    EXPECT_EQ(rows_.position(RowRef{1000, 1}), -1);
    const RowRef a = add(u"a");
    rows_.remove(0);
    EXPECT_EQ(rows_.position(a), -1);
    const RowRef again = add(u"again");
    EXPECT_EQ(rows_.position(a), -1);
    rows_.clear();
    EXPECT_EQ(rows_.position(again), -1);
    add(u"anew");
    EXPECT_EQ(rows_.position(again), -1);
}

TEST_F(ListRowsTest, ClearRemovesEveryRow) {
    for (int i = 0; i < 1000; ++i)
        add(u"row");
    rows_.clear();
    EXPECT_EQ(rows_.count(), 0);
    add(u"next");
    EXPECT_EQ(rows_.count(), 1);
    EXPECT_EQ(rows_.text(0, 0), u"next");
}

TEST_F(ListRowsTest, RevisionRisesWithTextsAndCount) {
    std::uint64_t before = rows_.revision();
    const auto rose = [&] { return std::exchange(before, rows_.revision()) < rows_.revision(); };
    rows_.append();
    EXPECT_TRUE(rose());
    rows_.set_text(0, 0, u"a");
    EXPECT_TRUE(rose());
    rows_.add_sub_item(0, u"b");
    EXPECT_TRUE(rose());
    rows_.set_text(0, 0, u"a");
    rows_.set_tag(0, 1);
    rows_.set_checked(0, true);
    rows_.set_tool_tip(0, 0, u"tip");
    rows_.select(0);
    EXPECT_FALSE(rose());
    rows_.append();
    EXPECT_TRUE(rose());
    rows_.remove(1);
    EXPECT_TRUE(rose());
    rows_.clear();
    EXPECT_TRUE(rose());
}

TEST_F(ListRowsTest, ReportsEachChangeOnce) {
    RowsRecorder recorder(rows_);
    rows_.append();
    EXPECT_EQ(recorder.take(), Notes{"rows"});
    rows_.insert(0);
    EXPECT_EQ(recorder.take(), Notes{"rows"});
    rows_.set_text(1, 0, u"a");
    EXPECT_EQ(recorder.take(), Notes{"row 1"});
    rows_.add_sub_item(1, u"");
    EXPECT_EQ(recorder.take(), Notes{"row 1"});
    rows_.set_checked(0, true);
    EXPECT_EQ(recorder.take(), Notes{"row 0"});
    rows_.remove(0);
    EXPECT_EQ(recorder.take(), Notes{"rows"});
    rows_.clear();
    EXPECT_EQ(recorder.take(), Notes{"rows"});
}

TEST_F(ListRowsTest, ReportsNothingThatIsNoChange) {
    add(u"a");
    RowsRecorder recorder(rows_);
    rows_.set_text(0, 0, u"a");
    rows_.set_checked(0, false);
    rows_.set_tag(0, 1);
    rows_.set_tool_tip(0, 0, u"tip");
    rows_.refresh();
    error_of([&] { rows_.remove(5); });
    error_of([&] { rows_.set_text(0, 5, u"x"); });
    EXPECT_EQ(recorder.take(), Notes{});
    rows_.clear();
    recorder.take();
    rows_.clear();
    EXPECT_EQ(recorder.take(), Notes{});
}

TEST_F(ListRowsTest, CallsBackAtIntervals) {
    int calls = 0;
    add(u"before");
    rows_.set_interval(10, [&] { ++calls; });
    for (int i = 0; i < 9; ++i)
        rows_.append();
    EXPECT_EQ(calls, 0);
    rows_.set_text(0, 0, u"tenth");
    EXPECT_EQ(calls, 1);
    rows_.set_checked(0, true);
    for (int i = 0; i < 9; ++i)
        rows_.remove(0);
    EXPECT_EQ(calls, 1);
    rows_.clear();
    EXPECT_EQ(calls, 2);
    rows_.set_interval(1, nullptr);
    rows_.append();
    EXPECT_EQ(calls, 2);
}

TEST_F(ListRowsTest, VisitsTheTextsOfAColumn) {
    add(u"a");
    const RowRef b = add(u"b");
    rows_.add_sub_item(1, u"sub of b");
    std::vector<std::pair<std::int32_t, std::u16string>> seen;
    const auto note = [&](RowRef ref, std::u16string_view text) {
        seen.emplace_back(rows_.position(ref), text);
    };
    rows_.visit_texts(0, 0, note);
    EXPECT_EQ(seen, (decltype(seen){{0, u"a"}, {1, u"b"}}));
    seen.clear();
    rows_.visit_texts(1, 0, note);
    EXPECT_EQ(seen, (decltype(seen){{rows_.position(b), u"sub of b"}}));
    seen.clear();
    rows_.visit_texts(-1, 0, note);
    rows_.visit_texts(2, 0, note);
    rows_.visit_texts(0, rows_.revision(), note);
    EXPECT_TRUE(seen.empty());
}

TEST_F(ListRowsTest, VisitsWhatChangedSinceARevision) {
    for (int i = 0; i < 1000; ++i)
        add(u"old");
    const std::uint64_t before = rows_.revision();
    rows_.set_text(500, 0, u"changed");
    add(u"new");
    std::vector<std::u16string> fresh;
    std::size_t visited = 0;
    rows_.visit_texts(0, before, [&](RowRef, std::u16string_view text) {
        ++visited;
        if (text != u"old")
            fresh.emplace_back(text);
    });
    EXPECT_EQ(fresh, (std::vector<std::u16string>{u"changed", u"new"}));
    EXPECT_LT(visited, 1001U);
}

} // namespace vellora::test
