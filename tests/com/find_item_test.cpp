// FindItem and ColumnOrder with every kind of value a host may hand in.
#include "com/support/open_list_test.h"
#include "support/container/text.h"

#include <limits>

namespace vellora::test {
namespace {

std::string code(HRESULT result) {
    return std::to_string(Failure{result, {}, {}}.number());
}

Variant of_type(VARTYPE type, LONGLONG payload) {
    Variant value;
    value.raw().vt = type;
    value.raw().llVal = payload;
    return value;
}

Variant decimal(ULONG number, BYTE scale) {
    Variant value;
    DECIMAL& payload = value.raw().decVal;
    payload = {};
    payload.Lo64 = number;
    payload.scale = scale;
    value.raw().vt = VT_DECIMAL;
    return value;
}

class FindItemTest : public OpenListTest {
protected:
    /// The row, or the number of the error.
    std::string find(const VARIANT& target, short column = 1, long start = 1) {
        LONG row = -5;
        const HRESULT result = c().FindItem(target, column, start, vlWholeWord, &row);
        return FAILED(result) ? "error " + code(result) : std::to_string(row);
    }
    std::string find(const Variant& target, short column = 1, long start = 1) {
        return find(target.get(), column, start);
    }
};

TEST_F(FindItemTest, AValueOfAnyTypeFindsTheRowThatWasAddedWithIt) {
    const std::vector<Variant> values{Variant(L"text"),
                                      Variant(short{5}),
                                      Variant(70000L),
                                      Variant(2.5F),
                                      Variant(0.1),
                                      Variant(true),
                                      Variant(false),
                                      Variant::date(36526.5),
                                      Variant(),
                                      of_type(VT_UI1, 200),
                                      of_type(VT_I1, -7),
                                      of_type(VT_UI2, 60000),
                                      of_type(VT_INT, -123456),
                                      of_type(VT_UINT, 123456),
                                      of_type(VT_UI4, 4000000000),
                                      of_type(VT_CY, 123400),
                                      decimal(123456, 3),
                                      Variant(make_font(L"Tahoma", 8).Get()),
                                      text_array({L"first of an array", L"second"}),
                                      variant_array({Variant(8L), Variant(9L)})};
    for (const Variant& value : values)
        ASSERT_EQ(S_OK, c().AddItem(value.get(), -1)) << value.describe();
    long row = 0;
    for (const Variant& value : values) {
        EXPECT_EQ(std::to_string(row), find(value)) << value.describe();
        VARIANT reference{};
        reference.vt = VT_BYREF | VT_VARIANT;
        reference.pvarVal = value.argument();
        EXPECT_EQ(std::to_string(row), find(reference)) << "by reference, " << value.describe();
        ++row;
    }
}

TEST_F(FindItemTest, AValueWithoutTextIsAnError) {
    fill(2);
    EXPECT_EQ("error 94", find(Variant::null()));
    EXPECT_EQ("error 13", find(Variant::missing()));
    EXPECT_EQ("error 94", find(variant_array({Variant::null()})));
    EXPECT_EQ("error 13", find(variant_array({text_array({L"nested"})})));
    EXPECT_EQ("error 9", find(variant_array({})));
    EXPECT_EQ("error 9", find(blank_array(VT_BSTR, {{2, 0}, {2, 0}})));
    EXPECT_NE("0", find(Variant(static_cast<IDispatch*>(nullptr))));
    EXPECT_EQ("0", find(Variant(L"row 0.1")));
}

TEST_F(FindItemTest, AStartOutsideTheRowsIsAnError) {
    fill(2);
    EXPECT_EQ("0", find(Variant(L"row 0.1"), 1, 1));
    EXPECT_EQ("1", find(Variant(L"row 1.1"), 1, 2));
    for (const long start : {0L, -1L, 3L, std::numeric_limits<long>::max(), std::numeric_limits<long>::min()}) {
        EXPECT_EQ("error 35600", find(Variant(L"row 0.1"), 1, start)) << start;
        EXPECT_EQ("error 35600", find(Variant(L"row 0.1"), -1, start)) << start;
    }
}

class ColumnOrderTest : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        fill(2, 3);
        ASSERT_EQ(S_OK, c().put_ColumnOrder(long_array({3, 1, 2}).get()));
    }
    std::string order() {
        Variant value;
        EXPECT_EQ(S_OK, c().get_ColumnOrder(value.out()));
        return value.describe();
    }
    static constexpr char kept[] = "Integer(0 To 2) {I2 3, I2 1, I2 2}";
};

