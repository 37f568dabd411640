#include "runtime/checked.h"

#include "native/error_of.h"
#include "runtime/host_error.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vellora::test {

namespace {

constexpr std::int16_t integer(int value) {
    return static_cast<std::int16_t>(value);
}

constexpr std::int32_t long_max = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t long_min = std::numeric_limits<std::int32_t>::min();

} // namespace

TEST(Checked, AddsIntegersUpToTheirLimits) {
    EXPECT_EQ(checked_add(integer(32766), integer(1)), 32767);
    EXPECT_EQ(checked_add(integer(-32767), integer(-1)), -32768);
    EXPECT_EQ(error_of([] { checked_add(integer(32767), integer(1)); }), error_number::overflow);
    EXPECT_EQ(error_of([] { checked_add(integer(-32768), integer(-1)); }), error_number::overflow);
}

TEST(Checked, AddsLongsUpToTheirLimits) {
    EXPECT_EQ(checked_add(long_max - 1, 1), long_max);
    EXPECT_EQ(checked_add(long_min + 1, -1), long_min);
    EXPECT_EQ(error_of([] { checked_add(long_max, 1); }), error_number::overflow);
    EXPECT_EQ(error_of([] { checked_add(long_min, -1); }), error_number::overflow);
}

TEST(Checked, MultipliesIntegers) {
    EXPECT_EQ(checked_multiply(integer(-256), integer(128)), -32768);
    EXPECT_EQ(checked_multiply(integer(181), integer(181)), 32761);
    EXPECT_EQ(error_of([] { checked_multiply(integer(256), integer(128)); }), error_number::overflow);
    EXPECT_EQ(error_of([] { checked_multiply(integer(-32768), integer(-1)); }), error_number::overflow);
    EXPECT_EQ(error_of([] { checked_multiply(integer(-32768), integer(-32768)); }), error_number::overflow);
}

TEST(Checked, MultipliesLongs) {
    EXPECT_EQ(checked_multiply(-65536, 32768), long_min);
    EXPECT_EQ(checked_multiply(46340, 46340), 2147395600);
    EXPECT_EQ(error_of([] { checked_multiply(65536, 32768); }), error_number::overflow);
    EXPECT_EQ(error_of([] { checked_multiply(long_min, -1); }), error_number::overflow);
    EXPECT_EQ(error_of([] { checked_multiply(long_min, long_min); }), error_number::overflow);
}

TEST(Checked, DividesTowardsZero) {
    EXPECT_EQ(checked_divide(7, 2), 3);
    EXPECT_EQ(checked_divide(-7, 2), -3);
    EXPECT_EQ(checked_divide(long_min, 1), long_min);
    EXPECT_EQ(checked_divide(0, -5), 0);
    EXPECT_EQ(error_of([] { checked_divide(1, 0); }), error_number::division_by_zero);
    EXPECT_EQ(error_of([] { checked_divide(0, 0); }), error_number::division_by_zero);
    EXPECT_EQ(error_of([] { checked_divide(long_min, -1); }), error_number::overflow);
}

TEST(Checked, NarrowsALongToAnInteger) {
    EXPECT_EQ(to_integer(std::int32_t{32767}), 32767);
    EXPECT_EQ(to_integer(std::int32_t{-32768}), -32768);
    EXPECT_EQ(error_of([] { to_integer(std::int32_t{32768}); }), error_number::overflow);
    EXPECT_EQ(error_of([] { to_integer(std::int32_t{-32769}); }), error_number::overflow);
}

TEST(Checked, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(to_integer(0.5), 0);
    EXPECT_EQ(to_integer(1.5), 2);
    EXPECT_EQ(to_integer(2.5), 2);
    EXPECT_EQ(to_integer(-0.5), 0);
    EXPECT_EQ(to_integer(-1.5), -2);
    EXPECT_EQ(to_integer(-2.5), -2);
    EXPECT_EQ(to_integer(2.4999999), 2);
    EXPECT_EQ(to_integer(2.5000001), 3);
    EXPECT_EQ(to_integer(-3.75), -4);
    EXPECT_EQ(to_long(2147483646.5), 2147483646);
    EXPECT_EQ(to_long(-2147483647.5), long_min);
}

TEST(Checked, RoundsAlikeInEveryRoundingMode) {
    const int mode = std::fegetround();
    for (const int other : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        std::fesetround(other);
        EXPECT_EQ(to_long(2.5), 2);
        EXPECT_EQ(to_long(3.5), 4);
        EXPECT_EQ(to_long(-2.25), -2);
    }
    std::fesetround(mode);
}

TEST(Checked, RoundingDecidesAboutOverflow) {
    EXPECT_EQ(to_integer(32767.49), 32767);
    EXPECT_EQ(to_integer(-32768.5), -32768);
    EXPECT_EQ(error_of([] { to_integer(32767.5); }), error_number::overflow);
    EXPECT_EQ(error_of([] { to_integer(-32768.51); }), error_number::overflow);
    EXPECT_EQ(to_long(2147483647.49), long_max);
    EXPECT_EQ(to_long(-2147483648.5), long_min);
    EXPECT_EQ(error_of([] { to_long(2147483647.5); }), error_number::overflow);
    EXPECT_EQ(error_of([] { to_long(-2147483648.75); }), error_number::overflow);
}

TEST(Checked, WhatIsNoFiniteNumberOverflows) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(error_of([] { to_long(std::nan("")); }), error_number::overflow);
    EXPECT_EQ(error_of([] { to_integer(std::nan("")); }), error_number::overflow);
    EXPECT_EQ(error_of([=] { to_long(infinity); }), error_number::overflow);
    EXPECT_EQ(error_of([=] { to_long(-infinity); }), error_number::overflow);
    EXPECT_EQ(error_of([] { to_long(1e300); }), error_number::overflow);
}

TEST(Checked, SlotsOfAnArrayCountFromOne) {
    EXPECT_EQ(checked_slot(1, 50), 0U);
    EXPECT_EQ(checked_slot(50, 50), 49U);
    EXPECT_EQ(error_of([] { checked_slot(0, 50); }), error_number::subscript_out_of_range);
    EXPECT_EQ(error_of([] { checked_slot(51, 50); }), error_number::subscript_out_of_range);
    EXPECT_EQ(error_of([] { checked_slot(-1, 50); }), error_number::subscript_out_of_range);
    EXPECT_EQ(error_of([] { checked_slot(long_min, 50); }), error_number::subscript_out_of_range);
    EXPECT_EQ(error_of([] { checked_slot(1, 0); }), error_number::subscript_out_of_range);
}

} // namespace vellora::test
