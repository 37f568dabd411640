// Settings that cannot be loaded: the error, and what is left of the control.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/property_bag.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

Failure load_failure(HeadlessPropertyBag& bag, Mode mode = Mode::run) {
    HeadlessControl combo(mode, Stage::created);
    combo.site.name = u"cboTown";
    return failure_of([&] { combo.persistence().ReadProperties(bag); });
}

} // namespace

TEST(FailedLoading, OfASelectedRowAnEmptyListCannotHold) {
    for (const Mode mode : {Mode::design, Mode::run}) {
        HeadlessPropertyBag bag;
        bag.put(u"ListIndex", std::int32_t{2});
        EXPECT_EQ(load_failure(bag, mode), (Failure{381, u"", u""}));
    }
}

TEST(FailedLoading, StaysWhereItWas) {
    HeadlessPropertyBag bag;
    bag.put(u"DropDownHeight", 3.0F);
    bag.put(u"Locked", std::u16string(u"no truth value"));
    bag.put(u"GridLines", true);
    bag.put(u"MaxLength", std::int32_t{9});
    HeadlessControl combo(Mode::run, Stage::created);
    EXPECT_EQ(failure_of([&] { combo.persistence().ReadProperties(bag); }).number, 13);
    EXPECT_EQ(combo.state().msngDropDownHeight, 3.0F);
    EXPECT_TRUE(combo.state().mbGridLines);
    EXPECT_FALSE(combo.list_view.grid_lines());
    EXPECT_EQ(combo.state().mlMaxLength, 0);
    EXPECT_TRUE(combo.state().mbLoadingProperties);
}

TEST(FailedLoading, OfMoreThanFiftyColumnsIsASubscriptOutOfRange) {
    HeadlessPropertyBag bag;
    bag.put(u"Columns", std::int16_t{51});
    EXPECT_EQ(load_failure(bag), (Failure{9, u"", u""}));
}

TEST(FailedLoading, OfMoreThanFiftyColumnsLeavesNothingToBeSaved) {
    HeadlessPropertyBag bag;
    bag.put(u"Columns", std::int16_t{51});
    HeadlessControl combo(Mode::run, Stage::created);
    EXPECT_EQ(failure_of([&] { combo.persistence().ReadProperties(bag); }).number, 9);
    HeadlessPropertyBag again;
    EXPECT_EQ(failure_of([&] { combo.persistence().WriteProperties(again); }).number, 9);
}

TEST(Loading, AHeightFarBelowNothingOnlyHindersScrolling) {
    for (const float height : {-2147483648.0F, -1e10F, -3.0F}) {
        HeadlessPropertyBag bag;
        bag.put(u"DropDownHeight", height);
        HeadlessControl combo(Mode::run, Stage::created);
        combo.persistence().ReadProperties(bag);
        combo.size();
        combo.add_rows(3);
        EXPECT_NE(failure_of([&] { combo.selection().put_ListIndex(1); }), no_failure) << height;
        EXPECT_EQ(combo.selection().ListIndex(), 1);
    }
}

TEST(FailedLoading, OfNoColumnsSaysWhatTheSetterSays) {
    for (const std::int16_t columns : Integers{0, -1}) {
        HeadlessPropertyBag bag;
        bag.put(u"Columns", columns);
        EXPECT_EQ(load_failure(bag), (Failure{-2147219983, u"cboTown",
                                              u"Invalid Columns Value. Value must be between 1 and 50"}));
    }
}

TEST(FailedLoading, OfAColumnNumberTooLargeOverflows) {
    HeadlessPropertyBag bag;
    bag.put(u"Columns", std::int32_t{40000});
    EXPECT_EQ(load_failure(bag).number, 6);
}

TEST(FailedLoading, CanBeFollowedByAGoodOne) {
    HeadlessPropertyBag bad;
    bad.put(u"Columns", std::int16_t{51});
    HeadlessControl combo(Mode::run, Stage::created);
    EXPECT_EQ(failure_of([&] { combo.persistence().ReadProperties(bad); }).number, 9);
    HeadlessPropertyBag good;
    good.put(u"Columns", std::int16_t{2});
    combo.persistence().ReadProperties(good);
    EXPECT_FALSE(combo.state().mbLoadingProperties);
    EXPECT_EQ(combo.columns().Columns(), 2);
    EXPECT_EQ(combo.list_view.header_count(), 2);
}

} // namespace vellora::test
