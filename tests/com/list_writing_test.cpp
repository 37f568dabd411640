// Writing cells and tables through List: growth, arrays in both layouts, and what a failure leaves behind.
#include "com/support/host_test.h"

namespace vellora::test {
namespace {

class ListWriting : public MemberTest {
protected:
    std::string invalid() const { return control_error("Vellora1", -2147219984, "Invalid Column ItemIndex"); }
    std::string cells(short row) { return c().list(row, short{-2}).describe(); }
};
VELLORA_BOTH_WAYS(ListWriting);

TEST_P(ListWriting, WritingBeyondTheEndGrowsTheListWithSpaces) {
    c().set_columns(3);
    add({L"a"});
    c().set_list(3, L"x");
    EXPECT_EQ(4, c().list_count());
    EXPECT_EQ("String(0 To 2) {\" \", \" \", \" \"}", cells(1));
    EXPECT_EQ("String(0 To 2) {\" \", \" \", \" \"}", cells(2));
    EXPECT_EQ("String(0 To 2) {\"x\", \" \", \" \"}", cells(3));
    EXPECT_EQ(0, c().new_index());
}

TEST_P(ListWriting, ScalarGoesToTheTextColumnOrTheOneNamed) {
    c().set_columns(3);
    c().set_text_column(2);
    c().set_list(0, L"second");
    c().set_list(0, L"first", short{1});
    c().set_list(0, 3, short{3});
    EXPECT_EQ("String(0 To 2) {\"first\", \"second\", \"3\"}", cells(0));
    c().set_list(0, L"again", short{-1});
    EXPECT_EQ("\"again\"", c().list(0, short{2}).describe());
}

TEST_P(ListWriting, ScalarWithABadColumnIsRefusedAfterTheListGrew) {
    for (short column : {short{0}, short{-2}, short{-3}, short{-4}, short{-5}, short{2}})
        EXPECT_EQ(invalid(), failure_text([&] { c().set_list(0, L"x", column); })) << column;
    EXPECT_EQ(1, c().list_count());
    EXPECT_EQ("\" \"", c().list(0).describe());
}

TEST_P(ListWriting, NegativeRowsRaise381AndGrowNothing) {
    EXPECT_EQ(row_missing(), failure_text([&] { c().set_list(-1, L"x"); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().set_list(-32768, L"x", short{0}); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().set_list(-1, text_array({L"x"}), short{-3}); }));
    EXPECT_EQ(0, c().list_count());
}

TEST_P(ListWriting, ScalarNeverAddsCells) {
    c().set_columns(2);
    add({L"a"});
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().set_list(0, L"x", short{2}); }));
}

TEST_P(ListWriting, OneDimensionRowsFirstWritesTheRowsItsIndexesName) {
    c().set_list(0, text_array({L"p", L"q"}), short{-3});
    EXPECT_EQ(2, c().list_count());
    EXPECT_EQ("\"p\"", c().list(0).describe());
    EXPECT_EQ("\"q\"", c().list(1).describe());
}

TEST_P(ListWriting, OneDimensionRowsFirstIgnoresTheRowButGrowsUpToIt) {
    c().set_list(5, text_array({L"p"}), short{-3});
    EXPECT_EQ(6, c().list_count());
    EXPECT_EQ("\"p\"", c().list(0).describe());
    EXPECT_EQ("\" \"", c().list(5).describe());
}

TEST_P(ListWriting, AppendedRowsOfAnArrayHaveNoCellsOfTheirOwn) {
    c().set_columns(2);
    add({L"a"});
    c().set_list(0, text_array({L"p", L"q"}), short{-3});
    EXPECT_EQ("\"q\"", c().list(1).describe());
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(1, short{2}); }));
}

TEST_P(ListWriting, LowerBoundShiftsTheRows) {
    add({L"a", L"b", L"c"});
    c().set_list(0, text_array({L"p", L"q"}, 1), short{-3});
    EXPECT_EQ("\"a\"", c().list(0).describe());
    EXPECT_EQ("\"p\"", c().list(1).describe());
    EXPECT_EQ("\"q\"", c().list(2).describe());
}

