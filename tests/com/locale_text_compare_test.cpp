// Comparing texts by the rules of the user's locale.
#include "widgets/win32/locale_text_compare.h"

#include <gtest/gtest.h>

namespace vellora::test {
namespace {

class LocaleTextCompareTest : public ::testing::Test {
protected:
    win32::LocaleTextCompare compare;

    bool before(std::u16string_view a, std::u16string_view b) const {
        return compare.sort_key(a) < compare.sort_key(b);
    }
    bool same_key(std::u16string_view a, std::u16string_view b) const {
        return compare.sort_key(a) == compare.sort_key(b);
    }
};

TEST_F(LocaleTextCompareTest, OrdersAsADictionaryDoes) {
    EXPECT_TRUE(before(u"", u"a"));
    EXPECT_TRUE(before(u"a", u"B"));
    EXPECT_TRUE(before(u"B", u"c"));
    EXPECT_TRUE(before(u"ab", u"abc"));
    EXPECT_TRUE(before(u"1", u"a"));
    EXPECT_TRUE(before(u"Apfel", u"\u00C4rger"));
    EXPECT_TRUE(before(u"\u00C4rger", u"Birne"));
}

TEST_F(LocaleTextCompareTest, IgnoresCase) {
    EXPECT_TRUE(same_key(u"Text", u"tEXT"));
    EXPECT_TRUE(same_key(u"\u00C4", u"\u00E4"));
    EXPECT_FALSE(same_key(u"text", u"text1"));
    EXPECT_EQ(compare.fold(u"Text"), compare.fold(u"tEXT"));
    EXPECT_EQ(compare.fold(u"\u00C4\u0416Z"), compare.fold(u"\u00E4\u0436z"));
    EXPECT_NE(compare.fold(u"a"), compare.fold(u"b"));
}

TEST_F(LocaleTextCompareTest, FoldingKeepsTheLength) {
    for (const std::u16string_view text : {u"", u"Stra\u00DFe", u"\u0130stanbul", u"\uFB01n", u"\U0001D400x"})
        EXPECT_EQ(text.size(), compare.fold(text).size());
    EXPECT_EQ((std::u16string{u'a', u'\0', u'b'}), compare.fold(std::u16string{u'A', u'\0', u'B'}));
}

TEST_F(LocaleTextCompareTest, TakesTextsOfAnyLength) {
    const std::u16string longer(100000, u'x');
    const std::u16string longest = longer + u"y";
    EXPECT_TRUE(before(longer, longest));
    EXPECT_FALSE(before(longest, longer));
    EXPECT_TRUE(same_key(longer, std::u16string(100000, u'X')));
}

} // namespace
} // namespace vellora::test