TEST_F(ColumnOrderTest, WhatIsNotEveryColumnOnceIs380AndChangesNothing) {
    const std::vector<Variant> wrong{
        // no array
        Variant(), Variant::null(), Variant::missing(), Variant(3L), Variant(L"3,1,2"), Variant(true),
        Variant(static_cast<IDispatch*>(nullptr)), Variant(make_font(L"Tahoma", 8).Get()),
        // rank
        blank_array(VT_I4, {{3, 0}, {3, 0}}), blank_array(VT_I4, {{3, 0}, {1, 0}, {1, 0}}),
        text_table({{L"1"}, {L"2"}, {L"3"}}),
        // bound
        long_array({1, 2}), long_array({1, 2, 3, 4}), long_array({1, 2, 3}, 1), long_array({2, 3}, 1),
        variant_array({}), long_array({1, 2, 3}, 2147483600),
        // type
        text_array({L"one", L"two", L"three"}), text_array({L"", L"2", L"3"}),
        variant_array({Variant(1L), Variant(2L), Variant::null()}),
        variant_array({Variant(1L), Variant(2L), Variant::missing()}),
        variant_array({Variant(1L), Variant(2L), Variant()}),
        variant_array({Variant(1L), Variant(2L), Variant(make_font(L"Tahoma", 8).Get())}),
        variant_array({Variant(1L), Variant(2L), Variant(static_cast<IDispatch*>(nullptr))}),
        variant_array({Variant(1L), Variant(2L), long_array({3})}), blank_array(VT_UNKNOWN, {{3, 0}}),
        blank_array(VT_ERROR, {{3, 0}}),
        // range
        long_array({0, 1, 2}), long_array({1, 2, 4}), long_array({-1, 1, 2}), long_array({1, 2, 32768}),
        long_array({1, 2, 65537}), long_array({1, 2, 2147483647}), long_array({-2147483647L - 1, 2, 3}),
        variant_array({Variant(1L), Variant(2L), Variant(1e300)}),
        // duplicates
        long_array({1, 1, 2}), long_array({3, 3, 3}), text_array({L"2", L"3", L"2"})};
    for (const Variant& value : wrong) {
        EXPECT_EQ("380", code(c().put_ColumnOrder(value.get()))) << value.describe();
        EXPECT_EQ(kept, order()) << value.describe();
    }
    open();
    for (const Variant& value : wrong)
        EXPECT_EQ("380", code(c().put_ColumnOrder(value.get()))) << value.describe();
    EXPECT_EQ(kept, order());
}

TEST_F(ColumnOrderTest, NumbersOfAnyTypeAreTaken) {
    for (const Variant& value :
         {text_array({L"2", L"3", L"1"}), variant_array({Variant(short{2}), Variant(3.0), Variant(L"1")}),
          variant_array({Variant(2.4), Variant(2.6F), Variant(1L)})}) {
        ASSERT_EQ(S_OK, c().put_ColumnOrder(long_array({1, 2, 3}).get()));
        EXPECT_EQ(S_OK, c().put_ColumnOrder(value.get())) << value.describe();
        EXPECT_EQ("Integer(0 To 2) {I2 2, I2 3, I2 1}", order()) << value.describe();
    }
}

} // namespace
} // namespace vellora::test
