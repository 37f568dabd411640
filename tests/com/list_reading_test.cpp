// Reading cells, whole rows and tables of rows through List.
#include "com/support/host_test.h"

namespace vellora::test {
namespace {

class ListReading : public MemberTest {
protected:
    void SetUp() override {
        MemberTest::SetUp();
        c().set_columns(2);
        c().add_item(text_array({L"a", L"1"}));
        c().add_item(text_array({L"b", L"2"}));
        c().add_item(text_array({L"c", L"3"}));
    }
    std::string invalid() const { return control_error("Vellora1", -2147219984, "Invalid Column ItemIndex"); }
};
VELLORA_BOTH_WAYS(ListReading);

TEST_P(ListReading, WithoutAColumnGivesTheTextColumn) {
    EXPECT_EQ("\"b\"", c().list(1).describe());
    EXPECT_EQ("\"b\"", c().list(1, short{-1}).describe());
    c().set_text_column(2);
    EXPECT_EQ("\"2\"", c().list(1).describe());
}

TEST_P(ListReading, AColumnGivesItsText) {
    EXPECT_EQ("\"a\"", c().list(0, short{1}).describe());
    EXPECT_EQ("\"3\"", c().list(2, short{2}).describe());
}

TEST_P(ListReading, MinusTwoGivesTheRow) {
    EXPECT_EQ("String(0 To 1) {\"b\", \"2\"}", c().list(1, short{-2}).describe());
}

TEST_P(ListReading, MinusThreeGivesAllRowsFromThereRowsFirst) {
    EXPECT_EQ("String(0 To 1, 0 To 1) {{\"b\", \"2\"}, {\"c\", \"3\"}}", c().list(1, short{-3}).describe());
    EXPECT_EQ("String(0 To 0, 0 To 1) {{\"c\", \"3\"}}", c().list(2, short{-3}).describe());
}

TEST_P(ListReading, MinusFourGivesThemColumnsFirst) {
    EXPECT_EQ("String(0 To 1, 0 To 1) {{\"b\", \"c\"}, {\"2\", \"3\"}}", c().list(1, short{-4}).describe());
}

TEST_P(ListReading, OneColumnStillGivesArrays) {
    c().set_columns(1);
    add({L"x", L"y"});
    EXPECT_EQ("String(0 To 0) {\"x\"}", c().list(0, short{-2}).describe());
    EXPECT_EQ("String(0 To 1, 0 To 0) {{\"x\"}, {\"y\"}}", c().list(0, short{-3}).describe());
    EXPECT_EQ("String(0 To 0, 0 To 1) {{\"x\", \"y\"}}", c().list(0, short{-4}).describe());
}

TEST_P(ListReading, OtherColumnsAreRefusedUnderTheControlsName) {
    for (short column : {short{0}, short{-5}, short{3}, short{32767}, short{-32768}})
        EXPECT_EQ(invalid(), failure_text([&] { c().list(0, column); })) << column;
}

TEST_P(ListReading, MissingRowsRaise381BeforeTheColumnIsLookedAt) {
    EXPECT_EQ(row_missing(), failure_text([&] { c().list(3); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().list(-1, short{0}); }));
    EXPECT_EQ(row_missing(), failure_text([&] { c().list(32767, short{-3}); }));
}

TEST_P(ListReading, ARowThatLacksACellFailsWithTheListsOwnError) {
    c().add_item(L"short");
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(3, short{2}); }));
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(3, short{-2}); }));
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(0, short{-3}); }));
    EXPECT_EQ(out_of_bounds(), failure_text([&] { c().list(0, short{-4}); }));
    EXPECT_EQ("\"short\"", c().list(3).describe());
}

TEST_P(ListReading, TheErrorCarriesTheNameTheControlHasNow) {
    site().ambients().give(DISPID_AMBIENT_DISPLAYNAME, L"cboCity");
    site().ambients().announce(DISPID_AMBIENT_DISPLAYNAME);
    EXPECT_EQ(control_error("cboCity", -2147219984, "Invalid Column ItemIndex"),
              failure_text([&] { c().list(0, short{0}); }));
}

} // namespace
} // namespace vellora::test
