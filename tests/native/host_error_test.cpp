#include "runtime/host_error.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace vellora::test {

TEST(HostError, CarriesWhatItWasGiven) {
    const HostError error(error_number::invalid_column_index, u"Vellora1", u"Invalid Column ItemIndex");
    EXPECT_EQ(error.number(), -2147219984);
    EXPECT_EQ(error.source(), u"Vellora1");
    EXPECT_EQ(error.description(), u"Invalid Column ItemIndex");
}

TEST(HostError, LeavesSourceAndDescriptionEmptyUnlessGiven) {
    const HostError error(error_number::overflow);
    EXPECT_EQ(error.source(), u"");
    EXPECT_EQ(error.description(), u"");
}

TEST(HostError, RendersItselfInAscii) {
    EXPECT_STREQ(HostError(6).what(), "Error 6: Overflow");
    EXPECT_STREQ(HostError(77).what(), "Error 77");
    EXPECT_STREQ(HostError(9, u"Box").what(), "Error 9: Subscript out of range (Box)");
    EXPECT_STREQ(HostError(9, u"B\u00F6x", u"na\u00EFve\n").what(), "Error 9: na?ve? (B?x)");
}

TEST(HostError, NumbersOfTheControlsOwnErrors) {
    EXPECT_EQ(static_cast<std::uint32_t>(error_number::invalid_column_index), 0x80040000U + 1520);
    EXPECT_EQ(static_cast<std::uint32_t>(error_number::invalid_columns_value), 0x80040000U + 1521);
}

TEST(HostError, StandardTexts) {
    const std::pair<std::int32_t, std::u16string> texts[] = {
        {5, u"Invalid procedure call or argument"},
        {6, u"Overflow"},
        {9, u"Subscript out of range"},
        {11, u"Division by zero"},
        {13, u"Type mismatch"},
        {94, u"Invalid use of Null"},
        {340, u"Control array element does not exist"},
        {380, u"Invalid property value"},
        {381, u"Invalid property array index"},
        {382, u"Property Set can't be executed at run time"},
        {387, u"Property Set not permitted"},
        {35600, u"Index out of bounds"},
        {35601, u"Element not found"},
    };
    for (const auto& [number, text] : texts)
        EXPECT_EQ(standard_description(number), text) << number;
}

TEST(HostError, OtherNumbersHaveNoStandardText) {
    for (const std::int32_t number : {0, 7, 383, -1, error_number::invalid_column_index})
        EXPECT_EQ(standard_description(number), u"") << number;
}

} // namespace vellora::test
