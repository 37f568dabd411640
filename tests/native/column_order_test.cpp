// The order of the columns on the screen.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

using Order = std::vector<std::int16_t>;
const Failure refused{380, u"", u""};

struct ThreeColumns : HeadlessControl {
    ThreeColumns() {
        columns().put_Columns(3);
        journal().take_all();
    }
    Order order() { return std::get<Order>(column_order().Order()); }
    Failure set(const TestVariant& order) {
        return failure_of([&] { column_order().put_Order(order); });
    }
};

} // namespace

TEST(ColumnOrder, IsThatOfTheColumnsAtFirst) {
    ThreeColumns combo;
    EXPECT_EQ(combo.order(), (Order{1, 2, 3}));
    EXPECT_EQ(combo.journal().take_all(), Lines{"send list 0x103B 3 order"});
}

TEST(ColumnOrder, CanBeSetAndReadBack) {
    ThreeColumns combo;
    EXPECT_EQ(combo.set(TestVariant::array({3.0, 1.0, 2.0})), no_failure);
    EXPECT_EQ(combo.journal().take_all(), Lines{"send list 0x103A 3 order"});
    EXPECT_EQ(combo.order(), (Order{3, 1, 2}));
}

TEST(ColumnOrder, TakesTextsThatAreNumbers) {
    ThreeColumns combo;
    EXPECT_EQ(combo.set(TestVariant::array({u"2", u"3", u"1"})), no_failure);
    EXPECT_EQ(combo.order(), (Order{2, 3, 1}));
}

TEST(ColumnOrder, TakesAnArrayThatStartsBelowZero) {
    ThreeColumns combo;
    EXPECT_EQ(combo.set(TestVariant::array({{-1, 2}}, {99.0, 2.0, 1.0, 3.0})), no_failure);
    EXPECT_EQ(combo.order(), (Order{2, 1, 3}));
}

TEST(ColumnOrder, RefusesWhatIsNotEveryColumnOnce) {
    ThreeColumns combo;
    combo.set(TestVariant::array({3.0, 1.0, 2.0}));
    EXPECT_EQ(combo.set(TestVariant::array({1.0, 1.0, 2.0})), refused);
    EXPECT_EQ(combo.set(TestVariant::array({0.0, 1.0, 2.0})), refused);
    EXPECT_EQ(combo.set(TestVariant::array({1.0, 2.0, 4.0})), refused);
    EXPECT_EQ(combo.set(TestVariant::array({1.0, 2.0})), refused);
    EXPECT_EQ(combo.set(TestVariant::array({1.0, 2.0, 3.0, 4.0})), refused);
    EXPECT_EQ(combo.set(TestVariant(3)), refused);
    EXPECT_EQ(combo.set(TestVariant::array({-32768.0, 1.0, 2.0})), refused);
    EXPECT_EQ(combo.order(), (Order{3, 1, 2}));
}

TEST(AllowColumnReorder, IsReportedOnlyWhenItChanges) {
    HeadlessControl combo;
    combo.column_order().put_AllowColumnReorder(false);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
    combo.column_order().put_AllowColumnReorder(true);
    EXPECT_TRUE(combo.column_order().AllowColumnReorder());
    EXPECT_TRUE(combo.list_view.allow_column_reorder());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(AllowColumnReorder)"});
}

} // namespace vellora::test
