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

TEST_F(LocaleTextCompareTest, FoldsEveryScriptThatHasCase) {
    EXPECT_EQ(compare.fold(u"\u00C9\u00D6\u0178"), u"\u00E9\u00F6\u00FF");
    EXPECT_EQ(compare.fold(u"\u0416\u0401"), u"\u0436\u0451");
    EXPECT_EQ(compare.fold(u"\u03A3\u0386"), u"\u03C3\u03AC");
    EXPECT_EQ(compare.fold(u"\u0531\uFF21\u01C4"), u"\u0561\uFF41\u01C6");
}

TEST_F(LocaleTextCompareTest, FoldsNothingIntoAnotherLetter) {
    EXPECT_EQ(compare.fold(u"\u03C2"), u"\u03C2");
    EXPECT_NE(compare.fold(u"\u00DF"), compare.fold(u"SS").substr(0, 1));
    EXPECT_NE(compare.fold(u"E"), compare.fold(u"\u00C9"));
    EXPECT_NE(compare.fold(u"\u0131"), compare.fold(u"i"));
}

// An index compares texts with folded beginnings, so the two must agree wherever a text is cut.
TEST_F(LocaleTextCompareTest, FoldsEachUnitByItself) {
    std::u16string every;
    for (unsigned unit = 0; unit < 0x10000; ++unit)
        every.push_back(static_cast<char16_t>(unit));
    const std::u16string folded = compare.fold(every);
    EXPECT_EQ(compare.fold(folded), folded);
    for (std::size_t i = 0; i < every.size(); ++i)
        ASSERT_EQ(compare.fold(every.substr(i, 1))[0], folded[i]) << std::hex << i;
}

TEST_F(LocaleTextCompareTest, KeepsTheFirstUnitOfAPairAndUnitsThatAreNone) {
    for (const std::u16string_view pair : {u"\U00010400", u"\U0001E900", u"\U000104B0", u"\U0001F600"}) {
        const std::u16string folded = compare.fold(pair);
        EXPECT_EQ(folded[0], pair[0]);
        EXPECT_TRUE(folded[1] >= 0xDC00 && folded[1] < 0xE000);
    }
    EXPECT_EQ(compare.fold(u"\U0001F600"), u"\U0001F600");
    const std::u16string halves{char16_t{0xDC00}, u'A', char16_t{0xD801}};
    EXPECT_EQ(compare.fold(halves), (std::u16string{char16_t{0xDC00}, u'a', char16_t{0xD801}}));
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