TEST_P(ListWriting, RowsThatAnArraySkipsAreNotMade) {
    c().set_list(0, text_array({L"p"}, 4), short{-3});
    EXPECT_EQ(2, c().list_count());
    EXPECT_EQ("\" \"", c().list(0).describe());
    EXPECT_EQ("\"p\"", c().list(1).describe());
}

TEST_P(ListWriting, TwoDimensionsRowsFirst) {
    c().set_columns(3);
    c().set_list(0, text_table({{L"a", L"b", L"c"}, {L"d", L"e", L"f"}}), short{-3});
    EXPECT_EQ(2, c().list_count());
    EXPECT_EQ("String(0 To 2) {\"a\", \"b\", \"c\"}", cells(0));
    EXPECT_EQ("String(0 To 2) {\"d\", \"e\", \"f\"}", cells(1));
}

TEST_P(ListWriting, TwoDimensionsColumnsFirstForEveryOtherColumn) {
    c().set_columns(2);
    for (short column : {short{-1}, short{-2}, short{-4}, short{1}, short{0}, short{77}}) {
        c().clear();
        c().set_list(0, text_table({{L"a", L"b"}, {L"c", L"d"}}), column);
        EXPECT_EQ("String(0 To 1) {\"a\", \"c\"}", cells(0)) << column;
        EXPECT_EQ("String(0 To 1) {\"b\", \"d\"}", cells(1)) << column;
    }
}

TEST_P(ListWriting, AWideTableGivesRowsMoreCellsThanThereAreColumns) {
    c().set_list(0, text_table({{L"a", L"b", L"c"}}), short{-3});
    EXPECT_EQ(1, c().columns());
    EXPECT_EQ("\"a\"", c().list(0).describe());
    c().set_text_column(1);
    EXPECT_EQ(invalid(), failure_text([&] { c().list(0, short{2}); }));
}

TEST_P(ListWriting, LowerBoundOfTheSecondDimensionShiftsTheCells) {
    c().set_columns(3);
    add({L"x"});
    c().set_list(0, text_table({{L"a", L"b", L"c"}}, 0, 1), short{-3});
    EXPECT_EQ("\"a\"", c().list(0, short{1}).describe());
    // Cell 2 is added as the first one, cell 3 as the second.
    EXPECT_EQ("\"b\"", c().list(0, short{2}).describe());
    EXPECT_EQ("\"c\"", c().list(0, short{3}).describe());
    c().set_list(0, text_table({{L"d", L"e", L"f"}}, 0, 1), short{-3});
    EXPECT_EQ("\"d\"", c().list(0, short{1}).describe());
    EXPECT_EQ("\"b\"", c().list(0, short{2}).describe());
    EXPECT_EQ("\"e\"", c().list(0, short{3}).describe());
}

TEST_P(ListWriting, OneDimensionInAnyOtherColumnWritesNothing) {
    add({L"a"});
    for (short column : {short{-1}, short{-2}, short{-4}, short{1}, short{0}})
        EXPECT_EQ("none", failure_text([&] { c().set_list(0, text_array({L"p", L"q"}), column); })) << column;
    EXPECT_EQ("\"a\"", c().list(0).describe());
    EXPECT_EQ(1, c().list_count());
    c().set_list(2, text_array({L"p"}));
    EXPECT_EQ(3, c().list_count());
}

TEST_P(ListWriting, AFailureHalfWayKeepsWhatWasWritten) {
    EXPECT_EQ(run_time_error(94, "Invalid use of Null"), failure_text([&] {
                  c().set_list(0, variant_array({L"p", Variant::null(), L"r"}), short{-3});
              }));
    EXPECT_EQ(2, c().list_count());
    EXPECT_EQ("\"p\"", c().list(0).describe());
    EXPECT_EQ("\"\"", c().list(1).describe());
}

TEST_P(ListWriting, WritingKeepsTheTextFieldAndTheSelection) {
    add({L"a", L"b"});
    c().set_list_index(0);
    events();
    c().set_list(0, L"changed");
    EXPECT_EQ(L"a", c().text());
    EXPECT_EQ(0, c().list_index());
    EXPECT_TRUE(same_lines({}, events()));
}

} // namespace
} // namespace vellora::test
